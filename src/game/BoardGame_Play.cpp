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

// The answer screen ignores presses this soon after the last one.
constexpr qint64 kLockSeconds = 3;
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

void BoardGame::setStepCode(const QString &code)
{
    state_.stepCode = code;
    emit stepCodeChanged();
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
        setStepCode(QStringLiteral("NO"));
        view_.setScreenCaption(QString());
        view_.setOverlayCaptions(categoryTitle(column), state_.tileCaption[size_t(tile)]);
        view_.ZoomTV({ZoomSource::Tile, tile}, settings_.PicIdDailyDouble);
        setStepCode(MakeStepCode("SQ", tile));
        state_.CurrentValue = 100;
    } else {
        setStepCode(QStringLiteral("NO"));
        view_.screenTakesTile(tile);
        view_.ZoomTV({ZoomSource::Tile, tile}, settings_.PicIdScreen);
        view_.setOverlayCaptions(categoryTitle(column), state_.tileCaption[size_t(tile)]);
        ShowAnswer(tile);
        view_.showOverlay(column);
        setStepCode(MakeStepCode("SA", tile));
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
    if (basDetectDevEnv::IsRunningCompiled() && now - state_.LastClickTime < kLockSeconds)
        return;
    state_.LastClickTime = now;
    const StepCode step = ParseStepCode(state_.stepCode);
    if (step.code == QStringLiteral("NO"))
        return;
    if (step.code == QStringLiteral("FC")) {
        setStepCode(QStringLiteral("NO"));
        state_.CurrentValue = 100;
        view_.RotateTV(settings_.PicIdFinal, settings_.PicIdScreen);
        libraries_.PlayGameSound(104, false);
        view_.showOnScreen(GameReads::FinalTitle(settings_.QuestionFile));
        setStepCode(MakeStepCode("FQ", -1));
    } else if (step.code == QStringLiteral("FQ")) {
        setStepCode(QStringLiteral("NO"));
        view_.setScreenCaption(QString());
        view_.RotateTV(settings_.PicIdScreen, settings_.PicIdScreen);
        ShowAnswer(-1);
        // The think music is the think time; presses meanwhile find "NO".
        if (libraries_.soundsHeard())
            emit thinkTimeStarted(kThinkMusicMs);
        libraries_.PlayGameSound(105, true);
        if (!view_.isUnloaded())
            setStepCode(MakeStepCode("SA", -1));
    } else if (step.code == QStringLiteral("SQ")) {
        const int tile = qBound(0, int(step.index), 29);
        view_.RotateTV(settings_.PicIdDailyDouble, settings_.PicIdScreen);
        view_.setCategoryCaption(categoryTitle(Tiles::column(tile)));
        ShowAnswer(tile);
        view_.showOverlay(Tiles::column(tile));
        setStepCode(MakeStepCode("SA", tile));
    } else if (step.code == QStringLiteral("SA")) {
        ShowQuestion(step.index);
        setStepCode(QString());
    } else {
        closeScreen();
    }
}

void BoardGame::closeScreen()
{
    view_.hideScreen();
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
        setStepCode(QStringLiteral("NO"));
        view_.ZoomTV({ZoomSource::Header, c}, settings_.PicIdScreen);
        Clock::instance().pause(kParadeHoldMs);
        view_.hideScreen();
    }
    state_.paradeRunning = false;
}
