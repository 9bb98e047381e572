// Setting up a round: the one way through which every round change goes.

#include "BoardGame.h"

#include "GameRules.h"
#include "GameState.h"
#include "platform/Clock.h"
#include "questions/GameReads.h"
#include "shell/SoundLibrary.h"

BoardGame::BoardGame(BoardView &view) : view_(view)
{
    // The design's captions, until the first round replaces them.
    for (int i = 0; i < 30; ++i)
        state_.tileCaption[size_t(i)] = Tiles::caption(i, 1);
    state_.headerCaption.fill(QStringLiteral("PotPourri"));
}

void BoardGame::nextRound()
{
    ++basPLOVQuzr::Round;
    SetUpRound();
}

void BoardGame::SetUpRound()
{
    using basPLOVQuzr::Round;
    started_ = true;
    Clock::instance().reseed();
    // Each absent round passes on to the next; the final is round 3.
    if (Round < 4 && !GameReads::RoundExists(basPLOVQuzr::QuestionFile, Round)) {
        nextRound();
        return;
    }
    if (Round == 1 || Round == 2)
        setUpOrdinaryRound();
    else if (Round == 3)
        setUpFinalRound();
    else
        EndOfGame();
}

void BoardGame::setUpOrdinaryRound()
{
    using namespace basPLOVQuzr;
    view_.hideGrid();
    TilesDone = 0;
    for (int c = 0; c < 6; ++c) {
        const QString title = GameReads::ColumnTitle(QuestionFile, Round, c);
        if (title.isEmpty())
            TilesDone += 5;
        state_.headerCaption[size_t(c)] = title;
        state_.headerTag[size_t(c)].clear();
        view_.headerChanged(c);
    }
    if (TilesDone == 30) {
        nextRound();
        return;
    }
    PlayGameSound(103, false);
    for (int i = 0; i < 30; ++i)
        setTile(i, state_.headerCaption[size_t(Tiles::column(i))].isEmpty() ? QString() : Tiles::caption(i, Round));
    const auto [first, second] = DrawDailyDoubles(state_.tileCaption, TilesDone, Clock::instance());
    DailyDouble1 = first;
    DailyDouble2 = second;

    view_.showBoardWindow();
    view_.layOut();
    view_.showHeaderRow();
    for (int r = 0; r < 5; ++r)
        view_.showTileRow(r);
}

void BoardGame::setUpFinalRound()
{
    view_.hideGrid();
    for (int i = 0; i < 30; ++i)
        setTile(i, QString());
    for (int c = 0; c < 6; ++c) {
        state_.headerCaption[size_t(c)].clear();
        state_.headerTag[size_t(c)].clear();
        view_.headerChanged(c);
    }
    view_.showGrid();
    // The final counts as the round's one remaining tile.
    basPLOVQuzr::TilesDone = 29;
    setStepCode(QStringLiteral("NO"));
    view_.setScreenCaption(QString());
    view_.zoomFromTile(14, basPLOVQuzr::PicIdFinal);
    setStepCode(MakeStepCode("FC", -1));
}
