#include "FuzzFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace Fuzz {

QString folder()
{
    static const QTemporaryDir dir;
    if (!dir.isValid()) {
        std::fprintf(stderr, "no temporary folder: %s\n", qPrintable(dir.errorString()));
        std::abort();
    }
    return dir.path();
}

QString writeFile(const QString &name, const QByteArray &bytes)
{
    const QString path = QDir(folder()).filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size()) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        std::abort();
    }
    return path;
}

QByteArray shapedFile(FuzzedDataProvider &input)
{
    static const std::array<QByteArray, 7> kRuns = {
        QByteArray(" "), QByteArray("\t"), QByteArray("x"), QByteArray("\r\n"),
        QByteArray("k=v\r\n"), QByteArray("\xC3\xA9"), QByteArray("\n"),
    };
    struct Run {
        size_t kind;
        int reach;  // up to the first or second boundary, or (mostly) a short run
        int slack;  // how far before that boundary the run stops
        quint16 at; // where, as a fraction of the content so far
    };
    std::array<Run, 2> runs{};
    const int count = input.ConsumeIntegralInRange(0, 2);
    for (int i = 0; i < count; ++i) {
        runs[size_t(i)] = {input.ConsumeIntegralInRange<size_t>(0, kRuns.size() - 1),
                           input.ConsumeIntegralInRange(-13, 2), input.ConsumeIntegralInRange(-8, 300),
                           input.ConsumeIntegral<quint16>()};
    }
    const std::string rest = input.ConsumeRemainingBytesAsString();
    QByteArray file(rest.data(), qsizetype(rest.size()));
    for (int i = 0; i < count; ++i) {
        const Run &run = runs[size_t(i)];
        const qsizetype at = file.size() * run.at / 65536;
        // Long files are slow to read under the fuzzer's instrumentation:
        // one run in eight reaches a boundary, the others stay short.
        const qsizetype length = run.reach <= 0 ? run.slack + 8 : qMax<qsizetype>(0, run.reach * kChunk - at - run.slack);
        const QByteArray &unit = kRuns[run.kind];
        QByteArray filler = unit.repeated(length / unit.size() + 1);
        filler.truncate(length);
        file.insert(at, filler);
    }
    return file;
}

QString visible(const QString &text)
{
    constexpr qsizetype kShown = 80;
    QString out;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.size() > 2 * kShown && i == kShown) {
            out += QStringLiteral("[... %1 characters ...]").arg(text.size() - 2 * kShown);
            i = text.size() - kShown;
        }
        const char16_t c = text.at(i).unicode();
        if (c >= 0x20 && c < 0x7F && c != '\\')
            out += QChar(c);
        else
            out += QStringLiteral("\\x{%1}").arg(uint(c), 0, 16);
    }
    return out;
}

void diverged(const QString &what, const QString &expected, const QString &found)
{
    std::fprintf(stderr, "\n=== %s\n    expected (%lld): \"%s\"\n    found    (%lld): \"%s\"\n", qPrintable(what),
                 static_cast<long long>(expected.size()), qPrintable(visible(expected)),
                 static_cast<long long>(found.size()), qPrintable(visible(found)));
    std::abort();
}

} // namespace Fuzz
