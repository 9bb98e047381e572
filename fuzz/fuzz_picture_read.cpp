// Any bytes as a clue's picture, under the names of every kind the game
// reads: it shows or counts as missing, with a reason, and never crashes,
// leaks or waits, whatever a drawing links or a header claims.

#include "FuzzApplication.h"
#include "FuzzFiles.h"

#include "platform/PictureFile.h"

#include <fuzzer/FuzzedDataProvider.h>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    Fuzz::ensureGuiApplication();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider input(data, size);
    static const char *const kNames[] = {"p.png", "p.jpg", "p.gif", "p.bmp", "p.ico", "p.xpm",
                                         "p.xbm", "p.ppm", "p.svg", "p.svgz", "p"};
    const char *name = kNames[input.ConsumeIntegralInRange<size_t>(0, std::size(kNames) - 1)];
    const QSize fit(input.ConsumeIntegralInRange(1, 1024), input.ConsumeIntegralInRange(1, 768));
    const std::string rest = input.ConsumeRemainingBytesAsString();
    const PictureFile picture = ReadPictureFile(Fuzz::writeFile(QLatin1String(name), QByteArray::fromStdString(rest)), fit);
    if (picture.image.isNull() == picture.problem.isEmpty())
        Fuzz::diverged(QStringLiteral("a picture read"), QStringLiteral("an image or a reason, not both"),
                       picture.image.isNull() ? QStringLiteral("neither") : QStringLiteral("both"));
    return 0;
}
