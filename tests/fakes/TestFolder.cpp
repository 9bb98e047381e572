#include "TestFolder.h"

#include "platform/ModuleFileName.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

TestFolder::TestFolder()
{
    ModuleFileName::overrideProgramFolder(path());
}

TestFolder::~TestFolder()
{
    ModuleFileName::overrideProgramFolder(QString());
}

QString TestFolder::path() const
{
    return ModuleFileName::withTrailingSeparator(dir_.path());
}

QString TestFolder::file(const QString &name) const
{
    return path() + name;
}

void TestFolder::write(const QString &name, const QByteArray &bytes) const
{
    const QString full = file(name);
    QDir().mkpath(QFileInfo(full).absolutePath());
    QFile f(full);
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(full));
}
