#include "QuestionSet.h"

#include <QDir>
#include <QFileInfo>

#include "platform/NumberText.h"
#include "platform/GetPrivateProfileString.h"
#include "platform/ModuleFileName.h"
#include "platform/Windows1252.h"

#include <QStringList>

namespace {

const QString kNoneMarker = QStringLiteral("-> NONE <-");
const QString kNothing = QStringLiteral("Nothing");

QString numbered(const char *key, int n)
{
    return QLatin1String(key) + QString::number(n);
}

struct KeyNames {
    QString answer, question;
};

// Reads the titles of one regular round; the first missing title ends the
// round's list of categories.
void loadTitles(QuestionSet &set, int round, const QString &section, const QString &firstDefault,
                const QString &file)
{
    auto &titles = set.Categories[size_t(round)];
    titles[0].Title = ReadIniValue(section, QStringLiteral("Category0"), firstDefault, file);
    for (int i = 1; i < 6; ++i) {
        const QString title = ReadIniValue(section, numbered("Category", i), kNoneMarker, file);
        if (title == kNoneMarker) {
            titles[size_t(i)].Title.clear();
            set.CategoryCount[size_t(round)] = qint16(i);
            return;
        }
        titles[size_t(i)].Title = title;
    }
    set.CategoryCount[size_t(round)] = 6;
}

void loadTexts(QuestionSet &set, int round, const QString &sectionPrefix, const KeyNames &keys, const QString &file)
{
    for (int i = 0; i < set.CategoryCount[size_t(round)]; ++i) {
        CategoryEntry &entry = set.Categories[size_t(round)][size_t(i)];
        const QString section = sectionPrefix + QString::number(i);
        for (int j = 0; j < 5; ++j) {
            entry.Answer[size_t(j)] = ReadIniValue(section, keys.answer + QString::number(j), kNothing, file);
            entry.Question[size_t(j)] = ReadIniValue(section, keys.question + QString::number(j), kNothing, file);
            entry.Picture[size_t(j)] = ReadIniValue(section, QStringLiteral("Picture") + QString::number(j), QString(), file);
        }
    }
}

qint16 loadTimer(const QString &file)
{
    const std::optional<double> number = WholeTextNumber(ReadIniValue(QStringLiteral("Round1"),
                                                                      QStringLiteral("Timer"), QString(), file));
    if (!number)
        return 20;
    const long long seconds = RoundHalfEven(*number);
    return seconds < 5 || seconds > 60 ? qint16(20) : qint16(seconds);
}

void appendRound(QStringList &lines, const QuestionSet &set, int round)
{
    const auto &categories = set.Categories[size_t(round)];
    const int count = set.CategoryCount[size_t(round)];
    for (int i = 0; i < count; ++i)
        lines << numbered("Category", i) + QLatin1Char('=') + categories[size_t(i)].Title;
    const QString prefix = round == 0 ? QStringLiteral("[Round1Category") : QStringLiteral("[Round2Category");
    for (int i = 0; i < count; ++i) {
        lines << QString() << prefix + QString::number(i) + QLatin1Char(']');
        for (int j = 0; j < 5; ++j) {
            lines << numbered("Answer", j) + QLatin1Char('=') + categories[size_t(i)].Answer[size_t(j)];
            lines << numbered("Question", j) + QLatin1Char('=') + categories[size_t(i)].Question[size_t(j)];
            // Only a set with pictures carries the key: one without is
            // written byte for byte as ever, and older games skip the key.
            if (!categories[size_t(i)].Picture[size_t(j)].isEmpty())
                lines << numbered("Picture", j) + QLatin1Char('=') + categories[size_t(i)].Picture[size_t(j)];
        }
    }
}

// The 8-bit code page when every character fits and the bytes cannot be
// mistaken for UTF-8 when read back; otherwise UTF-8 with its mark.
QByteArray encodeForFile(const QString &text)
{
    bool fits = false;
    const QByteArray eightBit = Windows1252::encode(text, &fits);
    if (fits && !Utf8::looksLikeUtf8(eightBit))
        return eightBit;
    return QByteArray(Utf8::kByteOrderMark) + text.toUtf8();
}

} // namespace

QString ReadIniValue(const QString &Section, const QString &Key, const QString &Default, const QString &FileName)
{
    const QString value = GetPrivateProfileString(Section, Key, Default, FileName);
    return value.isEmpty() ? Default : value;
}

QString FileBaseOf(const QString &FileName)
{
    return ModuleFileName::withoutExtension(FileName);
}

QString WithQz2Extension(const QString &FileName)
{
    return FileName.right(4).compare(QStringLiteral(".QZ2"), Qt::CaseInsensitive) == 0
               ? FileName
               : FileName + QStringLiteral(".QZ2");
}

bool IsLegacyFileName(const QString &FileName)
{
    return FileName.right(4).compare(QStringLiteral(".QZA"), Qt::CaseInsensitive) == 0;
}

