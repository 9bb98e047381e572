// The rules of play on one board, in plain C++: setting up each round,
// tile presses, the answer screen's steps, the title parade, the answer
// time-out, the scoring keys and the end of the game. The state of the
// round lives here; the board form shows it (BoardView).
#pragma once

#include "BoardView.h"

#include <QString>

#include <array>

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
};

class BoardGame {
public:
    explicit BoardGame(BoardView &view);

    BoardState &state() { return state_; }
    const BoardState &state() const { return state_; }

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

    void ShowAnswer(int index);
    void ShowQuestion(int index);
    void setStepCode(const QString &code);

private:
    void setUpOrdinaryRound();
    void setUpFinalRound();
    void nextRound();
    void EndOfGame();

    void specialPress(int tile);
    void openTile(int tile);
    void closeScreen();
    void columnCheck(int column);
    QString categoryTitle(int column) const;
    void setTile(int tile, const QString &caption);

    // Until the first round is set up (while the start sound plays), only
    // the end-game key counts.
    bool started_ = false;
    BoardView &view_;
    BoardState state_;
};
