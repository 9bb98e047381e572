#include "GameRules.h"

#include "platform/NumberText.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace {

qint16 drawTile(Clock &clock)
{
    return qint16(std::min(29, int(30 * clock.random())));
}

} // namespace

std::pair<qint16, qint16> DrawDailyDoubles(const std::array<QString, 30> &tileCaptions, int tilesDone, Clock &clock)
{
    // With every tile out of play there is nothing to draw; the caller
    // never asks then, but a loop without end must not be possible.
    if (std::all_of(tileCaptions.begin(), tileCaptions.end(), [](const QString &c) { return c.isEmpty(); }))
        return {0, 0};
    qint16 first;
    do {
        first = drawTile(clock);
    } while (tileCaptions[size_t(first)].isEmpty());
    const int inPlay = int(std::count_if(tileCaptions.begin(), tileCaptions.end(),
                                         [](const QString &c) { return !c.isEmpty(); }));
    if (tilesDone >= 14 || inPlay < 2)
        return {first, first};
    qint16 second;
    do {
        second = drawTile(clock);
    } while (tileCaptions[size_t(second)].isEmpty() || second == first);
    return {first, second};
}

namespace {

constexpr std::pair<ClueStep, const char *> kStepCodes[] = {
    {ClueStep::Wait, "NO"},        {ClueStep::FinalCategory, "FC"}, {ClueStep::FinalClue, "FQ"},
    {ClueStep::DailyDouble, "SQ"}, {ClueStep::Clue, "SA"},
};

} // namespace

StepCode ParseStepCode(const QString &tag)
{
    const long long n = RoundHalfEven(LeadingNumber(tag.mid(3)));
    StepCode parsed{ClueStep::Response, qint16(qBound(-32768LL, n, 32767LL))};
    const QStringView code = QStringView(tag).left(2);
    for (const auto &[step, letters] : kStepCodes) {
        if (code == QLatin1String(letters))
            parsed.step = step;
    }
    return parsed;
}

QString MakeStepCode(ClueStep step, int index)
{
    if (step == ClueStep::Response)
        return QString();
    for (const auto &[known, letters] : kStepCodes) {
        if (known == step)
            return step == ClueStep::Wait ? QLatin1String(letters)
                                          : QLatin1String(letters) + QLatin1Char('|') + QString::number(index);
    }
    return QString();
}

KeyAction DecideKey(QChar letter, int digit, int modifiers, int currentValue, int teams)
{
    const int mods = modifiers & 7;
    if (letter == QLatin1Char('Q') && mods == 7)
        return {KeyAction::EndGame};
    if (letter == QLatin1Char('N') && mods == 7)
        return {KeyAction::EndRound};
    if (digit < 0 || currentValue == 0 || teams == 0 || (mods & ~1) != 0)
        return {KeyAction::Nothing};
    const int team = digit == 0 ? 10 : digit;
    if (team > teams)
        return {KeyAction::Swallow};
    return {KeyAction::Score, team};
}

QString FormatScore(qint32 score)
{
    QString digits = QString::number(qAbs(qint64(score)));
    for (qsizetype at = digits.size() - 3; at > 0; at -= 3)
        digits.insert(at, QLatin1Char(','));
    return score < 0 ? QLatin1Char('-') + digits : digits;
}

QString RankingKey(qint32 score)
{
    const qint64 key = qint64(score) + 60000;
    const QString digits = QStringLiteral("%1").arg(qAbs(key), 6, 10, QLatin1Char('0'));
    return key < 0 ? QLatin1Char('-') + digits : digits;
}

QString TeamName(int team, const QString &given)
{
    return given.isEmpty() ? QCoreApplication::translate("GameRules", "Team %1").arg(team + 1) : given;
}

QString StandingsText(int teams, const std::array<qint32, 10> &scores, const std::array<QString, 10> &names)
{
    teams = qBound(0, teams, int(scores.size()));
    // lstWinner: the ranking keys in ascending text order, each with its
    // team's index; equal keys keep the order in which they were added.
    std::vector<std::pair<QString, int>> lstWinner;
    for (int i = 0; i < teams; ++i)
        lstWinner.emplace_back(RankingKey(scores[size_t(i)]), i);
    std::stable_sort(lstWinner.begin(), lstWinner.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    QString text;
    for (int k = teams - 1; k >= 0; --k) {
        const int t = lstWinner[size_t(k)].second;
        text += TeamName(t, names[size_t(t)]) + QStringLiteral(": $ ") +
                FormatScore(scores[size_t(t)]);
        if (k == teams - 1 && k >= 1) {
            const int below = lstWinner[size_t(k - 1)].second;
            text += scores[size_t(t)] == scores[size_t(below)] ? QCoreApplication::translate("GameRules", "  TIED")
                                                               : QCoreApplication::translate("GameRules", "  WINNER");
        }
        text += QStringLiteral("\r\n");
    }
    if (text.endsWith(QStringLiteral("\r\n")))
        text.chop(2);
    return text;
}
