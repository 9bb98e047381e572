// Play on the board: tile presses, the answer screen's steps, the title
// parade and the answer time-out.

#include "BoardGame.h"

#include "GameRules.h"
#include "GameState.h"
#include "platform/Clock.h"
#include "questions/GameReads.h"
#include "shell/SoundLibrary.h"
#include "shell/basDetectDevEnv.h"

namespace {

// The answer screen ignores presses this soon after the last one.
constexpr qint64 kLockSeconds = 3;
constexpr int kParadeHoldMs = 2500;

} // namespace

void BoardGame::setTile(int tile, const QString &caption)
{
    state_.tileCaption[size_t(tile)] = caption;
    view_.tileChanged(tile);
}

void BoardGame::setStepCode(const QString &code)
{
    state_.stepCode = code;
    view_.stepCodeChanged();
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
    state_.headerTag[size_t(column)] = state_.headerCaption[size_t(column)];
    state_.headerCaption[size_t(column)].clear();
    view_.headerChanged(column);
}

void BoardGame::TilePress(int tile, bool leftButton, bool shiftCtrlAlt)
{
    if (tile < 0 || tile >= 30 || view_.isUnloaded() || !started_ || !leftButton)
        return;
    if (shiftCtrlAlt) {
        specialPress(tile);
        return;
    }
    if (state_.tileCaption[size_t(tile)].isEmpty()) {
        // With scoring on, the host moves on to the next round this way
        // once the round's last question has been scored.
        if (state_.Teams > 0 && basPLOVQuzr::TilesDone == 30)
            nextRound();
        return;
    }
    openTile(tile);
}

void BoardGame::specialPress(int tile)
{
    using basPLOVQuzr::TilesDone;
    const int column = Tiles::column(tile);
    if (!state_.tileCaption[size_t(tile)].isEmpty()) {
        ++TilesDone;
        setTile(tile, QString());
        columnCheck(column);
        return;
    }
    if (state_.headerCaption[size_t(column)].isEmpty()) {
        if (state_.headerTag[size_t(column)].isEmpty())
            return; // an empty column has no tiles to put back
        state_.headerCaption[size_t(column)] = state_.headerTag[size_t(column)];
        state_.headerTag[size_t(column)].clear();
        view_.headerChanged(column);
    }
    --TilesDone;
    setTile(tile, Tiles::caption(tile, basPLOVQuzr::Round));
}

void BoardGame::openTile(int tile)
{
    using namespace basPLOVQuzr;
    const int column = Tiles::column(tile);
    state_.LastClickTime = Clock::instance().now();
    state_.CurrentValue = qint16(Tiles::value(tile, Round));
    if (tile == DailyDouble1 || tile == DailyDouble2) {
        PlayGameSound(101, false);
        setStepCode(QStringLiteral("NO"));
        view_.setScreenCaption(QString());
        view_.setOverlayCaptions(categoryTitle(column), state_.tileCaption[size_t(tile)]);
        view_.zoomFromTile(tile, PicIdDailyDouble);
        setStepCode(MakeStepCode("SQ", tile));
        state_.CurrentValue = 100;
    } else {
        setStepCode(QStringLiteral("NO"));
        view_.screenTakesTile(tile);
        view_.zoomFromTile(tile, PicIdScreen);
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
    using namespace basPLOVQuzr;
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
        view_.rotate(PicIdFinal, PicIdScreen);
        PlayGameSound(104, false);
        view_.showOnScreen(GameReads::FinalTitle(QuestionFile));
        setStepCode(MakeStepCode("FQ", -1));
    } else if (step.code == QStringLiteral("FQ")) {
        setStepCode(QStringLiteral("NO"));
        view_.setScreenCaption(QString());
        view_.rotate(PicIdScreen, PicIdScreen);
        ShowAnswer(-1);
        // The think music is the think time; presses meanwhile find "NO".
        PlayGameSound(105, true);
        if (!view_.isUnloaded())
            setStepCode(MakeStepCode("SA", -1));
    } else if (step.code == QStringLiteral("SQ")) {
        const int tile = qBound(0, int(step.index), 29);
        view_.rotate(PicIdDailyDouble, PicIdScreen);
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
    using namespace basPLOVQuzr;
    view_.hideScreen();
    ++TilesDone;
    if (TilesDone != 30)
        return;
    const qint16 round = Round;
    if (Round == 1)
        PlayGameSound(102, true);
    // The jingle lets keys and presses through; one of them may already
    // have moved the game on.
    if (view_.isUnloaded() || Round != round)
        return;
    if (state_.Teams == 0)
        nextRound();
}

void BoardGame::ShowAnswer(int index)
{
    using namespace basPLOVQuzr;
    view_.showOnScreen(GameReads::Clue(QuestionFile, Round, index));
    if (index >= 0)
        view_.startAnswerTimer();
    else
        view_.stopAnswerTimer();
}

void BoardGame::ShowQuestion(int index)
{
    using namespace basPLOVQuzr;
    view_.stopAnswerTimer();
    view_.showOnScreen(GameReads::Response(QuestionFile, Round, index));
}

void BoardGame::AnswerTimeout()
{
    view_.stopAnswerTimer();
    PlayGameSound(108, false);
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
        view_.zoomFromHeader(c, basPLOVQuzr::PicIdScreen); // locks the screen: "NO"
        Clock::instance().pause(kParadeHoldMs);
        view_.hideScreen();
    }
    state_.paradeRunning = false;
}
