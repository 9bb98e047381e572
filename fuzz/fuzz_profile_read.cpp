// The streaming profile-string reader against the whole-file reference:
// any file, a handful of reads of it, and every answer must be the same.
//
// Most reads ask for keys the file holds, in the section they stand in (so
// that reads hit, also past a section's first appearance), one asks for
// names of the game's own; each in its own letter case or another. The
// default is empty, ordinary, the editor's marker, or longer than a value
// may be.

#include "FuzzFiles.h"
#include "ReferenceProfile.h"

#include "platform/GetPrivateProfileString.h"

#include <array>

namespace {

constexpr int kReadsOfKeysFound = 8;

const std::array<QString, 7> kSections = {
    QStringLiteral("Round1"), QStringLiteral("Round2"), QStringLiteral("Final"), QStringLiteral("Round1Category0"),
    QStringLiteral("Round2Category5"), QStringLiteral("A"), QString(),
};
const std::array<QString, 9> kKeys = {
    QStringLiteral("Description"), QStringLiteral("Timer"), QStringLiteral("Category0"),
    QStringLiteral("Category"), QStringLiteral("Answer4"), QStringLiteral("Question0"),
    QStringLiteral("Answer"), QStringLiteral("k"), QString(),
};

// A default longer than a value may be, with a character of two UTF-16
// units across the cut.
QString longDefault()
{
    QString text(1998, QLatin1Char('d'));
    text += QString::fromUcs4(U"\U0001F600") + QString(100, QLatin1Char('e'));
    return text;
}

// The name as it is, in capitals or in small letters; two bits choose.
QString inCase(const QString &name, unsigned bits)
{
    switch (bits & 3) {
    case 1: return name.toUpper();
    case 2: return name.toLower();
    default: return name;
    }
}

void compareRead(const ReferenceProfile &reference, const QString &path, qsizetype fileSize,
                 const QString &section, const QString &key, const QString &fallback)
{
    const QString expected = reference.read(section, key, fallback);
    const QString found = GetPrivateProfileString(section, key, fallback, path);
    if (found == expected)
        return;
    Fuzz::diverged(QStringLiteral("[%1] %2 (default of %3 characters) in a file of %4 bytes read as %5")
                       .arg(Fuzz::visible(section), Fuzz::visible(key))
                       .arg(fallback.size())
                       .arg(fileSize)
                       .arg(reference.isUtf8() ? QStringLiteral("UTF-8") : QStringLiteral("Windows-1252")),
                   expected, found);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider input(data, size);
    const auto firstKey = input.ConsumeIntegral<quint8>();
    const auto cases = input.ConsumeIntegral<quint16>();
    const auto fixedNames = input.ConsumeIntegral<quint8>();
    const std::array<QString, 4> defaults = {QString(), QStringLiteral("DEFAULT"), QStringLiteral("-> NONE <-"),
                                             longDefault()};
    const QString &fallback = defaults[input.ConsumeIntegralInRange<size_t>(0, defaults.size() - 1)];
    const QByteArray bytes = Fuzz::shapedFile(input);
    const QString path = Fuzz::writeFile(QStringLiteral("profile.QZ2"), bytes);
    const ReferenceProfile reference(bytes);

    const auto keys = reference.keys();
    for (qsizetype i = 0; i < qMin<qsizetype>(keys.size(), kReadsOfKeysFound); ++i) {
        const auto &[section, key] = keys[(firstKey + i) % keys.size()];
        compareRead(reference, path, bytes.size(), inCase(section, cases >> (2 * i)), inCase(key, cases >> (2 * i + 1)),
                    fallback);
    }
    compareRead(reference, path, bytes.size(), kSections[(fixedNames & 0xF) % kSections.size()],
                kKeys[(fixedNames >> 4) % kKeys.size()], fallback);
    return 0;
}
