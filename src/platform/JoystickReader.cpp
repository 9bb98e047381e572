#include "JoystickReader.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QMap>

#include <SDL2/SDL.h>

#include <chrono>

namespace {

// Often enough that a press reaches the board within a frame, and two
// presses on different devices are ordered to within this; rare enough
// to cost nothing.
constexpr int kPollMs = 2;

} // namespace

bool ButtonDebounce::change(const QString &device, int button, bool pressed, qint64 ms)
{
    Button &b = buttons_[device + QLatin1Char('/') + QString::number(button)];
    const bool still = ms - b.lastChange > kWindowMs;
    const bool counts = pressed && !b.down && still;
    if (pressed != b.down || !still)
        b.lastChange = ms; // a bounce starts the wait again
    b.down = pressed;
    return counts;
}

struct JoystickReader::Sdl {
    QLibrary library{QStringLiteral("libSDL2-2.0.so.0")};
    decltype(&SDL_SetHint) SetHint = nullptr;
    decltype(&SDL_InitSubSystem) InitSubSystem = nullptr;
    decltype(&SDL_QuitSubSystem) QuitSubSystem = nullptr;
    decltype(&SDL_PumpEvents) PumpEvents = nullptr;
    decltype(&SDL_PeepEvents) PeepEvents = nullptr;
    decltype(&SDL_FlushEvents) FlushEvents = nullptr;
    decltype(&SDL_GetTicks) GetTicks = nullptr;
    decltype(&SDL_IsGameController) IsGameController = nullptr;
    decltype(&SDL_GameControllerOpen) GameControllerOpen = nullptr;
    decltype(&SDL_GameControllerGetJoystick) GameControllerGetJoystick = nullptr;
    decltype(&SDL_GameControllerClose) GameControllerClose = nullptr;
    decltype(&SDL_JoystickOpen) JoystickOpen = nullptr;
    decltype(&SDL_JoystickClose) JoystickClose = nullptr;
    decltype(&SDL_JoystickInstanceID) JoystickInstanceID = nullptr;
    decltype(&SDL_JoystickGetGUID) JoystickGetGUID = nullptr;
    decltype(&SDL_JoystickGetGUIDString) JoystickGetGUIDString = nullptr;
    decltype(&SDL_JoystickName) JoystickName = nullptr;
    decltype(&SDL_NumJoysticks) NumJoysticks = nullptr;
    decltype(&SDL_JoystickGetDeviceInstanceID) JoystickGetDeviceInstanceID = nullptr;

    template <typename F> bool find(const char *name, F &f)
    {
        f = reinterpret_cast<F>(library.resolve(name));
        return f != nullptr;
    }
    bool bind()
    {
        return library.load() && find("SDL_SetHint", SetHint) && find("SDL_InitSubSystem", InitSubSystem) &&
               find("SDL_QuitSubSystem", QuitSubSystem) && find("SDL_PumpEvents", PumpEvents) &&
               find("SDL_PeepEvents", PeepEvents) && find("SDL_FlushEvents", FlushEvents) &&
               find("SDL_GetTicks", GetTicks) && find("SDL_IsGameController", IsGameController) &&
               find("SDL_GameControllerOpen", GameControllerOpen) &&
               find("SDL_GameControllerGetJoystick", GameControllerGetJoystick) &&
               find("SDL_GameControllerClose", GameControllerClose) && find("SDL_JoystickOpen", JoystickOpen) &&
               find("SDL_JoystickClose", JoystickClose) && find("SDL_JoystickInstanceID", JoystickInstanceID) &&
               find("SDL_JoystickGetGUID", JoystickGetGUID) &&
               find("SDL_JoystickGetGUIDString", JoystickGetGUIDString) && find("SDL_JoystickName", JoystickName) &&
               find("SDL_NumJoysticks", NumJoysticks) &&
               find("SDL_JoystickGetDeviceInstanceID", JoystickGetDeviceInstanceID);
    }
};

namespace {

// One device open on the reader's thread.
struct Device {
    SDL_GameController *controller = nullptr;
    SDL_Joystick *joystick = nullptr;
    QString key;
    QString name;
};

} // namespace

JoystickReader::JoystickReader(QObject *parent) : QObject(parent) {}

JoystickReader::~JoystickReader()
{
    stop();
}

qint64 JoystickReader::steadyNowMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

bool JoystickReader::start()
{
    if (running_)
        return true;
    if (!sdl_) {
        auto sdl = std::make_unique<Sdl>();
        if (!sdl->bind()) {
            why_ = QCoreApplication::translate("JoystickReader", "SDL2 (libSDL2-2.0.so.0) could not be loaded");
            return false;
        }
        sdl_ = std::move(sdl);
    }
    // SDL starts and ends its parts on one thread only: the game's, where
    // the sound library starts its sound. No window of SDL's own has the
    // focus: presses count all the same; the game keeps its own signals.
    sdl_->SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
    sdl_->SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (sdl_->InitSubSystem(SDL_INIT_JOYSTICK | SDL_INIT_GAMECONTROLLER) != 0) {
        why_ = QCoreApplication::translate("JoystickReader", "SDL2 could not start its joysticks");
        return false;
    }
    stopping_ = false;
    running_ = true;
    thread_ = std::thread([this] { run(); });
    return true;
}

