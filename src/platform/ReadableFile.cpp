#include "ReadableFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

QString UnreadableFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return QCoreApplication::translate("ReadableFile", "no such file");
    if (info.isDir())
        return QCoreApplication::translate("ReadableFile", "is a folder");
    if (!info.isFile())
        return QCoreApplication::translate("ReadableFile", "not an ordinary file");
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return f.errorString();
    return QString();
}
