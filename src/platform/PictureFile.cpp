#include "PictureFile.h"

#include <QCoreApplication>
#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <zlib.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Larger than any photograph a clue needs; a larger file is not read.
constexpr qint64 kLargestFile = 64 * 1024 * 1024;

// The bytes of an ordinary file, read without ever waiting on anything
// else; false and *problem when there are none.
bool readOrdinaryFile(const QString &path, QByteArray *bytes, QString *problem)
{
    const QByteArray native = QFile::encodeName(path);
    struct stat st {};
    // Looked at before it is opened (opening a device can itself act), and
    // again once open, in case it was swapped meanwhile.
    if (::stat(native.constData(), &st) != 0 || !S_ISREG(st.st_mode)) {
        *problem = QCoreApplication::translate("PictureFile", "is missing");
        return false;
    }
    const int fd = ::open(native.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0) {
        *problem = QCoreApplication::translate("PictureFile", "is missing");
        return false;
    }
    const bool ordinary = ::fstat(fd, &st) == 0 && S_ISREG(st.st_mode);
    if (ordinary && st.st_size > kLargestFile)
        *problem = QCoreApplication::translate("PictureFile", "is too large (%1 MB)").arg(st.st_size / (1024 * 1024));
    else if (!ordinary)
        *problem = QCoreApplication::translate("PictureFile", "is missing");
    for (char chunk[65536]; ordinary && problem->isEmpty();) {
        const ssize_t n = ::read(fd, chunk, sizeof chunk);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0 || bytes->size() + n > kLargestFile) {
            if (n != 0)
                *problem = QCoreApplication::translate("PictureFile", "cannot be read");
            break;
        }
        bytes->append(chunk, n);
    }
    ::close(fd);
    return problem->isEmpty();
}

// A compressed drawing (.svgz) unpacked, up to the same size; empty when
// it is damaged or larger.
QByteArray gunzip(const QByteArray &packed)
{
    z_stream z{};
    if (inflateInit2(&z, 16 + MAX_WBITS) != Z_OK)
        return {};
    z.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.constData()));
    z.avail_in = uInt(packed.size());
    QByteArray out;
    int status = Z_OK;
    while (status == Z_OK && out.size() < kLargestFile) {
        char chunk[65536];
        z.next_out = reinterpret_cast<Bytef *>(chunk);
        z.avail_out = sizeof chunk;
        status = inflate(&z, Z_NO_FLUSH);
        out.append(chunk, qsizetype(sizeof chunk - z.avail_out));
    }
    inflateEnd(&z);
    return status == Z_STREAM_END ? out : QByteArray();
}

// A drawing may link other files (an <image> not embedded in it), which
// the drawing library would open as they are, a pipe that waits for ever
// included: such links go, and the rest of the drawing shows. Links inside
// the drawing ("#…") and embedded pictures ("data:…") stay.
QByteArray withoutLinkedFiles(const QByteArray &svg)
{
    if (!svg.contains("href"))
        return svg;
    QXmlStreamReader in(svg);
    QByteArray out;
    QXmlStreamWriter w(&out);
    while (!in.atEnd()) {
        if (in.readNext() != QXmlStreamReader::StartElement) {
            if (!in.hasError())
                w.writeCurrentToken(in);
            continue;
        }
        QXmlStreamAttributes kept;
        bool linked = false;
        for (const QXmlStreamAttribute &a : in.attributes()) {
            const QStringView value = a.value().trimmed();
            if (a.name() != QLatin1String("href") || value.startsWith(QLatin1Char('#')) ||
                value.startsWith(QLatin1String("data:"), Qt::CaseInsensitive))
                kept.append(a);
            else
                linked = true;
        }
        if (linked && in.name() == QLatin1String("image")) {
            in.skipCurrentElement(); // a picture with nothing to show
            continue;
        }
        w.writeStartElement(in.namespaceUri().toString(), in.name().toString());
        for (const QXmlStreamNamespaceDeclaration &ns : in.namespaceDeclarations())
            w.writeNamespace(ns.namespaceUri().toString(), ns.prefix().toString());
        w.writeAttributes(kept);
    }
    return in.hasError() ? QByteArray() : out;
}

} // namespace

PictureFile ReadPictureFile(const QString &path, QSize fitInto)
{
    PictureFile result;
    QByteArray bytes;
    if (!readOrdinaryFile(path, &bytes, &result.problem))
        return result;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    const QByteArray format = QImageReader::imageFormat(&buffer);
    if (format == "svg" || format == "svgz") {
        bytes = withoutLinkedFiles(format == "svgz" ? gunzip(bytes) : bytes);
        buffer.close();
        buffer.setBuffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
    }
    QImageReader reader(&buffer, format == "svgz" ? QByteArray("svg") : format);
    reader.setAutoTransform(true);
    const QSize natural = reader.size();
    if (fitInto.isValid() && natural.isValid() && !natural.isEmpty() &&
        (reader.format() == "svg" || natural.width() > fitInto.width() || natural.height() > fitInto.height()))
        reader.setScaledSize(natural.scaled(fitInto, Qt::KeepAspectRatio));
    result.image = reader.read();
    if (result.image.isNull())
        result.problem = QCoreApplication::translate("PictureFile", "cannot be read as a picture (%1)").arg(reader.errorString());
    return result;
}
