// The buzzers of the room: keys (cheap buzzer boxes type one) and joystick
// buttons, each learned for a team, turned into buzzes for the game's
// BuzzIn; and the host's keys of buzz-in (Space opens or closes the
// buzzers, + judges Right, - judges Wrong) while a clue takes buzzes.
// It lives for the run. The learned buzzers and the buzz-in switch are the
// only settings the game keeps, in the user's configuration folder, and
// only once the host changes one.
#pragma once

#include "platform/JoystickReader.h"

#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QString>

#include <array>
#include <optional>

class BuzzIn;

// One buzzer: a key (by the physical key when the system names it, else by
// the key it types) or a joystick's button.
struct BuzzerInput {
    enum Kind { None, Key, Button } kind = None;
    int key = 0;
    quint32 scanCode = 0;
    QString device; // a joystick, as JoystickReader names it
    QString deviceName;
    int button = 0;

    // As the host reads it: "key F7", "Buzz Controller, button 3".
    QString describe() const;
    bool sameAs(const BuzzerInput &other) const;
};

// Keys the game answers to already, which no buzzer may take: the digits,
// BackSpace, Space, + and -, and anything with SHIFT+CTRL+ALT held.
bool IsGameKey(int key, Qt::KeyboardModifiers modifiers);

struct BuzzerSettings {
    bool buzzIn = false;
    std::array<BuzzerInput, 10> teams;

    // From the user's configuration folder (defaults when there is none).
    static BuzzerSettings load();
    void save() const;
};

class BuzzerInputs : public QObject {
    Q_OBJECT
public:
    explicit BuzzerInputs(QObject *parent = nullptr);

    const BuzzerSettings &settings() const { return settings_; }
    // Buzz-in on or off; kept, and handed to the game that runs.
    void setBuzzIn(bool on);

    // Follows this game's buzz-in (nullptr: no game runs).
    void attach(BuzzIn *buzzIn);

    // Learns team's buzzer from the next key or button pressed; nothing
    // learned for team -1 (stop).
    void learn(int team);
    int learning() const { return learning_; }
    void forget(int team);

    // The joystick reader runs while buzz-in is on or a buzzer is learned.
    bool joysticksAvailable() const;
    QString joysticksWhy() const { return reader_.why(); }
    QStringList joysticks() const { return joysticks_; }

    // A key as the buzzers see it (the application's filter hands every key
    // press here; a test may too): true when it was used.
    bool keyPressed(const QKeyEvent &event);
    // A joystick button, pressed at steadyMs on JoystickReader's clock.
    void buttonPressed(const QString &device, const QString &name, int button, qint64 steadyMs);

signals:
    void changed();
    // team's buzzer learned, or a key refused (a key of the game's own).
    void learned(int team);
    void refused(const QString &why);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void take(const BuzzerInput &input, qint64 ageMs);
    void updateListening();
    qint64 keyAgeMs(const QKeyEvent &event);

    BuzzerSettings settings_;
    QPointer<BuzzIn> buzzIn_;
    JoystickReader reader_;
    QStringList joysticks_;
    int learning_ = -1;
    bool filtering_ = false;
    std::optional<qint64> keyOffset_;
};
