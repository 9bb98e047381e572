#include "SetCheck.h"

#include "platform/GetPrivateProfileString.h"
#include "platform/PictureFile.h"
#include "questions/GameReads.h"
#include "questions/QuestionSet.h"

#include <QFileInfo>


namespace {

// A default no file can hold, to tell a missing key from a present one.
const QString kAbsent = QStringLiteral("\x01qz2-absent\x01");

bool present(const QString &file, const QString &section, const QString &key)
{
    return GetPrivateProfileString(section, key, kAbsent, file) != kAbsent;
}

void checkListing(const QString &path, SetReport &report)
{
    const QString name = QFileInfo(path).fileName();
    const QString description = GameReads::Description(path);
    if (!name.endsWith(QStringLiteral(".QZ2"), Qt::CaseInsensitive)) {
        report.listing = QStringLiteral("not listed: only .QZ2 files are (qz2 convert makes one)");
    } else if (name.startsWith(QLatin1Char('.'))) {
        report.listing = QStringLiteral("not listed: hidden file (its name starts with \".\")");
    } else if (!GameReads::IsQuestionSet(description)) {
        report.listing = QStringLiteral("not listed: no Description in [Round1], so not a question set");
    } else {
        report.listed = true;
        report.listing = QStringLiteral("listed as \"") + name + QStringLiteral("\" with \"") + description +
                         QStringLiteral("\"");
    }
}

// A picture the game cannot show is no fault during play (the clue shows
// alone), so only the check tells of it.
void checkPicture(const QString &path, int round, int tile, SetReport &report)
{
    const QString section = GameReads::TileSection(round, tile);
    const QString key = tile < 0 ? QStringLiteral("Picture") : QStringLiteral("Picture") + QString::number(tile / 6);
    const QString name = GetPrivateProfileString(section, key, QString(), path);
    if (name.isEmpty())
        return;
    const QString where = QLatin1Char('[') + section + QStringLiteral("] ") + key + QStringLiteral(": ");
    // Only a picture in the set's folder or below goes along when the set
    // is exported, imported or saved elsewhere.
    if (!IsPictureInSetFolder(name))
        report.stayBehind << where + name +
                                 (QFileInfo(name).isAbsolute() ? QStringLiteral(" is named by an absolute path")
                                                               : QStringLiteral(" lies outside the set's folder"));
    // Read as the game reads it (a drawing drawn, a photo scaled down):
    // what the game can show, qz2 passes.
    const QString file = GameReads::PicturePath(path, name);
    const QString problem = ReadPictureFile(file, QSize(1024, 768)).problem;
    if (!problem.isEmpty())
        report.pictures << where + file + QLatin1Char(' ') + problem;
}

void checkMissing(const QString &path, int round, int tile, SetReport &report)
{
    const QString section = GameReads::TileSection(round, tile);
    for (const QString &key : {GameReads::ClueKey(tile), GameReads::ResponseKey(tile)}) {
        if (!present(path, section, key))
            report.missing << QLatin1Char('[') + section + QStringLiteral("] ") + key;
    }
    checkPicture(path, round, tile, report);
}

RoundReport checkRound(const QString &path, int round, SetReport &report)
{
    RoundReport r{QStringLiteral("round ") + QString::number(round), false, QString()};
    if (!GameReads::RoundExists(path, round)) {
        r.note = QStringLiteral("skipped: no Category0 in [Round") + QString::number(round) + QLatin1Char(']');
        return r;
    }
    QStringList empty;
    for (int c = 0; c < 6; ++c) {
        if (GameReads::ColumnTitle(path, round, c).isEmpty())
            empty << QString::number(c + 1);
    }
    if (empty.size() == 6) {
        r.note = QStringLiteral("skipped: all six columns are empty");
        return r;
    }
    r.played = true;
    r.note = empty.isEmpty() ? QStringLiteral("six columns")
                             : QStringLiteral("empty column") + (empty.size() > 1 ? QStringLiteral("s ") : QStringLiteral(" ")) +
                                   empty.join(QStringLiteral(", "));
    for (int tile = 0; tile < 30; ++tile) {
        if (!GameReads::ColumnTitle(path, round, tile % 6).isEmpty())
            checkMissing(path, round, tile, report);
    }
    return r;
}

RoundReport checkFinal(const QString &path, SetReport &report)
{
    RoundReport r{QStringLiteral("final"), false, QString()};
    if (!GameReads::RoundExists(path, 3)) {
        r.note = QStringLiteral("skipped: no Category in [Final]");
        return r;
    }
    r.played = true;
    r.note = QLatin1Char('"') + GameReads::FinalTitle(path) + QLatin1Char('"');
    checkMissing(path, 3, -1, report);
    return r;
}

} // namespace

bool SetReport::playable() const
{
    if (!listed)
        return false;
    for (const RoundReport &r : rounds) {
        if (r.played)
            return true;
    }
    return false;
}

SetReport CheckQuestionSet(const QString &path)
{
    SetReport report;
    checkListing(path, report);
    const int ms = GameReads::AnswerTimerMs(path);
    report.answerText = QString::number(ms / 1000.0) + QStringLiteral(" s");
    report.rounds << checkRound(path, 1, report) << checkRound(path, 2, report) << checkFinal(path, report);
    return report;
}

QString FormatReport(const QString &path, const SetReport &report)
{
    QStringList lines;
    lines << path + QStringLiteral(": ") +
                 (report.playable() ? QStringLiteral("playable") : QStringLiteral("NOT PLAYABLE"));
    lines << QStringLiteral("  home screen: ") + report.listing;
    lines << QStringLiteral("  answer time: ") + report.answerText;
    for (const RoundReport &r : report.rounds)
        lines << QStringLiteral("  ") + r.name + QStringLiteral(": ") +
                     (r.played ? QStringLiteral("played, ") : QString()) + r.note;
    if (report.listed && !report.playable())
        lines << QStringLiteral("  nothing to play: the game would go straight to its end");
    for (const QString &m : report.missing)
        lines << QStringLiteral("  missing: ") + m + QStringLiteral(" (the screen shows \"") +
                     m.section(QLatin1Char(' '), 1) + QStringLiteral("\")");
    for (const QString &p : report.pictures)
        lines << QStringLiteral("  picture: ") + p + QStringLiteral(" (the clue shows without it)");
    for (const QString &p : report.stayBehind)
        lines << QStringLiteral("  warning: ") + p + QStringLiteral(", so it stays behind when the set is exported, "
                                                                      "imported or saved elsewhere");
    return lines.join(QLatin1Char('\n'));
}
