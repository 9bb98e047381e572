#include "SpecialFolders.h"

#include <QDir>
#include <QHash>
#include <QStandardPaths>

namespace {

QHash<int, QString> &overrides()
{
    static QHash<int, QString> fakes;
    return fakes;
}

QString removableOverride;

} // namespace

namespace SpecialFolders {

QString path(int csidl)
{
    const auto fake = overrides().constFind(csidl);
    if (fake != overrides().constEnd())
        return *fake;
    switch (csidl) {
    case kDesktop: return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    case kDocuments: return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    default: return QString();
    }
}

QString removableMedia()
{
    if (!removableOverride.isNull())
        return removableOverride;
    const QString user = qEnvironmentVariable("USER", qEnvironmentVariable("LOGNAME"));
    for (const QString &root : {QStringLiteral("/media/"), QStringLiteral("/run/media/")}) {
        const QDir mounts(root + user);
        const QStringList disks = mounts.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        if (!user.isEmpty() && !disks.isEmpty())
            return mounts.filePath(disks.first());
    }
    return QDir::homePath();
}

void overrideRemovableMedia(const QString &folder)
{
    removableOverride = folder;
}

void overridePath(int csidl, const QString &folder)
{
    if (folder.isNull())
        overrides().remove(csidl);
    else
        overrides().insert(csidl, folder);
}

} // namespace SpecialFolders
