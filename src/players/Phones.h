// Phones as buzzers and answer pads, for the run: off until the host turns
// them on (nothing listens on the network before), then the room (its code
// stays for the run) and the server that follows the game being played.
#pragma once

#include "game/PlayersRoom.h"
#include "players/PlayersServer.h"

#include <QObject>

#include <memory>

struct GameState;

class Phones : public QObject {
    Q_OBJECT
public:
    explicit Phones(const GameState &state, QObject *parent = nullptr);
    ~Phones() override;

    // Starts or stops the server; false (and off) when no port could be had.
    bool turnOn(bool on);
    bool isOn() const { return server_ && server_->running(); }
    // Back as a journal kept them: the same code, port and players, on.
    bool resume(const QString &code, quint16 port, const QList<PhonePlayer> &players);

    PlayersRoom *room() const { return room_.get(); }
    PlayersServer *server() const { return server_.get(); }
    QString address() const { return server_ ? server_->address() : QString(); }

signals:
    void changed();

private:
    const GameState &state_;
    std::unique_ptr<PlayersRoom> room_;
    std::unique_ptr<PlayersServer> server_;
};
