// Setting up a round: the one way through which every round change goes.

#include "BoardGame.h"

#include "GameJournal.h"
#include "GameRules.h"
#include "GameState.h"
#include "platform/Clock.h"
#include "questions/GameReads.h"
#include "shell/Libraries.h"

BoardGame::BoardGame(BoardView &view, GameState &settings, Libraries &libraries)
    : view_(view), settings_(settings), libraries_(libraries)
{
    // The design's captions, until the first round replaces them.
    for (int i = 0; i < 30; ++i)
        state_.tileCaption[size_t(i)] = Tiles::caption(i, 1);
    state_.headerCaption.fill(QStringLiteral("PotPourri"));
}

void BoardGame::setTeams(int teams)
{
    state_.Teams = qint16(qBound(0, teams, 10));
    settings_.Scores.fill(0);
    state_.scoreHistory.clear();
    emit teamsChanged();
}

void BoardGame::start()
{
    libraries_.PlayGameSound(107, true);
    // The host may have ended the game while the start sound played.
    if (view_.isUnloaded())
        return;
    settings_.Round = 1;
    SetUpRound();
}

void BoardGame::resume(const JournalRecord &r)
{
    started_ = true;
    // Every value comes back announced, as if it had been played: every
    // watcher (the board, the console, the journal) shows it.
    state_.Teams = qint16(qBound(0, int(r.teams), 10));
    emit teamsChanged();
    state_.scoreHistory = r.history;
    settings_.Scores = r.scores;
    settings_.TeamNames = r.names;
    for (int team = 0; team < 10; ++team) {
        emit teamNameChanged(team);
        emit scoreChanged(team);
    }
    settings_.Round = r.round;
    if (r.round >= 3) {
        SetUpRound();
        return;
    }
    view_.hideGrid();
    for (int c = 0; c < 6; ++c)
        setHeader(c, r.headerCaption[size_t(c)], r.headerTag[size_t(c)]);
    int done = 0;
    for (int i = 0; i < 30; ++i) {
        setTile(i, r.tileCaption[size_t(i)]);
        done += r.tileCaption[size_t(i)].isEmpty() ? 1 : 0;
    }
    // A clue that was open counts as played: the class has seen it.
    setTilesDone(done);
    settings_.DailyDouble1 = r.dailyDouble1;
    settings_.DailyDouble2 = r.dailyDouble2;
    emit roundChanged();
    view_.showBoardWindow();
    view_.Form_Resize();
    view_.showHeaderRow();
    for (int row = 0; row < 5; ++row)
        view_.showTileRow(row);
    if (done == 30 && state_.Teams == 0)
        nextRound();
}

void BoardGame::nextRound()
{
    ++settings_.Round;
    SetUpRound();
}

void BoardGame::SetUpRound()
{
    const qint16 Round = settings_.Round;
    started_ = true;
    Clock::instance().reseed();
    // Each absent round passes on to the next; the final is round 3.
    if (Round < 4 && !GameReads::RoundExists(settings_.QuestionFile, Round)) {
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
    view_.hideGrid();
    if (state_.openTile)
        setOpenTile(std::nullopt);
    int done = 0;
    for (int c = 0; c < 6; ++c) {
        const QString title = GameReads::ColumnTitle(settings_.QuestionFile, settings_.Round, c);
        if (title.isEmpty())
            done += 5;
        setHeader(c, title, QString());
    }
    setTilesDone(done);
    if (done == 30) {
        nextRound();
        return;
    }
    libraries_.PlayGameSound(103, false);
    for (int i = 0; i < 30; ++i)
        setTile(i, state_.headerCaption[size_t(Tiles::column(i))].isEmpty() ? QString()
                                                                            : Tiles::caption(i, settings_.Round));
    const auto [first, second] = DrawDailyDoubles(state_.tileCaption, settings_.TilesDone, Clock::instance());
    settings_.DailyDouble1 = first;
    settings_.DailyDouble2 = second;
    emit roundChanged();

    view_.showBoardWindow();
    view_.Form_Resize();
    view_.showHeaderRow();
    for (int r = 0; r < 5; ++r)
        view_.showTileRow(r);
}

void BoardGame::setUpFinalRound()
{
    view_.hideGrid();
    for (int i = 0; i < 30; ++i)
        setTile(i, QString());
    for (int c = 0; c < 6; ++c)
        setHeader(c, QString(), QString());
    view_.showGrid();
    // The final counts as the round's one remaining tile.
    setTilesDone(29);
    emit roundChanged();
    setStepCode(ClueStep::Wait);
    setOpenTile(-1);
    view_.setScreenCaption(QString());
    view_.ZoomTV({ZoomSource::Tile, 14}, settings_.PicIdFinal);
    setStepCode(ClueStep::FinalCategory, -1);
}
