// The end of the game: the standings, the closing theme, the board gone.

#include "BoardGame.h"

#include "GameRules.h"
#include "GameState.h"
#include "platform/MsgBox.h"
#include "shell/Libraries.h"

void BoardGame::EndOfGame()
{
    if (state_.Teams >= 1)
        MsgBox(StandingsText(state_.Teams, settings_.Scores, settings_.TeamNames), MsgBoxStyle::OKOnly, tr("Scores"));
    libraries_.PlayGameSound(106, false);
    endGame();
}

void BoardGame::endGame()
{
    if (view_.isUnloaded())
        return;
    emit gameEnded();
    view_.Unload();
}
