#include "ReadableFile.h"

#include <QFile>
#include <QFileInfo>

QString UnreadableFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return QStringLiteral("no such file");
    if (info.isDir())
        return QStringLiteral("is a folder");
    if (!info.isFile())
        return QStringLiteral("not an ordinary file");
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return f.errorString();
    return QString();
}
