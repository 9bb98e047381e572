// Buzz-in: the game decides which team answers first. For each clue that
// takes buzzes (an ordinary clue; never a daily double or the final) the
// buzzers open when the answer screen's lock ends, or when the host says;
// the first buzz by its own time wins, a buzz before they open locks that
// team out for a moment, each team buzzes once, and the host judges Right
// (the clue's value, then the response) or Wrong (the value taken, the team
// out, the next in order on). It knows nothing of where a buzz came from:
// keys, buzzer boxes, joysticks and phones all hand it a Buzz.
#pragma once

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <array>
#include <optional>

class BoardGame;

// Each team's own colour, bright on the board's deep blue: its name when it
// has the turn, on the board, the console and the phones.
QColor TeamColor(int team);

struct Buzz {
    int team = 0;        // 0..9
    QString source;      // "key", "joystick", "phone": for the host's eyes only
    qint64 ms = 0;       // when it was made, on Clock::steadyMs
};

class BuzzIn : public QObject {
    Q_OBJECT
public:
    // A team that buzzes before the buzzers open waits this long.
    static constexpr qint64 kEarlyLockoutMs = 250;

    explicit BuzzIn(BoardGame &game, QObject *parent = nullptr);

    // Buzz-in on or off for this game; off, nothing here acts.
    void setEnabled(bool on);
    bool enabled() const { return enabled_; }

    // Whether the open clue takes buzzes, and whether they are open now.
    bool takesBuzzes() const { return clueTakesBuzzes_; }
    bool isOpen() const { return open_; }
    struct Entry {
        int team;
        qint64 ms;
    };
    // The buzzes of this clue in the order they were made.
    const QList<Entry> &order() const { return order_; }
    // The first in order not judged wrong.
    std::optional<int> answering() const;
    // The team whose turn it is to answer now: none once the clue is judged
    // right, everyone is out or the response shows.
    std::optional<int> hasTurn() const { return done_ ? std::nullopt : answering(); }
    // Judged wrong for this clue.
    bool out(int team) const { return out_[size_t(team)]; }
    // Locked out for buzzing early, until this moment (ms), else 0.
    qint64 earlyUntil(int team) const { return earlyUntil_[size_t(team)]; }

    void buzz(const Buzz &buzz);
    // The host's Space: opens closed buzzers, closes open ones; from then on
    // this clue's buzzers follow the host, not the lock.
    void toggleOpen();
    // The host's judgement of the team whose turn it is; false when there
    // is none.
    bool judgeRight();
    bool judgeWrong();
    // Time passed: the lock may have ended (a timer calls it; tests too).
    void tick();

signals:
    void changed();
    // A team has the turn: the board shows its name and sounds the buzz.
    void turn(int team);
    void earlyBuzz(int team);
    // The host judged a team's answer.
    void judged(int team, bool right);

private:
    void clueChanged();
    void setOpen(bool open);
    void passTurn(std::optional<int> before);
    int teams() const;

    BoardGame &game_;
    QTimer ticker_;
    bool enabled_ = false;
    bool clueTakesBuzzes_ = false;
    int clueKey_ = -1;
    bool open_ = false;
    bool hostDecides_ = false;
    bool done_ = false;
    qint64 openedAt_ = 0;
    QList<Entry> order_;
    std::array<bool, 10> out_{};
    std::array<qint64, 10> earlyUntil_{};
};
