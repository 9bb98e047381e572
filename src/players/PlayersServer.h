// The players' server inside the game: the phones' page and its messages,
// on one port of the room's network, with Qt HTTP Server and Qt WebSockets.
// Two halves:
//
// - PhoneLink, on a network thread of its own, holds every connection: it
//   serves only the page's own files (compiled into the program), keeps the
//   limits on size, rate and count at the edge, pings, and checks every
//   message before it goes on, stamped with the moment it arrived. Being
//   alone on its thread, it reads a message as it comes even while the board
//   paints, so buzzes made a millisecond apart keep their order.
// - PlayersServer, on the game's thread, watches the game, acts on the
//   checked messages for each phone's own team, and tells each team's
//   phones what they may do now.
#pragma once

#include "game/PlayersRoom.h"

#include <QHash>
#include <QHostAddress>
#include <QJsonObject>
#include <QPointer>
#include <QThread>
#include <QTimer>

#include <array>
#include <memory>

class BoardGame;
class BuzzIn;
class PhoneLink;
class TeamAnswers;
struct GameState;
struct PlayerMessage;

struct ServerLimits {
    int mostConnections = 400;
    int mostConnectionsPerAddress = 8;
    qint64 mostRequestBytes = 16 * 1024; // an HTTP request, headers and body
    qint64 requestTimeoutMs = 10'000;     // to finish a request or become a phone's connection
    int messagesPerSecond = 20;           // more are dropped; twice as many close the connection
    qint64 pingEveryMs = 5'000;
    qint64 deadAfterMs = 20'000;          // no answer to pings this long: gone
};

class PlayersServer : public QObject {
    Q_OBJECT
public:
    PlayersServer(PlayersRoom &room, const GameState &state, QObject *parent = nullptr);
    ~PlayersServer() override;

    // Before start: other limits (tests).
    void setLimits(const ServerLimits &limits) { limits_ = limits; }

    // Listens on every address of this machine, on the room's port if it
    // has one and it is free, else on the first free one from
    // kPreferredPort on; the port, or 0 when none could be had.
    static constexpr quint16 kPreferredPort = 47'110;
    quint16 start(const QHostAddress &address = QHostAddress::Any);
    void stop();
    bool running() const { return link_ != nullptr; }

    // The page's address for phones on the room's network.
    QString address() const;

    // Follows this game (nullptr: none runs).
    void attach(BoardGame *game, BuzzIn *buzzIn, TeamAnswers *answers);
    // The teams a phone may join when no game runs (the home screen's choice).
    void setTeamCount(int teams);
    int teamCount() const;

    // The host removes a player: its phones are told, its token forgotten.
    void removePlayer(const QString &token);
    // Connections open to phones (for the host and for tests).
    int phoneConnections() const { return int(phones_.size()); }

    // Time passed: pings, dead phones and slow clients dropped (on the
    // network thread, waited for), and states that changed with the time
    // (a short lockout ending) sent. A timer calls it; tests may too.
    void sweep();

signals:
    void playersChanged();

private:
    struct Phone {
        QString token;
        QByteArray lastState;
    };

    void connected(quint64 id);
    void disconnected(quint64 id);
    void received(quint64 id, const PlayerMessage &m, qint64 arrivedMs);
    void join(quint64 id, const PlayerMessage &m);
    void hello(quint64 id, const QString &token);
    void send(quint64 id, const QJsonObject &message);
    void sendBytes(quint64 id, const QByteArray &bytes);
    void sendStates();
    void scheduleStates();
    void sendTeams();
    QJsonObject stateFor(int team) const;
    void stopLink(PhoneLink *link);
    QJsonObject teamsMessage(const char *type) const;

    PlayersRoom &room_;
    const GameState &state_;
    ServerLimits limits_;
    QThread network_;
    PhoneLink *link_ = nullptr; // lives on network_
    QHash<quint64, Phone> phones_;
    QPointer<BoardGame> game_;
    QPointer<BuzzIn> buzzIn_;
    QPointer<TeamAnswers> answers_;
    int teamCount_ = 3;
    bool statesPending_ = false;
    QTimer sweeper_;
};
