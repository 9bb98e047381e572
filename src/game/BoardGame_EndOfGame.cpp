// The end of the game: the standings, the closing theme, the board gone.

#include "BoardGame.h"

#include "GameRules.h"
#include "GameState.h"
#include "platform/MsgBox.h"
#include "shell/SoundLibrary.h"

void BoardGame::EndOfGame()
{
    if (state_.Teams >= 1)
        MsgBox(StandingsText(state_.Teams, basPLOVQuzr::Scores), MsgBoxStyle::OKOnly, QStringLiteral("Scores"));
    PlayGameSound(106, false);
    view_.unload();
}
