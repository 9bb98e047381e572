// The binding to the picture library and the drawing of its pictures.
#pragma once

#include "platform/LoadLibrary.h"

#include <QHash>
#include <QImage>
#include <QString>

#include <cstdint>

class PictureBox;

class PictureLibrary {
public:
    // The library at this absolute path with its bitmap operation, or nullptr.
    static PictureLibrary *load(const QString &absolutePath);

    // The picture with this id; a null image when there is none. Decoded
    // pictures are kept, so a second request costs nothing.
    QImage bitmap(int32_t id) const;

private:
    explicit PictureLibrary(LoadedLibrary library);

    LoadedLibrary library_;
    int32_t (*loadBitmap_)(int32_t, const unsigned char **, uint32_t *) = nullptr;
    mutable QHash<int32_t, QImage> decoded_;
};

namespace basPLOVQuzr {

// The loaded picture library; nullptr when it could not be loaded.
inline PictureLibrary *hPictureLib = nullptr;

} // namespace basPLOVQuzr

// Draws picture id into the target, which takes the picture's size. Without
// the library, or for an id it does not hold, the target stays as it was.
void DrawLibraryBitmap(PictureBox &target, int32_t id);