void JoystickReader::stop()
{
    if (!running_)
        return;
    stopping_ = true;
    thread_.join();
    sdl_->QuitSubSystem(SDL_INIT_JOYSTICK | SDL_INIT_GAMECONTROLLER);
    running_ = false;
}

void JoystickReader::run()
{
    Sdl &sdl = *sdl_;
    // SDL's ticks and the steady clock, a fixed distance apart.
    const qint64 offset = steadyNowMs() - qint64(sdl.GetTicks());
    QMap<SDL_JoystickID, Device> devices;
    ButtonDebounce debounce;
    const auto announce = [&] {
        QStringList names;
        for (const Device &d : devices)
            names << d.name;
        QMetaObject::invokeMethod(this, [this, names] { emit devicesChanged(names); }, Qt::QueuedConnection);
    };
    const auto open = [&](int index) {
        if (devices.contains(sdl.JoystickGetDeviceInstanceID(index)))
            return; // met already, when the reader started
        Device d;
        if (sdl.IsGameController(index)) {
            d.controller = sdl.GameControllerOpen(index);
            d.joystick = d.controller ? sdl.GameControllerGetJoystick(d.controller) : nullptr;
        } else {
            d.joystick = sdl.JoystickOpen(index);
        }
        if (!d.joystick)
            return;
        char guid[33] = {};
        sdl.JoystickGetGUIDString(sdl.JoystickGetGUID(d.joystick), guid, sizeof guid);
        // Two devices of one kind are told apart by the order they came in;
        // one plugged in again takes the first number free.
        for (int n = 1;; ++n) {
            d.key = QLatin1String(guid) + QLatin1Char('#') + QString::number(n);
            if (std::none_of(devices.begin(), devices.end(), [&](const Device &o) { return o.key == d.key; }))
                break;
        }
        const char *name = sdl.JoystickName(d.joystick);
        d.name = name ? QString::fromUtf8(name) : QStringLiteral("joystick");
        devices.insert(sdl.JoystickInstanceID(d.joystick), d);
        announce();
    };
    // Devices already known to SDL (another part of the program keeps its
    // joysticks started) announce no arrival: they are met here.
    for (int i = 0; i < sdl.NumJoysticks(); ++i)
        open(i);
    SDL_Event events[64];
    while (!stopping_) {
        sdl.PumpEvents();
        int n = 0;
        while ((n = sdl.PeepEvents(events, 64, SDL_GETEVENT, SDL_JOYAXISMOTION, SDL_CONTROLLERDEVICEREMAPPED)) > 0) {
            for (int i = 0; i < n; ++i) {
                const SDL_Event &e = events[i];
                if (e.type == SDL_JOYDEVICEADDED) {
                    open(e.jdevice.which);
                } else if (e.type == SDL_JOYDEVICEREMOVED && devices.contains(e.jdevice.which)) {
                    const Device d = devices.take(e.jdevice.which);
                    d.controller ? sdl.GameControllerClose(d.controller) : sdl.JoystickClose(d.joystick);
                    announce();
                } else if (e.type == SDL_JOYBUTTONDOWN || e.type == SDL_JOYBUTTONUP) {
                    const auto it = devices.constFind(e.jbutton.which);
                    // A controller's buttons come as controller events.
                    if (it == devices.constEnd() || it->controller)
                        continue;
                    const qint64 ms = qint64(e.jbutton.timestamp) + offset;
                    if (debounce.change(it->key, e.jbutton.button, e.type == SDL_JOYBUTTONDOWN, ms)) {
                        const QString key = it->key, name = it->name;
                        const int button = e.jbutton.button;
                        QMetaObject::invokeMethod(this, [=, this] { emit pressed(key, name, button, ms); },
                                                  Qt::QueuedConnection);
                    }
                } else if (e.type == SDL_CONTROLLERBUTTONDOWN || e.type == SDL_CONTROLLERBUTTONUP) {
                    const auto it = devices.constFind(e.cbutton.which);
                    if (it == devices.constEnd())
                        continue;
                    const qint64 ms = qint64(e.cbutton.timestamp) + offset;
                    if (debounce.change(it->key, e.cbutton.button, e.type == SDL_CONTROLLERBUTTONDOWN, ms)) {
                        const QString key = it->key, name = it->name;
                        const int button = e.cbutton.button;
                        QMetaObject::invokeMethod(this, [=, this] { emit pressed(key, name, button, ms); },
                                                  Qt::QueuedConnection);
                    }
                }
            }
        }
        // Anything else SDL made meanwhile is not ours to keep; a device's
        // event that came after the read above waits for the next round.
        sdl.FlushEvents(SDL_FIRSTEVENT, SDL_JOYAXISMOTION - 1);
        sdl.FlushEvents(SDL_CONTROLLERDEVICEREMAPPED + 1, SDL_LASTEVENT);
        std::this_thread::sleep_for(std::chrono::milliseconds(kPollMs));
    }
    for (const Device &d : devices)
        d.controller ? sdl.GameControllerClose(d.controller) : sdl.JoystickClose(d.joystick);
}
