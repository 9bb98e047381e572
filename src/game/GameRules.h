// Rules of the game that need neither screen nor speakers: the daily-double
// draws, the step codes of the answer screen, scoring keys, score texts and
// the final standings.
#pragma once

#include "platform/Clock.h"

#include <QString>

#include <array>
#include <utility>

// Draws the round's daily doubles among the tiles in play (a non-empty
// caption): two different tiles, or one (both the same) when three or more
// columns are empty (tilesDone 15 or more).
std::pair<qint16, qint16> DrawDailyDoubles(const std::array<QString, 30> &tileCaptions, int tilesDone, Clock &clock);

// The answer screen stays shut to presses this many whole seconds after
// the last accepted one.
constexpr qint64 kAnswerLockSeconds = 3;

// The steps of the answer screen, by what the next press on it does. Each
// is written as a step code in the screen's tag: two letters, "|" and the
// tile (or -1 for the final); "NO" alone while a press does nothing; empty
// once the response shows.
enum class ClueStep {
    Wait,          // "NO": a press does nothing
    FinalCategory, // "FC": the final's picture shows; next, its category
    FinalClue,     // "FQ": the final's category shows; next, its clue
    DailyDouble,   // "SQ": a daily double's picture shows; next, its clue
    Clue,          // "SA": a clue shows; next, its response
    Response,      // "" (or any other code): the response shows; next, close
};

struct StepCode {
    ClueStep step = ClueStep::Response;
    qint16 index = 0; // the number written from the fourth character on
};
StepCode ParseStepCode(const QString &tag);
QString MakeStepCode(ClueStep step, int index = -1);

// What a key on the board does.
struct KeyAction {
    enum Kind { Nothing, EndGame, EndRound, Score, Swallow } kind = Nothing;
    int team = 0; // 1..10 for Score
};
// modifiers: SHIFT 1, CTRL 2, ALT 4. digit: 0..9 for a key of the main
// keyboard's digit row, -1 for any other key. letter: the key's letter.
KeyAction DecideKey(QChar letter, int digit, int modifiers, int currentValue, int teams);

// "###,###,##0": digits grouped in threes, a minus sign when negative.
QString FormatScore(qint32 score);

// The ranking key of a score: score + 60000 in at least six digits.
QString RankingKey(qint32 score);

// The standings message: one line per team, best first, the top line
// marked "  WINNER" or "  TIED" when there are two teams or more; lines
// joined by CR LF, no break at the end.
// Teams without a name given by the host keep "Team 1" to "Team 10".
QString StandingsText(int teams, const std::array<qint32, 10> &scores, const std::array<QString, 10> &names = {});

// A team's name: the one the host gave it, else "Team " and its number
// (team 0 is "Team 1").
QString TeamName(int team, const QString &given);
