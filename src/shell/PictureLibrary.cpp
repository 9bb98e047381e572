#include "PictureLibrary.h"

namespace {

bool anySeeThrough(const QImage &image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < argb.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x) {
            if (qAlpha(line[x]) != 255)
                return true;
        }
    }
    return false;
}

// Decoded once into the form every drawing uses, so that each board shares
// this very image (and Qt's cache its scaled copies); a picture without
// see-through parts says so, and covers what lies beneath it.
QImage drawable(const QImage &decoded)
{
    if (decoded.isNull())
        return decoded;
    return decoded.convertToFormat(decoded.hasAlphaChannel() && anySeeThrough(decoded) ? QImage::Format_ARGB32_Premultiplied
                                                                                         : QImage::Format_RGB32);
}

} // namespace

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
        image = drawable(QImage::fromData(data, int(size), "PNG"));
    if (!image.isNull())
        decoded_.insert(id, image);
    return image;
}
