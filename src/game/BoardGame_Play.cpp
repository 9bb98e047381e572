// Play on the board: tile presses, the answer screen's steps, the title
// parade and the answer time-out.

#include "BoardGame.h"

#include "GameRules.h"
#include "GameState.h"
#include "platform/Clock.h"
#include "questions/GameReads.h"
#include "shell/Libraries.h"
#include "shell/basDetectDevEnv.h"

namespace {

constexpr int kParadeHoldMs = 2500;
// The length of the think music, clip 105.
constexpr int kThinkMusicMs = 30000;

} // namespace

void BoardGame::setTile(int tile, const QString &caption)
{
    state_.tileCaption[size_t(tile)] = caption;
    emit tileChanged(tile);
}

// By value: a caller may move a title from caption to tag.
void BoardGame::setHeader(int column, QString caption, QString tag)
{
    state_.headerCaption[size_t(column)] = std::move(caption);
    state_.headerTag[size_t(column)] = std::move(tag);
    emit headerChanged(column);
}

void BoardGame::setStepCode(ClueStep step, int index)
{
    state_.stepCode = MakeStepCode(step, index);
    emit stepCodeChanged();
    emit openClueChanged();
}

void BoardGame::setOpenTile(std::optional<int> tile)
{
    state_.openTile = tile;
    emit openClueChanged();
}

OpenClue BoardGame::openClue() const
{
    OpenClue c;
    if (!state_.openTile || view_.isUnloaded())
        return c;
    const QString &file = settings_.QuestionFile;
    const int round = settings_.Round;
    c.open = true;
    c.tile = *state_.openTile;
    c.final = c.tile < 0;
    c.dailyDouble = !c.final && (c.tile == settings_.DailyDouble1 || c.tile == settings_.DailyDouble2);
    c.category = c.final ? GameReads::FinalTitle(file) : categoryTitle(Tiles::column(c.tile));
    c.value = c.final ? 0 : Tiles::value(c.tile, round);
    c.clue = GameReads::Clue(file, round, c.tile);
    c.response = GameReads::Response(file, round, c.tile);
    c.picture = GameReads::CluePicture(file, round, c.tile);
    c.step = ParseStepCode(state_.stepCode).step;
    const qint64 now = Clock::instance().now();
    if (basDetectDevEnv::IsRunningCompiled())
        c.lockSecondsLeft = int(qBound<qint64>(0, kAnswerLockSeconds - (now - state_.LastClickTime), kAnswerLockSeconds));
    if (c.step == ClueStep::Wait)
        c.thinkSecondsLeft = int(qMax<qint64>(0, state_.thinkEnds - now));
    return c;
}

void BoardGame::setTilesDone(int tilesDone)
{
    settings_.TilesDone = qint16(tilesDone);
    emit tilesDoneChanged();
}

QString BoardGame::categoryTitle(int column) const
{
    const QString &shown = state_.headerCaption[size_t(column)];
    return shown.isEmpty() ? state_.headerTag[size_t(column)] : shown;
}

void BoardGame::columnCheck(int column)
{
    for (int row = 0; row < 5; ++row) {
        if (!state_.tileCaption[size_t(row * 6 + column)].isEmpty())
            return;
    }
    // An exhausted column shows no title; the title is kept for putting a
    // tile back and for the answer screen's category label.
    if (state_.headerCaption[size_t(column)].isEmpty())
        return;
    setHeader(column, QString(), state_.headerCaption[size_t(column)]);
}

void BoardGame::TilePress(int tile, bool leftButton, bool shiftCtrlAlt)
{
    if (tile < 0 || tile >= 30 || view_.isUnloaded() || !started_)
        return;
    // Only the left button makes the special press; any other opens.
    if (leftButton && shiftCtrlAlt) {
        specialPress(tile);
        return;
    }
    if (state_.tileCaption[size_t(tile)].isEmpty()) {
        // With scoring on, the host moves on to the next round this way
        // once the round's last question has been scored.
        if (state_.Teams > 0 && settings_.TilesDone == 30)
            nextRound();
        return;
    }
    openTile(tile);
}

void BoardGame::specialPress(int tile)
{
    const int column = Tiles::column(tile);
    if (!state_.tileCaption[size_t(tile)].isEmpty()) {
        setTilesDone(settings_.TilesDone + 1);
        setTile(tile, QString());
        columnCheck(column);
        return;
    }
    if (state_.headerCaption[size_t(column)].isEmpty()) {
        if (state_.headerTag[size_t(column)].isEmpty())
            return; // an empty column has no tiles to put back
        setHeader(column, state_.headerTag[size_t(column)], QString());
    }
    setTilesDone(settings_.TilesDone - 1);
    setTile(tile, Tiles::caption(tile, settings_.Round));
}

