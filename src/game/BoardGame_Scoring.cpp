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
        settings_.Scores[size_t(action.team - 1)] += state_.CurrentValue;
        emit scoreChanged(action.team - 1);
        return true;
    case KeyAction::Swallow:
        return true;
    case KeyAction::Nothing:
        break;
    }
    return false;
}