QuestionSet LoadQuestionSet(const QString &FileName)
{
    QuestionSet set;
    const bool legacy = IsLegacyFileName(FileName);
    const KeyNames keys = legacy ? KeyNames{QStringLiteral("Question"), QStringLiteral("Answer")}
                                 : KeyNames{QStringLiteral("Answer"), QStringLiteral("Question")};

    set.Description = ReadIniValue(QStringLiteral("Round1"), QStringLiteral("Description"), QString(), FileName);
    set.Timer = loadTimer(FileName);

    loadTitles(set, 0, QStringLiteral("Round1"), kNothing, FileName);
    loadTexts(set, 0, QStringLiteral("Round1Category"), keys, FileName);

    const QString round2 = ReadIniValue(QStringLiteral("Round2"), QStringLiteral("Category0"), kNoneMarker, FileName);
    if (round2 == kNoneMarker) {
        set.RoundCount = 1;
        set.Categories[1][0].Title.clear();
    } else {
        set.RoundCount = 2;
        loadTitles(set, 1, QStringLiteral("Round2"), kNoneMarker, FileName);
        loadTexts(set, 1, QStringLiteral("Round2Category"), keys, FileName);
    }

    CategoryEntry &final = set.Categories[2][0];
    final.Title = ReadIniValue(QStringLiteral("Final"), QStringLiteral("Category"), kNoneMarker, FileName);
    final.Answer[0] = ReadIniValue(QStringLiteral("Final"), keys.answer, kNothing, FileName);
    final.Question[0] = ReadIniValue(QStringLiteral("Final"), keys.question, kNothing, FileName);
    final.Picture[0] = ReadIniValue(QStringLiteral("Final"), QStringLiteral("Picture"), QString(), FileName);
    return set;
}

QByteArray QuestionSetFileBytes(const QuestionSet &set)
{
    QStringList lines;
    lines << QStringLiteral("[Round1]") << QStringLiteral("Description=") + set.Description
          << QStringLiteral("Timer=") + QString::number(set.Timer);
    appendRound(lines, set, 0);
    if (set.RoundCount == 2) {
        lines << QString() << QStringLiteral("[Round2]");
        appendRound(lines, set, 1);
    }
    const CategoryEntry &final = set.Categories[2][0];
    lines << QString() << QStringLiteral("[Final]") << QStringLiteral("Category=") + final.Title
          << QStringLiteral("Answer=") + final.Answer[0] << QStringLiteral("Question=") + final.Question[0];
    if (!final.Picture[0].isEmpty())
        lines << QStringLiteral("Picture=") + final.Picture[0];
    return encodeForFile(lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"));
}

FileError WriteQuestionSet(const QuestionSet &set, const QString &FileName)
{
    return WriteFileReplacing(WithQz2Extension(FileName), QuestionSetFileBytes(set));
}

namespace {

// Whether a folder, through whatever links lie on the way, is inside the
// folder inside (a canonical path ending in "/"); a part not made yet
// counts by the nearest part that is.
bool staysInside(const QString &folder, const QString &inside)
{
    QFileInfo at(folder);
    while (!at.exists() && at.absolutePath() != at.absoluteFilePath())
        at = QFileInfo(at.absolutePath());
    return (at.canonicalFilePath() + QLatin1Char('/')).startsWith(inside);
}

} // namespace

bool IsPictureInSetFolder(const QString &name)
{
    const QString clean = QDir::cleanPath(name);
    return !name.isEmpty() && QFileInfo(name).isRelative() && clean != QStringLiteral("..") &&
           !clean.startsWith(QStringLiteral("../"));
}

FileError CopySetPictures(const QString &fromSet, const QString &toSet)
{
    return CopySetPictures(LoadQuestionSet(fromSet), QFileInfo(fromSet).absolutePath(), QFileInfo(toSet).absolutePath());
}

FileError CopySetPictures(const QuestionSet &set, const QString &fromFolder, const QString &toFolder)
{
    const QDir from(fromFolder), to(toFolder);
    if (from == to)
        return {};
    QStringList names;
    for (const auto &round : set.Categories) {
        for (const CategoryEntry &entry : round)
            names += QStringList(entry.Picture.begin(), entry.Picture.end());
    }
    FileError first;
    const QString inside = QFileInfo(to.absolutePath()).canonicalFilePath() + QLatin1Char('/');
    for (const QString &name : names) {
        if (!IsPictureInSetFolder(name) || !QFileInfo(from.filePath(name)).isFile())
            continue;
        const QString clean = QDir::cleanPath(name);
        const QString target = to.filePath(clean);
        // A folder on the way may be a link that leads out of the target.
        if (!staysInside(QFileInfo(target).absolutePath(), inside))
            continue;
        QDir().mkpath(QFileInfo(target).absolutePath());
        const FileError e = CopyFileReplacing(from.filePath(clean), target);
        if (e && !first)
            first = e;
    }
    return first;
}
