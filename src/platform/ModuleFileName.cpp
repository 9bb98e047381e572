#include "ModuleFileName.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

QString pathOverride;
QString folderOverride;
bool declaredGame = false;

QString executablePath()
{
    // /proc/self/exe names the file even before a QCoreApplication exists.
    const QString proc = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
    if (!proc.isEmpty())
        return proc;
    return QCoreApplication::applicationFilePath();
}

} // namespace

namespace ModuleFileName {

QString path()
{
    if (!pathOverride.isEmpty())
        return pathOverride;
    const QString stated = qEnvironmentVariable("QUIZZARR_MODULE_PATH");
    return stated.isEmpty() ? executablePath() : stated;
}

QString programFolder()
{
    if (!folderOverride.isEmpty())
        return withTrailingSeparator(folderOverride);
    return withTrailingSeparator(QFileInfo(executablePath()).absolutePath());
}

QString gameExecutableName()
{
    return QStringLiteral(QUIZZARR_EXECUTABLE_NAME);
}

QString executableName()
{
    return declaredGame ? QFileInfo(path()).fileName() : gameExecutableName();
}

void declareGameExecutable(bool isGame)
{
    declaredGame = isGame;
}

QString withoutExtension(const QString &path)
{
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return dot > slash ? path.left(dot) : path;
}

QString withTrailingSeparator(const QString &folder)
{
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

void overridePath(const QString &p)
{
    pathOverride = p;
}

void overrideProgramFolder(const QString &folder)
{
    folderOverride = folder;
}

} // namespace ModuleFileName
