// The binding to the picture library: its pictures, decoded once.
#pragma once

#include "platform/LoadLibrary.h"

#include <QHash>
#include <QImage>
#include <QString>

#include <cstdint>
#include <future>
#include <initializer_list>
#include <memory>

class PictureLibrary {
public:
    // The library at this absolute path with its bitmap operation, or nullptr.
    static std::unique_ptr<PictureLibrary> load(const QString &absolutePath);

    // The picture with this id; a null image when there is none. Decoded
    // pictures are kept, so a second request costs nothing.
    QImage bitmap(int32_t id) const;

    // Begins decoding these pictures on another core, so that the screen
    // that first asks finds them ready, or nearly.
    void prefetch(std::initializer_list<int32_t> ids);

    ~PictureLibrary();

private:
    explicit PictureLibrary(LoadedLibrary library);

    LoadedLibrary library_;
    int32_t (*loadBitmap_)(int32_t, const unsigned char **, uint32_t *) = nullptr;
    mutable QHash<int32_t, QImage> decoded_;
    mutable QHash<int32_t, std::shared_future<QImage>> decoding_;
};
