// Scoring and the host's special keys.

#include "BoardGame.h"

#include "GameRules.h"
#include "GameState.h"

bool BoardGame::KeyDown(QChar letter, int digit, int modifiers)
{
    // Keys count only while the board itself shows.
    if (view_.screenVisible() || view_.isUnloaded())
        return false;
    const KeyAction action = DecideKey(letter, digit, modifiers, state_.CurrentValue, state_.Teams);
    if (!started_ && action.kind != KeyAction::EndGame)
        return false;
    switch (action.kind) {
    case KeyAction::EndGame:
        endGame();
        return true;
    case KeyAction::EndRound:
        nextRound();
        return true;
    case KeyAction::Score:
        addToScore(action.team - 1, state_.CurrentValue);
        return true;
    case KeyAction::Swallow:
        return true;
    case KeyAction::Nothing:
        break;
    }
    return false;
}

bool BoardGame::KeyBackSpace()
{
    // Like the scoring keys, it counts only while the board itself shows.
    if (view_.screenVisible() || !started_)
        return false;
    undoScore();
    return true;
}

bool BoardGame::addToScore(int team, qint32 amount)
{
    if (team < 0 || team >= state_.Teams || amount == 0 || view_.isUnloaded())
        return false;
    settings_.Scores[size_t(team)] += amount;
    state_.scoreHistory.emplace_back(team, amount);
    emit scoreChanged(team);
    return true;
}

bool BoardGame::undoScore()
{
    if (state_.scoreHistory.empty() || view_.isUnloaded())
        return false;
    const auto [team, amount] = state_.scoreHistory.back();
    state_.scoreHistory.pop_back();
    settings_.Scores[size_t(team)] -= amount;
    emit scoreChanged(team);
    return true;
}

void BoardGame::setTeamName(int team, const QString &name)
{
    if (team < 0 || team >= int(settings_.TeamNames.size()) || settings_.TeamNames[size_t(team)] == name)
        return;
    settings_.TeamNames[size_t(team)] = name;
    emit teamNameChanged(team);
}
