// The home list's cache of descriptions on any bytes: it lies in the
// user's cache folder, where anything may become of it. Reading it must
// never crash, leak or hang, a file it never saw must find nothing, and
// whatever it held, what a listing adds must read back from what it wrote.

#include "FuzzFiles.h"

#include "select/DescriptionCache.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString file = Fuzz::writeFile(QStringLiteral("cache"), bytes);
    // Listings an hour after every stamp below: all of them settled.
    const qint64 later = 2'000'000'000'000'000'000;
    const QString folder = QStringLiteral("/fuzz/listed/");
    const FileStamp stamp{83, 1'000, 2'000, 7};
    DescriptionCache cache(file, later);
    if (cache.find(folder, QStringLiteral("new.QZ2"), stamp))
        Fuzz::diverged(QStringLiteral("a file the cache never saw"), QStringLiteral("nothing"),
                       QStringLiteral("an answer"));
    cache.remember(folder, QStringLiteral("new.QZ2"), stamp, QStringLiteral("Added \u00e9"));
    cache.save();
    DescriptionCache again(file, later);
    const QString *found = again.find(folder, QStringLiteral("new.QZ2"), stamp);
    if (!found || *found != QStringLiteral("Added \u00e9"))
        Fuzz::diverged(QStringLiteral("what a listing added, read back"), QStringLiteral("Added \u00e9"),
                       found ? *found : QStringLiteral("nothing"));
    return 0;
}
