// qz2 check and qz2 show on any set, one that names pictures of every kind
// and files that are none (a pipe, a folder, a device): a report, never a
// crash, a leak or a wait; and what show prints is always one JSON object.

#include "FuzzApplication.h"
#include "FuzzFiles.h"

#include "Commands.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

#include <fuzzer/FuzzedDataProvider.h>

#include <sys/stat.h>

namespace {

// Beside the set: the picture seeds under pics/, and under odd/ a pipe, a
// folder and a device, as a set may name them.
void layOutPictures()
{
    const QDir folder(Fuzz::folder());
    folder.mkpath(QStringLiteral("pics"));
    folder.mkpath(QStringLiteral("odd/folder.png"));
    const QDir seeds(QStringLiteral(QUIZZARR_PICTURE_SEEDS));
    for (const QString &name : seeds.entryList(QDir::Files))
        QFile::copy(seeds.filePath(name), folder.filePath(QStringLiteral("pics/") + name));
    ::mkfifo(QFile::encodeName(folder.filePath(QStringLiteral("odd/pipe.png"))).constData(), 0600);
    QFile::link(QStringLiteral("/dev/zero"), folder.filePath(QStringLiteral("odd/device.png")));
}

QString run(const QStringList &args)
{
    QString out, err;
    QTextStream o(&out), e(&err);
    RunQz2(args, o, e);
    o.flush();
    return out;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    Fuzz::ensureGuiApplication();
    layOutPictures();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // Every key qz2 reads streams the whole file, and under the fuzzer's
    // instrumentation each byte costs: a set's size is plenty here, and
    // the reader's way with huge files has a target of its own.
    if (size > 4096)
        return 0;
    const QString set = Fuzz::writeFile(QStringLiteral("set.QZ2"), QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    run({QStringLiteral("check"), set});
    const QString shown = run({QStringLiteral("show"), set});
    QJsonParseError error{};
    const QJsonDocument json = QJsonDocument::fromJson(shown.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !json.isObject())
        Fuzz::diverged(QStringLiteral("qz2 show"), QStringLiteral("one JSON object"), Fuzz::visible(shown.left(2000)));
    return 0;
}
