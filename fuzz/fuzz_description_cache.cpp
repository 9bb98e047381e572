// The home list's cache of descriptions on any bytes: it lies in the
// user's cache folder, where anything may become of it. Reading it must
// never crash, leak or hang, a file it never saw must find nothing, a
// folder of unknown stamp is never taken on trust, and whatever it held,
// what a listing adds must read back from what it wrote. The input is tried
// as it is and with its own checksum after it, so that the reading behind
// the checksum is reached.

#include "FuzzFiles.h"

#include "select/DescriptionCache.h"

#include <zlib.h>

namespace {

QByteArray sealed(QByteArray bytes)
{
    const quint32 crc = quint32(crc32(crc32(0L, Z_NULL, 0), reinterpret_cast<const Bytef *>(bytes.constData()), uInt(bytes.size())));
    return bytes.append(reinterpret_cast<const char *>(&crc), sizeof crc);
}

void check(const QByteArray &bytes)
{
    const QString file = Fuzz::writeFile(QStringLiteral("cache"), bytes);
    // Listings an hour after every stamp below: all of them settled.
    const qint64 later = 2'000'000'000'000'000'000;
    const QString folder = QStringLiteral("/fuzz/listed/");
    const FileStamp stamp{83, 1'000, 2'000, 7};
    const FileStamp folderStamp{4096, 3'000, 4'000, 9};
    DescriptionCache cache(file, later);
    const QList<DescriptionCache::KnownFile> *anyFolder = cache.relistUnchanged(QStringLiteral("/"), FileStamp{});
    if (anyFolder)
        Fuzz::diverged(QStringLiteral("a folder of unknown stamp"), QStringLiteral("never trusted"),
                       QStringLiteral("relisted"));
    if (cache.find(folder, QStringLiteral("new.QZ2"), stamp))
        Fuzz::diverged(QStringLiteral("a file the cache never saw"), QStringLiteral("nothing"),
                       QStringLiteral("an answer"));
    cache.listFolder(folder, folderStamp);
    cache.remember(folder, QStringLiteral("new.QZ2"), stamp, QStringLiteral("Added \u00e9"));
    cache.save();
    DescriptionCache again(file, later);
    const QString *found = again.find(folder, QStringLiteral("new.QZ2"), stamp);
    if (!found || *found != QStringLiteral("Added \u00e9"))
        Fuzz::diverged(QStringLiteral("what a listing added, read back"), QStringLiteral("Added \u00e9"),
                       found ? *found : QStringLiteral("nothing"));
    const QList<DescriptionCache::KnownFile> *relisted = again.relistUnchanged(folder, folderStamp);
    if (!relisted || relisted->size() != 1 || relisted->first().name != QStringLiteral("new.QZ2"))
        Fuzz::diverged(QStringLiteral("the unchanged folder, relisted"), QStringLiteral("new.QZ2"),
                       relisted ? QString::number(relisted->size()) + QStringLiteral(" files")
                                : QStringLiteral("nothing"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    check(bytes);
    check(sealed(bytes));
    return 0;
}
