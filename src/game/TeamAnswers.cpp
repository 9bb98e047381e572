#include "TeamAnswers.h"

#include "BoardGame.h"
#include "GameState.h"

TeamAnswers::TeamAnswers(BoardGame &game, QObject *parent) : QObject(parent), game_(game)
{
    connect(&game_, &BoardGame::openClueChanged, this, &TeamAnswers::clueChanged);
    connect(&game_, &BoardGame::thinkTimeStarted, this, &TeamAnswers::changed);
}

void TeamAnswers::clueChanged()
{
    const OpenClue clue = game_.openClue();
    const bool asks = clue.open && (clue.final || clue.dailyDouble);
    const int key = asks ? game_.settings().Round * 100 + clue.tile : -1;
    if (key != clueKey_ && asks) {
        // A new daily double or final: nothing typed for it yet.
        answers_.fill(Answer{});
        dailyDoubleTeam_.reset();
    }
    if (asks)
        clueKey_ = key;
    emit changed();
}

TeamAnswers::Phase TeamAnswers::phase() const
{
    const OpenClue clue = game_.openClue();
    if (!clue.open)
        return Phase::None;
    if (clue.dailyDouble)
        return clue.step == ClueStep::DailyDouble ? Phase::DailyDoubleWager : Phase::None;
    if (!clue.final)
        return Phase::None;
    switch (clue.step) {
    case ClueStep::FinalClue: return Phase::FinalWager;
    case ClueStep::Wait: return clue.thinkSecondsLeft > 0 ? Phase::FinalResponse : Phase::FinalLocked;
    // Without the think music (no sound) the host's press on the clue ends it.
    case ClueStep::Clue: return game_.state().thinkMusicPlayed ? Phase::FinalLocked : Phase::FinalResponse;
    case ClueStep::Response: return Phase::FinalLocked;
    default: return Phase::None;
    }
}

std::optional<int> TeamAnswers::dailyDoubleTeam() const
{
    const std::optional<int> team = dailyDoubleTeam_ ? dailyDoubleTeam_ : lastRight_;
    return team && *team < game_.state().Teams ? team : std::nullopt;
}

void TeamAnswers::setDailyDoubleTeam(std::optional<int> team)
{
    dailyDoubleTeam_ = team;
    emit changed();
}

qint64 TeamAnswers::wagerLimit(int team) const
{
    const qint64 score = game_.settings().Scores[size_t(qBound(0, team, 9))];
    if (game_.openClue().final)
        return qMax<qint64>(0, score);
    return qMax<qint64>(score, Tiles::value(29, game_.settings().Round));
}

bool TeamAnswers::setWager(int team, qint64 amount, bool byHost)
{
    if (team < 0 || team >= game_.state().Teams || amount < 0)
        return false;
    if (!byHost) {
        const Phase p = phase();
        const bool asked = (p == Phase::DailyDoubleWager && dailyDoubleTeam() == team) || p == Phase::FinalWager;
        if (!asked || amount > wagerLimit(team))
            return false;
    }
    answers_[size_t(team)].wager = amount;
    emit changed();
    return true;
}

bool TeamAnswers::setResponse(int team, const QString &text)
{
    if (team < 0 || team >= game_.state().Teams || phase() != Phase::FinalResponse)
        return false;
    answers_[size_t(team)].response = text;
    emit changed();
    return true;
}

void TeamAnswers::judge(int team, bool right)
{
    if (team < 0 || team >= game_.state().Teams || answers_[size_t(team)].revealed)
        return;
    answers_[size_t(team)].right = right;
    emit changed();
}

bool TeamAnswers::canReveal() const
{
    for (int t = 0; t < game_.state().Teams; ++t) {
        const Answer &a = answers_[size_t(t)];
        if (a.wager && a.right && !a.revealed)
            return game_.openClue().final;
    }
    return false;
}

std::optional<int> TeamAnswers::revealNext()
{
    if (!canReveal())
        return std::nullopt;
    std::optional<int> next;
    for (int t = 0; t < game_.state().Teams; ++t) {
        const Answer &a = answers_[size_t(t)];
        if (a.wager && a.right && !a.revealed &&
            (!next || game_.settings().Scores[size_t(t)] < game_.settings().Scores[size_t(*next)]))
            next = t;
    }
    Answer &a = answers_[size_t(*next)];
    a.revealed = true;
    game_.addToScore(*next, qint32(*a.right ? *a.wager : -*a.wager));
    emit revealed(*next);
    emit changed();
    return next;
}
