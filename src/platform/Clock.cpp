#include "Clock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <random>

namespace {

class SystemClock final : public Clock {
public:
    SystemClock() { steady_.start(); }

    qint64 now() const override { return QDateTime::currentSecsSinceEpoch(); }
    qint64 steadyMs() const override { return steady_.elapsed(); }

    void pause(int ms) override
    {
        // A nested loop that sleeps until the timer fires, painting and
        // running timers meanwhile. Input is taken from the window system
        // and dropped: held back, it would reach whatever lies under the
        // mouse once the animation is over.
        DroppedInput dropped;
        QEventLoop loop;
        QTimer::singleShot(qMax(0, ms), Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::AllEvents);
        QCoreApplication::processEvents(); // what arrived at the very end
    }

    void waitForEvents(int ms) override
    {
        QCoreApplication::sendPostedEvents();
        QEventLoop loop;
        QTimer::singleShot(qMax(0, ms), &loop, &QEventLoop::quit);
        loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }

    // 32 random bits over 2^32: never reaches 1, unlike some library
    // distributions under rounding.
    double random() override { return engine_() / 4294967296.0; }

    void reseed() override
    {
        engine_.seed(std::mt19937::result_type(QDateTime::currentMSecsSinceEpoch()) ^ std::random_device{}());
    }

private:
    QElapsedTimer steady_;
    std::mt19937 engine_{std::random_device{}()};
};

Clock *installed = nullptr;

class InputDropper final : public QObject {
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Wheel:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
            return true;
        default:
            return false;
        }
    }
};

int droppers = 0;
InputDropper *dropper = nullptr;

} // namespace

Clock &Clock::instance()
{
    static SystemClock system;
    return installed ? *installed : system;
}

void Clock::install(Clock *clock)
{
    installed = clock;
}

DroppedInput::DroppedInput()
{
    if (droppers++ == 0) {
        dropper = new InputDropper;
        if (QCoreApplication *app = QCoreApplication::instance())
            app->installEventFilter(dropper);
    }
}

DroppedInput::~DroppedInput()
{
    if (--droppers == 0) {
        delete dropper; // uninstalls itself
        dropper = nullptr;
    }
}
