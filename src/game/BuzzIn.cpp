#include "BuzzIn.h"

#include "BoardGame.h"
#include "GameState.h"
#include "platform/Clock.h"

#include <algorithm>

QColor TeamColor(int team)
{
    static const QRgb kColors[10] = {0xFF8C1A, 0x37E0FF, 0x8CFF3D, 0xFF5CA8, 0xC792FF,
                                     0xFF5A5A, 0x3DFFB8, 0xFFC2A0, 0x8FB0FF, 0xE8FF5C};
    return QColor(kColors[qBound(0, team, 9)]);
}

BuzzIn::BuzzIn(BoardGame &game, QObject *parent) : QObject(parent), game_(game)
{
    // Polls for the lock's end only while a clue waits for it: the lock
    // counts whole seconds on the game's clock, which announces nothing.
    ticker_.setInterval(10);
    connect(&ticker_, &QTimer::timeout, this, &BuzzIn::tick);
    connect(&game_, &BoardGame::openClueChanged, this, &BuzzIn::clueChanged);
}

void BuzzIn::setEnabled(bool on)
{
    if (on == enabled_)
        return;
    enabled_ = on;
    clueKey_ = -2; // whatever is open now counts as new
    clueChanged();
}

int BuzzIn::teams() const
{
    return game_.state().Teams;
}

std::optional<int> BuzzIn::answering() const
{
    for (const Entry &e : order_) {
        if (!out_[size_t(e.team)])
            return e.team;
    }
    return std::nullopt;
}

void BuzzIn::clueChanged()
{
    const OpenClue clue = game_.openClue();
    const bool takes = enabled_ && clue.open && !clue.final && !clue.dailyDouble;
    const int key = takes ? game_.settings().Round * 100 + clue.tile : -1;
    if (key != clueKey_) {
        // A new clue: every team may buzz again.
        clueKey_ = key;
        clueTakesBuzzes_ = takes;
        open_ = hostDecides_ = done_ = false;
        order_.clear();
        out_.fill(false);
        earlyUntil_.fill(0);
    }
    // The response shows: the buzzing is over.
    if (takes && clue.step == ClueStep::Response)
        done_ = true;
    if (done_ && open_)
        open_ = false;
    if (clueTakesBuzzes_ && !done_ && !hostDecides_ && !open_)
        ticker_.start();
    else
        ticker_.stop();
    tick();
    emit changed();
}

void BuzzIn::tick()
{
    if (!clueTakesBuzzes_ || done_ || hostDecides_ || open_)
        return;
    const OpenClue clue = game_.openClue();
    // Open when a press on the screen may show the response.
    if (clue.step == ClueStep::Clue && clue.lockSecondsLeft == 0) {
        ticker_.stop();
        setOpen(true);
        emit changed();
    }
}

void BuzzIn::setOpen(bool open)
{
    if (open && !open_)
        openedAt_ = Clock::instance().steadyMs();
    open_ = open;
}

void BuzzIn::buzz(const Buzz &b)
{
    tick();
    if (!clueTakesBuzzes_ || done_ || b.team < 0 || b.team >= teams() || out_[size_t(b.team)])
        return;
    const size_t team = size_t(b.team);
    if (std::any_of(order_.begin(), order_.end(), [&](const Entry &e) { return e.team == b.team; }))
        return; // one buzz a team a clue
    if (!open_ || b.ms < openedAt_) {
        // Early: this team waits, and each early press starts the wait again.
        earlyUntil_[team] = b.ms + kEarlyLockoutMs;
        emit earlyBuzz(b.team);
        emit changed();
        return;
    }
    if (b.ms < earlyUntil_[team])
        return;
    const std::optional<int> before = answering();
    // In the order the buzzes were made, whatever order they came in.
    const auto at = std::upper_bound(order_.begin(), order_.end(), b.ms,
                                     [](qint64 ms, const Entry &e) { return ms < e.ms; });
    order_.insert(at, Entry{b.team, b.ms});
    passTurn(before);
    emit changed();
}

void BuzzIn::passTurn(std::optional<int> before)
{
    const std::optional<int> now = answering();
    if (now && now != before)
        emit turn(*now);
}

void BuzzIn::toggleOpen()
{
    if (!clueTakesBuzzes_ || done_)
        return;
    hostDecides_ = true;
    ticker_.stop();
    setOpen(!open_);
    emit changed();
}

bool BuzzIn::judgeRight()
{
    const std::optional<int> team = answering();
    if (!clueTakesBuzzes_ || done_ || !team)
        return false;
    game_.addToScore(*team, game_.state().CurrentValue);
    emit judged(*team, true);
    done_ = true;
    open_ = false;
    // The clue goes on to its response, as a press on the screen would.
    game_.showResponse();
    emit changed();
    return true;
}

bool BuzzIn::judgeWrong()
{
    const std::optional<int> team = answering();
    if (!clueTakesBuzzes_ || done_ || !team)
        return false;
    game_.addToScore(*team, -game_.state().CurrentValue);
    emit judged(*team, false);
    out_[size_t(*team)] = true;
    bool anyLeft = false;
    for (int t = 0; t < teams(); ++t)
        anyLeft = anyLeft || !out_[size_t(t)];
    if (anyLeft) {
        setOpen(true); // again, for the others
        passTurn(team);
    } else {
        done_ = true;
        open_ = false;
    }
    emit changed();
    return true;
}
