#include "Phones.h"

Phones::Phones(const GameState &state, QObject *parent) : QObject(parent), state_(state) {}

Phones::~Phones() = default;

bool Phones::turnOn(bool on)
{
    if (on == isOn())
        return true;
    if (!on) {
        server_->stop();
        emit changed();
        return true;
    }
    if (!room_) {
        room_ = std::make_unique<PlayersRoom>();
        connect(room_.get(), &PlayersRoom::changed, this, &Phones::changed);
    }
    if (!server_)
        server_ = std::make_unique<PlayersServer>(*room_, state_);
    const bool started = server_->start() != 0;
    emit changed();
    return started;
}

bool Phones::resume(const QString &code, quint16 port, const QList<PhonePlayer> &players)
{
    if (!room_) {
        room_ = std::make_unique<PlayersRoom>();
        connect(room_.get(), &PlayersRoom::changed, this, &Phones::changed);
    }
    room_->restore(code, port, players);
    return turnOn(true);
}
