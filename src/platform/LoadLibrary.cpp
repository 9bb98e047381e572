#include "LoadLibrary.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

void LibraryUnloader::operator()(QLibrary *library) const
{
    if (library) {
        library->unload();
        delete library;
    }
}

LoadedLibrary LoadLibraryFrom(const QString &absolutePath)
{
    const QFileInfo file(absolutePath);
    // QLibrary would try other prefixes and suffixes beside a missing file;
    // only the exact file counts.
    if (!file.isAbsolute() || !file.isFile())
        return nullptr;
    LoadedLibrary library(new QLibrary(file.absoluteFilePath()));
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
    const QFileInfo file(absolutePath);
    if (file.isAbsolute() && file.isFile()) // the same rule as LoadLibraryFrom
        handle_ = ::dlopen(QFile::encodeName(file.absoluteFilePath()).constData(), RTLD_LAZY | RTLD_LOCAL);
}

PreloadedLibrary::~PreloadedLibrary()
{
    if (handle_)
        ::dlclose(handle_);
}
