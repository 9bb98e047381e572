// Time and chance, in one seam. Every wait, every reading of the time and
// every random draw of the game goes through the installed Clock, so that
// tests replace it with a fake whose time only moves when the game waits.
#pragma once

#include <QtGlobal>

class Clock {
public:
    virtual ~Clock() = default;

    // Whole seconds since some fixed moment; only differences count.
    virtual qint64 now() const = 0;

    // Milliseconds on a steady clock, for pacing animations; only
    // differences count.
    virtual qint64 steadyMs() const = 0;

    // Blocks for ms milliseconds. The windows keep painting and timers run;
    // user input that arrives meanwhile is dropped (DroppedInput), so that
    // a press made during an animation never acts after it.
    virtual void pause(int ms) = 0;

    // Dispatches every pending event, input included, then sleeps until
    // the next event or for at most ms milliseconds.
    virtual void waitForEvents(int ms) = 0;

    // Uniform in [0, 1).
    virtual double random() = 0;

    // Starts a fresh random sequence (from the time, in production).
    virtual void reseed() = 0;

    // The installed clock; the system clock unless a test installed another.
    static Clock &instance();
    // Installs a clock (not owned); nullptr goes back to the system clock.
    static void install(Clock *clock);
};

// While one lives, presses, keys and wheel turns not yet delivered are
// dropped, for every window of the program. Every pause holds one.
class DroppedInput {
public:
    DroppedInput();
    ~DroppedInput();
    DroppedInput(const DroppedInput &) = delete;
    DroppedInput &operator=(const DroppedInput &) = delete;
};
