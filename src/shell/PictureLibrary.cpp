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
        image = QImage::fromData(data, int(size), "PNG");
    if (!image.isNull())
        decoded_.insert(id, image);
    return image;
}