void BoardGame::openTile(int tile)
{
    const int column = Tiles::column(tile);
    state_.LastClickTime = Clock::instance().now();
    state_.CurrentValue = qint16(Tiles::value(tile, settings_.Round));
    if (tile == settings_.DailyDouble1 || tile == settings_.DailyDouble2) {
        libraries_.PlayGameSound(101, false);
        setStepCode(ClueStep::Wait);
        setOpenTile(tile);
        view_.setScreenCaption(QString());
        view_.setOverlayCaptions(categoryTitle(column), state_.tileCaption[size_t(tile)]);
        view_.ZoomTV({ZoomSource::Tile, tile}, settings_.PicIdDailyDouble);
        setStepCode(ClueStep::DailyDouble, tile);
        state_.CurrentValue = 100;
    } else {
        setStepCode(ClueStep::Wait);
        setOpenTile(tile);
        view_.screenTakesTile(tile);
        view_.ZoomTV({ZoomSource::Tile, tile}, settings_.PicIdScreen);
        view_.setOverlayCaptions(categoryTitle(column), state_.tileCaption[size_t(tile)]);
        ShowAnswer(tile);
        view_.showOverlay(column);
        setStepCode(ClueStep::Clue, tile);
    }
    // Out of play now, though counted only when the screen closes.
    setTile(tile, QString());
    columnCheck(column);
}

void BoardGame::AnswerScreenPress()
{
    if (view_.isUnloaded() || !started_)
        return;
    const qint64 now = Clock::instance().now();
    if (basDetectDevEnv::IsRunningCompiled() && now - state_.LastClickTime < kAnswerLockSeconds)
        return;
    state_.LastClickTime = now;
    const StepCode step = ParseStepCode(state_.stepCode);
    switch (step.step) {
    case ClueStep::Wait:
        break;
    case ClueStep::FinalCategory:
        setStepCode(ClueStep::Wait);
        state_.CurrentValue = 100;
        view_.RotateTV(settings_.PicIdFinal, settings_.PicIdScreen);
        libraries_.PlayGameSound(104, false);
        view_.showOnScreen(GameReads::FinalTitle(settings_.QuestionFile));
        setStepCode(ClueStep::FinalClue, -1);
        break;
    case ClueStep::FinalClue:
        showFinalClue();
        break;
    case ClueStep::DailyDouble: {
        const int tile = qBound(0, int(step.index), 29);
        view_.RotateTV(settings_.PicIdDailyDouble, settings_.PicIdScreen);
        view_.setCategoryCaption(categoryTitle(Tiles::column(tile)));
        ShowAnswer(tile);
        view_.showOverlay(Tiles::column(tile));
        setStepCode(ClueStep::Clue, tile);
        break;
    }
    case ClueStep::Clue:
        ShowQuestion(step.index);
        setStepCode(ClueStep::Response);
        break;
    case ClueStep::Response:
        closeScreen();
        break;
    }
}

void BoardGame::showFinalClue()
{
    setStepCode(ClueStep::Wait);
    view_.setScreenCaption(QString());
    view_.RotateTV(settings_.PicIdScreen, settings_.PicIdScreen);
    ShowAnswer(-1);
    // The think music is the think time; presses meanwhile find "NO".
    if (libraries_.soundsHeard()) {
        state_.thinkMusicPlayed = true;
        state_.thinkEnds = Clock::instance().now() + (kThinkMusicMs + 999) / 1000;
        emit thinkTimeStarted(kThinkMusicMs);
    }
    libraries_.PlayGameSound(105, true);
    state_.thinkEnds = 0;
    if (!view_.isUnloaded())
        setStepCode(ClueStep::Clue, -1);
}

void BoardGame::closeScreen()
{
    view_.hideScreen();
    setOpenTile(std::nullopt);
    setTilesDone(settings_.TilesDone + 1);
    if (settings_.TilesDone != 30)
        return;
    const qint16 round = settings_.Round;
    if (round == 1)
        libraries_.PlayGameSound(102, true);
    // The jingle lets keys and presses through; one of them may already
    // have moved the game on.
    if (view_.isUnloaded() || settings_.Round != round)
        return;
    if (state_.Teams == 0)
        nextRound();
}

void BoardGame::ShowAnswer(int index)
{
    view_.showOnScreen(GameReads::Clue(settings_.QuestionFile, settings_.Round, index),
                       GameReads::CluePicture(settings_.QuestionFile, settings_.Round, index));
    if (index >= 0)
        view_.startAnswerTimer();
    else
        view_.stopAnswerTimer();
}

void BoardGame::ShowQuestion(int index)
{
    view_.stopAnswerTimer();
    view_.showOnScreen(GameReads::Response(settings_.QuestionFile, settings_.Round, index));
}

void BoardGame::showResponse()
{
    const StepCode step = ParseStepCode(state_.stepCode);
    if (view_.isUnloaded() || !state_.openTile || step.step != ClueStep::Clue)
        return;
    // The next press closes the screen only after the lock, as ever.
    state_.LastClickTime = Clock::instance().now();
    ShowQuestion(step.index);
    setStepCode(ClueStep::Response);
}

void BoardGame::AnswerTimeout()
{
    view_.stopAnswerTimer();
    libraries_.PlayGameSound(108, false);
}

void BoardGame::HeaderPress()
{
    if (state_.paradeRunning || view_.isUnloaded() || !started_)
        return;
    state_.LastClickTime = Clock::instance().now();
    state_.paradeRunning = true;
    for (int c = 0; c < 6; ++c) {
        if (state_.headerCaption[size_t(c)].isEmpty())
            continue;
        // The screen stays locked while a title shows.
        setStepCode(ClueStep::Wait);
        view_.ZoomTV({ZoomSource::Header, c}, settings_.PicIdScreen);
        Clock::instance().pause(kParadeHoldMs);
        view_.hideScreen();
    }
    state_.paradeRunning = false;
}
