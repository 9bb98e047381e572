// The rules of play on one board, in plain C++: setting up each round,
// tile presses, the answer screen's steps, the title parade, the answer
// time-out, the scoring keys and the end of the game. The state of the
// round lives here; every change of it is announced to any number of
// watchers (the board form, and whatever else wants to follow the game),
// while what only the board can do goes to its one BoardView.
#pragma once

#include "BoardView.h"
#include "GameRules.h"

#include <QObject>
#include <QString>

#include <array>
#include <optional>
#include <utility>
#include <vector>

struct GameState;
struct JournalRecord;
class Libraries;

struct BoardState {
    // A tile is in play while its caption is "$" and its value.
    std::array<QString, 30> tileCaption;
    // Column titles shown, and the titles of exhausted columns, kept hidden.
    std::array<QString, 6> headerCaption;
    std::array<QString, 6> headerTag;
    // The answer screen's step code: "NO", "FC|-1", "FQ|-1", "SQ|i",
    // "SA|i", or empty (the next press closes the screen).
    QString stepCode;
    // Scoring teams, 0 to 10; the points a team key adds; the moment (whole
    // seconds) of the last accepted press.
    qint16 Teams = 0;
    qint16 CurrentValue = 0;
    qint64 LastClickTime = 0;
    bool paradeRunning = false;
    // The tile whose clue is open on the answer screen, -1 for the final;
    // nothing while the board shows.
    std::optional<int> openTile;
    // When the final's think music ends (Clock::now seconds); 0 when none.
    qint64 thinkEnds = 0;
    // Whether the final's think music was heard (none without sound).
    bool thinkMusicPlayed = false;
    // Every change of a score since the game started, the last one last:
    // the team (0..9) and the amount added.
    std::vector<std::pair<int, qint32>> scoreHistory;
};

// The clue on the answer screen, as every view of the game reads it: the
// board, the host's console, the buzzers.
struct OpenClue {
    bool open = false;   // false: the board shows, and nothing below counts
    int tile = 0;        // 0..29, or -1 for the final
    QString category;
    int value = 0;       // the tile's value; 0 for the final
    QString clue;
    QString response;
    QString picture;     // the picture's full path; empty for none
    bool dailyDouble = false;
    bool final = false;
    ClueStep step = ClueStep::Wait;
    // Whole seconds until a press on the screen counts again, and until
    // the final's think music ends; 0 when none.
    int lockSecondsLeft = 0;
    int thinkSecondsLeft = 0;
};

class BoardGame : public QObject {
    Q_OBJECT
public:
    BoardGame(BoardView &view, GameState &settings, Libraries &libraries);

    const BoardState &state() const { return state_; }
    const GameState &settings() const { return settings_; }
    // The clue on the answer screen now.
    OpenClue openClue() const;

    // Before the first round: the number of scoring teams (0 to 10), every
    // score back to 0.
    void setTeams(int teams);

    // The start of a game on a board that shows: the start sound (played
    // to its end), then round 1.
    void start();

    // Puts a game back as its journal recorded it, on a board that shows:
    // the round, the tiles out of play, the daily doubles, teams, names,
    // scores and their history. A final starts again from its picture.
    void resume(const JournalRecord &record);

    // Sets up the round named by Round (skipping absent or empty rounds),
    // or ends the game past the final.
    void SetUpRound();

    // A press on tile i, with its mouse button and whether SHIFT, CTRL and
    // ALT were all held.
    void TilePress(int tile, bool leftButton, bool shiftCtrlAlt);
    // A press on the answer screen or one of its labels.
    void AnswerScreenPress();
    // A press on a column header: parades the titles.
    void HeaderPress();
    // The answer time ran out.
    void AnswerTimeout();
    // A key on the board; see DecideKey. Returns whether the key was used.
    bool KeyDown(QChar letter, int digit, int modifiers);
    // BackSpace on the board: takes back the last score change.
    bool KeyBackSpace();
    // Ends the game now, without standings: the host's end key, the
    // window's close button.
    void endGame();

    // The host's corrections and typed amounts: adds amount (negative to
    // take) to a team's score, and takes back the last change of any score,
    // down to the start of the game. False when there was nothing to do.
    bool addToScore(int team, qint32 amount);
    bool undoScore();
    // Names a team (0..9) for the rest of the run; empty gives "Team N" back.
    void setTeamName(int team, const QString &name);

    // The response of the clue on the screen, at once: a team was judged
    // right. Nothing while no clue shows.
    void showResponse();

    void ShowAnswer(int index);
    void ShowQuestion(int index);

signals:
    void tileChanged(int tile);
    void headerChanged(int column);
    void stepCodeChanged();
    // A clue opened, moved on a step or closed (the lock's seconds run out
    // unannounced: a watcher that shows them asks again).
    void openClueChanged();
    // Team index 0..9.
    void scoreChanged(int team);
    void teamsChanged();
    // A round is set up and shows (Round tells which: 1, 2 or 3).
    void roundChanged();
    // A tile was counted out of play or put back.
    void tilesDoneChanged();
    void teamNameChanged(int team);
    // The final's think music started; it lasts this many milliseconds.
    void thinkTimeStarted(int ms);
    // The game is over: after the standings, or by the host's end key.
    void gameEnded();

private:
    void setUpOrdinaryRound();
    void setUpFinalRound();
    void nextRound();
    void EndOfGame();

    void specialPress(int tile);
    void openTile(int tile);
    void closeScreen();
    void showFinalClue();
    void columnCheck(int column);
    QString categoryTitle(int column) const;
    void setTile(int tile, const QString &caption);
    void setHeader(int column, QString caption, QString tag);
    void setStepCode(ClueStep step, int index = -1);
    void setOpenTile(std::optional<int> tile);
    void setTilesDone(int tilesDone);

    // Until the first round is set up (while the start sound plays), only
    // the end-game key counts.
    bool started_ = false;
    BoardView &view_;
    GameState &settings_;
    Libraries &libraries_;
    BoardState state_;
};
