#include "LoadLibrary.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace {

// The exact file, or nothing: QLibrary would try other prefixes and
// suffixes beside a missing file.
QString exactLibraryFile(const QString &absolutePath)
{
    const QFileInfo file(absolutePath);
    return file.isAbsolute() && file.isFile() ? file.absoluteFilePath() : QString();
}

} // namespace

void LibraryUnloader::operator()(QLibrary *library) const
{
    if (library) {
        library->unload();
        delete library;
    }
}

LoadedLibrary LoadLibraryFrom(const QString &absolutePath)
{
    const QString file = exactLibraryFile(absolutePath);
    if (file.isEmpty())
        return nullptr;
    LoadedLibrary library(new QLibrary(file));
    if (!library->load())
        return nullptr;
    return library;
}

QString librarySuffix()
{
    return QStringLiteral(QUIZZARR_LIBRARY_SUFFIX);
}

PreloadedLibrary::PreloadedLibrary(const QString &absolutePath)
{
    const QString file = exactLibraryFile(absolutePath);
    if (!file.isEmpty())
        handle_ = ::dlopen(QFile::encodeName(file).constData(), RTLD_LAZY | RTLD_LOCAL);
}

PreloadedLibrary::~PreloadedLibrary()
{
    if (handle_)
        ::dlclose(handle_);
}
