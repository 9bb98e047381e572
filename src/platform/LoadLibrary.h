// Loading a companion library: by absolute path only, never through the
// system's library search path, so that the game only ever binds the
// libraries lying in its own folder.
#pragma once

#include <QLibrary>
#include <QString>

#include <memory>

// The loaded library, or nullptr when the file is missing or cannot be
// loaded. Destroying the result unloads the library.
struct LibraryUnloader {
    void operator()(QLibrary *library) const;
};
using LoadedLibrary = std::unique_ptr<QLibrary, LibraryUnloader>;

LoadedLibrary LoadLibraryFrom(const QString &absolutePath);

// The file-name suffix of loadable libraries on this platform (".so").
QString librarySuffix();

// A library bound ahead of time (on another thread, while the program
// starts), so that loading it later costs nothing; the binding lasts as long
// as this object. Nothing happens when the file is missing or unfit.
class PreloadedLibrary {
public:
    explicit PreloadedLibrary(const QString &absolutePath);
    ~PreloadedLibrary();
    PreloadedLibrary(const PreloadedLibrary &) = delete;
    PreloadedLibrary &operator=(const PreloadedLibrary &) = delete;

private:
    void *handle_ = nullptr;
};
