#include "BuzzerInputs.h"

#include "BuzzIn.h"
#include "platform/Clock.h"

#include <QCoreApplication>
#include <QSettings>
#include <QStandardPaths>

namespace {

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + QStringLiteral("/settings.ini");
}

} // namespace

QString BuzzerInput::describe() const
{
    switch (kind) {
    case Key: return BuzzerInputs::tr("key %1").arg(QKeySequence(key).toString(QKeySequence::NativeText));
    case Button: return BuzzerInputs::tr("%1, button %2").arg(deviceName, QString::number(button + 1));
    case None: break;
    }
    return QString();
}

bool BuzzerInput::sameAs(const BuzzerInput &o) const
{
    if (kind != o.kind || kind == None)
        return false;
    if (kind == Button)
        return device == o.device && button == o.button;
    // The physical key where both name one: a buzzer box types the same key
    // whatever the keyboard's layout.
    return scanCode && o.scanCode ? scanCode == o.scanCode : key == o.key;
}

bool IsGameKey(int key, Qt::KeyboardModifiers modifiers)
{
    const bool allThree = (modifiers & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier)) ==
                          (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    return allThree || (key >= Qt::Key_0 && key <= Qt::Key_9) || key == Qt::Key_Backspace ||
           key == Qt::Key_Space || key == Qt::Key_Plus || key == Qt::Key_Equal || key == Qt::Key_Minus ||
           key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab ||
           key == Qt::Key_F1 || key == Qt::Key_F2 || (key >= Qt::Key_Shift && key <= Qt::Key_Alt);
}

BuzzerSettings BuzzerSettings::load()
{
    BuzzerSettings s;
    const QSettings ini(settingsFile(), QSettings::IniFormat);
    s.buzzIn = ini.value(QStringLiteral("buzz-in/on"), false).toBool();
    for (int t = 0; t < 10; ++t) {
        const QString group = QStringLiteral("buzzers/team%1/").arg(t + 1);
        BuzzerInput &b = s.teams[size_t(t)];
        const QString kind = ini.value(group + QStringLiteral("kind")).toString();
        b.kind = kind == QStringLiteral("key") ? BuzzerInput::Key
                 : kind == QStringLiteral("button") ? BuzzerInput::Button
                                                    : BuzzerInput::None;
        b.key = ini.value(group + QStringLiteral("key"), 0).toInt();
        b.scanCode = ini.value(group + QStringLiteral("scanCode"), 0).toUInt();
        b.device = ini.value(group + QStringLiteral("device")).toString();
        b.deviceName = ini.value(group + QStringLiteral("deviceName")).toString();
        b.button = ini.value(group + QStringLiteral("button"), 0).toInt();
        // A key the game took for itself since (or a damaged file) is no buzzer.
        if ((b.kind == BuzzerInput::Key && IsGameKey(b.key, {})) || (b.kind == BuzzerInput::Button && b.device.isEmpty()))
            b = BuzzerInput{};
    }
    return s;
}

void BuzzerSettings::save() const
{
    QSettings ini(settingsFile(), QSettings::IniFormat);
    ini.setValue(QStringLiteral("buzz-in/on"), buzzIn);
    ini.remove(QStringLiteral("buzzers"));
    for (int t = 0; t < 10; ++t) {
        const BuzzerInput &b = teams[size_t(t)];
        if (b.kind == BuzzerInput::None)
            continue;
        const QString group = QStringLiteral("buzzers/team%1/").arg(t + 1);
        ini.setValue(group + QStringLiteral("kind"), b.kind == BuzzerInput::Key ? QStringLiteral("key") : QStringLiteral("button"));
        if (b.kind == BuzzerInput::Key) {
            ini.setValue(group + QStringLiteral("key"), b.key);
            ini.setValue(group + QStringLiteral("scanCode"), b.scanCode);
        } else {
            ini.setValue(group + QStringLiteral("device"), b.device);
            ini.setValue(group + QStringLiteral("deviceName"), b.deviceName);
            ini.setValue(group + QStringLiteral("button"), b.button);
        }
    }
}

BuzzerInputs::BuzzerInputs(QObject *parent) : QObject(parent), settings_(BuzzerSettings::load())
{
    connect(&reader_, &JoystickReader::pressed, this, &BuzzerInputs::buttonPressed);
    connect(&reader_, &JoystickReader::devicesChanged, this, [this](const QStringList &names) {
        joysticks_ = names;
        emit changed();
    });
    updateListening();
}

void BuzzerInputs::setBuzzIn(bool on)
{
    if (settings_.buzzIn == on)
        return;
    settings_.buzzIn = on;
    settings_.save();
    if (buzzIn_)
        buzzIn_->setEnabled(on);
    updateListening();
    if (!on && learning_ < 0)
        reader_.stop();
    emit changed();
}

