// What teams answer beyond a buzz: the wager of the team that found a daily
// double, and in the final every team's wager and response, typed on a
// phone or by the host; then the host's judgement of each, and the final's
// reveal on the board, team by team, lowest score first, each score
// changing as it shows. A team that sends nothing is scored by the host as
// ever.
#pragma once

#include <QObject>
#include <QString>

#include <array>
#include <optional>

class BoardGame;

class TeamAnswers : public QObject {
    Q_OBJECT
public:
    explicit TeamAnswers(BoardGame &game, QObject *parent = nullptr);

    // What the open clue asks of the teams now.
    enum class Phase {
        None,
        DailyDoubleWager, // the daily double's picture shows: its team wagers
        FinalWager,       // the final's category shows: every team wagers
        FinalResponse,    // the final's clue shows (its music plays): responses
        FinalLocked,      // the music is over: nothing more is taken
    };
    Phase phase() const;

    // The team that found the open daily double: the one the host names,
    // else the last team judged right (it chose the tile).
    std::optional<int> dailyDoubleTeam() const;
    void setDailyDoubleTeam(std::optional<int> team);
    void noteRight(int team) { lastRight_ = team; }

    struct Answer {
        std::optional<qint64> wager;
        std::optional<QString> response;
        std::optional<bool> right; // the host's judgement
        bool revealed = false;
    };
    const Answer &answer(int team) const { return answers_[size_t(qBound(0, team, 9))]; }
    // The most a team may wager now: in a daily double its score or the
    // round's highest value, whichever is more; in the final its score
    // (nothing when it has none).
    qint64 wagerLimit(int team) const;

    // From a phone: taken only in the phase that asks for it, from a team it
    // asks, within the limit. From the host: any time, any amount.
    bool setWager(int team, qint64 amount, bool byHost = false);
    bool setResponse(int team, const QString &text);
    void judge(int team, bool right);

    // The final's reveal: the next team to show (judged, with a wager, not
    // shown yet; the lowest score first), its score changed by its wager.
    std::optional<int> revealNext();
    bool canReveal() const;

signals:
    void changed();
    void revealed(int team);

private:
    void clueChanged();

    BoardGame &game_;
    std::array<Answer, 10> answers_;
    int clueKey_ = -1;
    std::optional<int> dailyDoubleTeam_;
    std::optional<int> lastRight_;
};
