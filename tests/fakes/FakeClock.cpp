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
    pauses.append(ms);
    if (onPause)
        onPause(ms);
    advance(ms);
}

void FakeClock::waitForEvents(int ms)
{
    waits.append(ms);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    advance(ms);
}
