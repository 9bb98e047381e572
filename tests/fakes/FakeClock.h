// A clock for tests: time moves only when the game pauses or waits, random
// draws come from a seed, and every wait is recorded.
#pragma once

#include "platform/Clock.h"

#include <QList>

#include <atomic>

#include <functional>
#include <random>

class FakeClock final : public Clock {
public:
    // Installs itself as the game's clock; uninstalls on destruction.
    explicit FakeClock(quint32 seed = 1);
    ~FakeClock() override;

    qint64 now() const override { return startSeconds_ + elapsedMs_ / 1000; }
    qint64 steadyMs() const override { return elapsedMs_; }
    void pause(int ms) override;
    void waitForEvents(int ms) override;
    double random() override { return engine_() / 4294967296.0; }
    void reseed() override { ++reseeds; }

    void advance(qint64 ms) { elapsedMs_ += ms; if (onAdvance) onAdvance(int(ms)); }
    qint64 elapsedMs() const { return elapsedMs_; }
    void seed(quint32 s) { engine_.seed(s); }

    // Called with the milliseconds of every pause or wait, after time moved.
    std::function<void(int)> onAdvance;
    // Called at every pause, before time moves (a frame of an animation).
    std::function<void(int)> onPause;

    QList<int> pauses;
    QList<int> waits;
    int reseeds = 0;

private:
    qint64 startSeconds_ = 1'000'000;
    // Read by the players' server's network thread too.
    std::atomic<qint64> elapsedMs_ = 0;
    std::mt19937 engine_;
};
