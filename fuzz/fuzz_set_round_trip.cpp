// Any set the editor can hold, written with WriteQuestionSet and loaded
// back with LoadQuestionSet: every text must come back as the format
// promises. A text without blanks at its ends, without a pair of enclosing
// quotation marks, not empty and at most 1999 characters long comes back
// exactly as written; any other as one read makes of it, with the loader's
// defaults where it reads empty. Texts hold any character but the line
// breaks (every field of the editor is a single line).
//
// The input's remaining bytes are the texts, one a line, read as UTF-8 or
// as Windows-1252; texts beyond them are distinct fillers, so a text read
// into the wrong place shows.

#include "FuzzFiles.h"
#include "ReferenceProfile.h"

#include "platform/Windows1252.h"
#include "questions/QuestionSet.h"

#include <QStringDecoder>

namespace {

const QString kNone = QStringLiteral("-> NONE <-");
const QString kNothing = QStringLiteral("Nothing");
constexpr int kTexts = 1 + 3 * 6 * 11;

QStringList textsOf(QByteArrayView bytes, bool utf8)
{
    QStringList texts;
    for (QByteArrayView line : QByteArray(bytes.data(), bytes.size()).split('\n')) {
        QByteArray text = line.toByteArray();
        text.replace('\r', QByteArray());
        QStringDecoder decoder(QStringDecoder::Utf8,
                               QStringDecoder::Flag::ConvertInitialBom | QStringDecoder::Flag::Stateless);
        texts << (utf8 ? QString(decoder.decode(text)) : Windows1252::decode(text));
    }
    return texts;
}

QuestionSet setFrom(FuzzedDataProvider &input)
{
    QuestionSet set;
    set.RoundCount = input.ConsumeBool() ? 2 : 1;
    set.CategoryCount[0] = input.ConsumeIntegralInRange<qint16>(1, 6);
    set.CategoryCount[1] = input.ConsumeIntegralInRange<qint16>(1, 6);
    set.Timer = input.ConsumeIntegral<qint16>();
    const int longOne = input.ConsumeIntegralInRange(0, 2 * kTexts);
    const bool utf8 = input.ConsumeBool();
    const std::string rest = input.ConsumeRemainingBytesAsString();
    const QStringList given = textsOf(QByteArrayView(rest.data(), qsizetype(rest.size())), utf8);

    int n = 0;
    const auto next = [&]() {
        QString text = n < given.size() ? given[n] : QStringLiteral("t%1").arg(n);
        if (n++ == longOne) // long enough to be cut
            text = (text.isEmpty() ? QStringLiteral("L") : text).repeated(2100 / qMax<qsizetype>(1, text.size()) + 1);
        return text;
    };
    set.Description = next();
    for (auto &round : set.Categories) {
        for (CategoryEntry &entry : round) {
            entry.Title = next();
            for (size_t j = 0; j < 5; ++j) {
                entry.Answer[j] = next();
                entry.Question[j] = next();
            }
        }
    }
    return set;
}

QString asRead(const QString &written, const QString &defaultValue)
{
    const QString value = ReferenceProfile::valueAsRead(written);
    return value.isEmpty() ? defaultValue : value;
}

// The titles and texts of regular round r as the loader reads them back;
// false when the round reads as missing.
bool expectRound(const QuestionSet &written, QuestionSet &expected, size_t r)
{
    const auto &from = written.Categories[r];
    auto &to = expected.Categories[r];
    const bool present = r == 0 || written.RoundCount == 2;
    const qint16 count = present ? written.CategoryCount[r] : 0;
    if (r == 1 && (count == 0 || asRead(from[0].Title, kNone) == kNone))
        return false;
    to[0].Title = asRead(from[0].Title, r == 0 ? kNothing : kNone);
    expected.CategoryCount[r] = 6;
    for (qint16 i = 1; i < 6; ++i) {
        const QString title = i < count ? asRead(from[size_t(i)].Title, kNone) : kNone;
        if (title == kNone) {
            expected.CategoryCount[r] = i;
            break;
        }
        to[size_t(i)].Title = title;
    }
    for (size_t i = 0; i < size_t(expected.CategoryCount[r]); ++i) {
        for (size_t j = 0; j < 5; ++j) {
            to[i].Answer[j] = asRead(from[i].Answer[j], kNothing);
            to[i].Question[j] = asRead(from[i].Question[j], kNothing);
        }
    }
    return true;
}

QuestionSet expectedBack(const QuestionSet &written)
{
    QuestionSet expected; // as the editor's New leaves it
    expected.Description = asRead(written.Description, QString());
    expected.Timer = written.Timer >= 5 && written.Timer <= 60 ? written.Timer : qint16(20);
    expectRound(written, expected, 0);
    expected.RoundCount = expectRound(written, expected, 1) ? 2 : 1;
    const CategoryEntry &final = written.Categories[2][0];
    expected.Categories[2][0].Title = asRead(final.Title, kNone);
    expected.Categories[2][0].Answer[0] = asRead(final.Answer[0], kNothing);
    expected.Categories[2][0].Question[0] = asRead(final.Question[0], kNothing);
    return expected;
}

void compare(const QString &where, const QString &expected, const QString &found)
{
    if (found != expected)
        Fuzz::diverged(where, expected, found);
}

void compareNumber(const QString &where, int expected, int found)
{
    compare(where, QString::number(expected), QString::number(found));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider input(data, size);
    const QuestionSet written = setFrom(input);
    const QString path = QStringLiteral("%1/round-trip.QZ2").arg(Fuzz::folder());
    if (const FileError error = WriteQuestionSet(written, path))
        Fuzz::diverged(QStringLiteral("the set could not be written"), QString(), error.description);
    const QuestionSet back = LoadQuestionSet(path);
    const QuestionSet expected = expectedBack(written);

    compare(QStringLiteral("Description"), expected.Description, back.Description);
    compareNumber(QStringLiteral("Timer"), expected.Timer, back.Timer);
    compareNumber(QStringLiteral("RoundCount"), expected.RoundCount, back.RoundCount);
    for (size_t r = 0; r < 3; ++r) {
        compareNumber(QStringLiteral("CategoryCount(%1)").arg(r), expected.CategoryCount[r], back.CategoryCount[r]);
        for (size_t c = 0; c < 6; ++c) {
            const CategoryEntry &e = expected.Categories[r][c];
            const CategoryEntry &b = back.Categories[r][c];
            const QString where = QStringLiteral("round %1, category %2").arg(r).arg(c);
            compare(where + QStringLiteral(": Title"), e.Title, b.Title);
            for (size_t j = 0; j < 5; ++j) {
                compare(where + QStringLiteral(": Answer(%1)").arg(j), e.Answer[j], b.Answer[j]);
                compare(where + QStringLiteral(": Question(%1)").arg(j), e.Question[j], b.Question[j]);
            }
        }
    }
    return 0;
}
