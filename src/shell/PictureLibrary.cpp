#include "PictureLibrary.h"

PictureLibrary::PictureLibrary(LoadedLibrary library) : library_(std::move(library)) {}

std::unique_ptr<PictureLibrary> PictureLibrary::load(const QString &absolutePath)
{
    LoadedLibrary library = LoadLibraryFrom(absolutePath);
    if (!library)
        return nullptr;
    std::unique_ptr<PictureLibrary> pictures(new PictureLibrary(std::move(library)));
    pictures->loadBitmap_ = reinterpret_cast<decltype(loadBitmap_)>(pictures->library_->resolve("PLOV_LoadBitmap"));
    if (!pictures->loadBitmap_) {
        return nullptr;
    }
    return pictures;
}

QImage PictureLibrary::bitmap(int32_t id) const
{
    const auto known = decoded_.constFind(id);
    if (known != decoded_.constEnd())
        return *known;
    const unsigned char *data = nullptr;
    uint32_t size = 0;
    QImage image;
    if (loadBitmap_(id, &data, &size) == 0 && data && size > 0)
        // Decoded once into the form every drawing uses: each board then
        // shares this very image, and so do the scaled copies Qt caches.
        image = QImage::fromData(data, int(size), "PNG").convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (!image.isNull())
        decoded_.insert(id, image);
    return image;
}