void BuzzerInputs::attach(BuzzIn *buzzIn)
{
    buzzIn_ = buzzIn;
    if (buzzIn)
        buzzIn->setEnabled(settings_.buzzIn);
}

void BuzzerInputs::learn(int team)
{
    learning_ = team >= 0 && team < 10 ? team : -1;
    updateListening();
    if (learning_ < 0 && !settings_.buzzIn)
        reader_.stop();
    emit changed();
}

void BuzzerInputs::forget(int team)
{
    if (team < 0 || team >= 10 || settings_.teams[size_t(team)].kind == BuzzerInput::None)
        return;
    settings_.teams[size_t(team)] = BuzzerInput{};
    settings_.save();
    emit changed();
}

bool BuzzerInputs::joysticksAvailable() const
{
    return reader_.running();
}

void BuzzerInputs::updateListening()
{
    const bool listen = settings_.buzzIn || learning_ >= 0;
    // Keys from every window: the host's console may have the focus while
    // the class buzzes.
    if (listen != filtering_ && QCoreApplication::instance()) {
        filtering_ = listen;
        listen ? QCoreApplication::instance()->installEventFilter(this)
               : QCoreApplication::instance()->removeEventFilter(this);
    }
    // A buzzer just learned is about to be used: the reader, once started,
    // stays until buzz-in is turned off or the learning is given up.
    if (listen)
        reader_.start();
}

bool BuzzerInputs::eventFilter(QObject *watched, QEvent *event)
{
    // A key reaches the filter once for each object it passes: only the
    // window's own delivery counts.
    if (event->type() == QEvent::KeyPress && watched->isWidgetType() &&
        keyPressed(*static_cast<QKeyEvent *>(event)))
        return true;
    return QObject::eventFilter(watched, event);
}

qint64 BuzzerInputs::keyAgeMs(const QKeyEvent &event)
{
    // A key's time is the window system's; the smallest distance yet seen
    // between it and the steady clock is the one with no wait in it.
    const qint64 now = Clock::instance().steadyMs();
    const qint64 distance = now - qint64(event.timestamp());
    if (!keyOffset_ || distance < *keyOffset_)
        keyOffset_ = distance;
    return now - (qint64(event.timestamp()) + *keyOffset_);
}

bool BuzzerInputs::keyPressed(const QKeyEvent &event)
{
    if (event.isAutoRepeat())
        return false;
    BuzzerInput input;
    input.kind = BuzzerInput::Key;
    input.key = event.key();
    input.scanCode = event.nativeScanCode();
    if (learning_ >= 0) {
        if (input.key == Qt::Key_Escape) {
            learn(-1);
            return true;
        }
        if (IsGameKey(input.key, event.modifiers())) {
            emit refused(tr("%1 is one of the game's own keys; press another.").arg(input.describe()));
            return true;
        }
        take(input, 0);
        return true;
    }
    if (!buzzIn_ || !buzzIn_->takesBuzzes())
        return false;
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return false;
    switch (event.key()) {
    case Qt::Key_Space: buzzIn_->toggleOpen(); return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal: buzzIn_->judgeRight(); return true;
    case Qt::Key_Minus: buzzIn_->judgeWrong(); return true;
    default: break;
    }
    for (const BuzzerInput &b : settings_.teams) {
        if (b.sameAs(input)) {
            take(input, keyAgeMs(event));
            return true;
        }
    }
    return false;
}

void BuzzerInputs::buttonPressed(const QString &device, const QString &name, int button, qint64 steadyMs)
{
    BuzzerInput input;
    input.kind = BuzzerInput::Button;
    input.device = device;
    input.deviceName = name;
    input.button = button;
    take(input, qMax<qint64>(0, JoystickReader::steadyNowMs() - steadyMs));
}

void BuzzerInputs::take(const BuzzerInput &input, qint64 ageMs)
{
    if (learning_ >= 0) {
        const int team = learning_;
        // One buzzer, one team: learned anew, it leaves the team it had.
        for (BuzzerInput &b : settings_.teams) {
            if (b.sameAs(input))
                b = BuzzerInput{};
        }
        settings_.teams[size_t(team)] = input;
        settings_.save();
        learning_ = -1;
        updateListening();
        emit learned(team);
        emit changed();
        return;
    }
    for (int t = 0; t < 10; ++t) {
        if (buzzIn_ && settings_.teams[size_t(t)].sameAs(input)) {
            const QString source = input.kind == BuzzerInput::Key ? QStringLiteral("key") : QStringLiteral("joystick");
            buzzIn_->buzz({t, source, Clock::instance().steadyMs() - ageMs});
            return;
        }
    }
}
