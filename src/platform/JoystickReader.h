// Game buzzers, arcade buttons and game controllers, read through SDL2's
// joystick and game-controller API, opened at run time as the sound
// library opens it (the game runs without SDL2, and without joysticks).
// A thread of its own polls the devices every few milliseconds; a device
// plugged in or out meanwhile is opened or let go, so a buzzer unplugged
// and plugged in again goes on working. Each press is handed on once:
// ButtonDebounce drops the bounces of a chattering button.
#pragma once

#include <QHash>
#include <QObject>
#include <QString>

#include <atomic>
#include <memory>
#include <thread>

// Whether a press of a button counts: one press never counts twice, and a
// button that chatters (presses and releases within the window) cannot
// press again until it has been still for the window.
class ButtonDebounce {
public:
    static constexpr qint64 kWindowMs = 40;
    // A change of a button at ms; true when it is a press that counts.
    bool change(const QString &device, int button, bool pressed, qint64 ms);

private:
    struct Button {
        bool down = false;
        qint64 lastChange = -kWindowMs - 1;
    };
    QHash<QString, Button> buttons_;
};

class JoystickReader : public QObject {
    Q_OBJECT
public:
    explicit JoystickReader(QObject *parent = nullptr);
    ~JoystickReader() override;

    // Starts reading; false when SDL2 cannot be had (why() says so).
    bool start();
    void stop();
    bool running() const { return running_; }
    QString why() const { return why_; }

    // Milliseconds on the steady clock the presses' times are given in.
    static qint64 steadyNowMs();

signals:
    // A press that counts: the device ("<GUID>#<n>", the n-th plugged in
    // of its kind), its name, the button, and when it was pressed.
    void pressed(const QString &device, const QString &name, int button, qint64 steadyMs);
    // A device was plugged in or out.
    void devicesChanged(const QStringList &names);

private:
    struct Sdl;
    void run();

    std::unique_ptr<Sdl> sdl_;
    std::thread thread_;
    std::atomic<bool> stopping_{false};
    bool running_ = false;
    QString why_;
};
