#include "FakeClock.h"

#include <QCoreApplication>

FakeClock::FakeClock(quint32 seed) : engine_(seed)
{
    Clock::install(this);
}

FakeClock::~FakeClock()
{
    Clock::install(nullptr);
}

void FakeClock::pause(int ms)
{
    // As a real pause: the frame's events run, and input that came in the
    // meantime (onPause may send some) is dropped.
    DroppedInput dropped;
    pauses.append(ms);
    if (onPause)
        onPause(ms);
    QCoreApplication::processEvents();
    advance(ms);
}

void FakeClock::waitForEvents(int ms)
{
    waits.append(ms);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    advance(ms);
}
