#include "PictureLibrary.h"

#include "platform/EveryCore.h"

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

// The picture with this id from the library's bitmap operation, drawable.
QImage decode(int32_t (*loadBitmap)(int32_t, const unsigned char **, uint32_t *), int32_t id)
{
    const unsigned char *data = nullptr;
    uint32_t size = 0;
    if (loadBitmap(id, &data, &size) == 0 && data && size > 0)
        return drawable(QImage::fromData(data, int(size), "PNG"));
    return QImage();
}

} // namespace

PictureLibrary::PictureLibrary(LoadedLibrary library) : library_(std::move(library)) {}

PictureLibrary::~PictureLibrary()
{
    // The library's bytes must outlive every decoding of them.
    for (const auto &decoding : std::as_const(decoding_))
        decoding.wait();
}

void PictureLibrary::prefetch(std::initializer_list<int32_t> ids)
{
    for (const int32_t id : ids) {
        if (decoded_.contains(id) || decoding_.contains(id))
            continue;
        std::future<QImage> decoding = OnAnotherCore([load = loadBitmap_, id] { return decode(load, id); });
        if (!decoding.valid())
            return; // no thread to be had: decoded when asked
        decoding_.insert(id, decoding.share());
    }
}

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
    QImage image;
    const auto decoding = decoding_.constFind(id);
    if (decoding != decoding_.constEnd()) {
        image = decoding->get();
        decoding_.erase(decoding);
    } else {
        image = decode(loadBitmap_, id);
    }
    if (!image.isNull())
        decoded_.insert(id, image);
    return image;
}
