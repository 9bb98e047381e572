#include "SpecialFolders.h"

#include <QHash>
#include <QStandardPaths>

namespace {

QHash<int, QString> &overrides()
{
    static QHash<int, QString> fakes;
    return fakes;
}

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

void overridePath(int csidl, const QString &folder)
{
    if (folder.isNull())
        overrides().remove(csidl);
    else
        overrides().insert(csidl, folder);
}

} // namespace SpecialFolders
