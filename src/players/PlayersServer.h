// The players' server inside the game: the phones' page and its messages,
// on one port of the room's network, with Qt HTTP Server and Qt WebSockets
// on the user-interface thread (nothing blocks). It serves only the page's
// own files, compiled into the program, and answers only the page's
// messages; it is a watcher of the game (what each team may do now goes out
// to its phones) and a source of buzzes, wagers and responses. Everything
// that reaches it is hostile until checked: limits on size, rate and count
// at the edge, and every message checked before it acts.
#pragma once

#include "game/PlayersRoom.h"

#include <QAbstractHttpServer>
#include <QHash>
#include <QHostAddress>
#include <QJsonObject>
#include <QPointer>
#include <QTimer>

#include <array>
#include <deque>
#include <memory>

class BoardGame;
class BuzzIn;
class GuardedTcpServer;
class QWebSocket;
class TeamAnswers;
struct GameState;

struct ServerLimits {
    int mostConnections = 400;
    int mostConnectionsPerAddress = 8;
    qint64 mostRequestBytes = 16 * 1024; // an HTTP request, headers and body
    qint64 requestTimeoutMs = 10'000;     // to finish a request or become a phone's connection
    int messagesPerSecond = 20;           // more are dropped; twice as many close the connection
    qint64 pingEveryMs = 5'000;
    qint64 deadAfterMs = 20'000;          // no answer to pings this long: gone
};

class PlayersServer : public QAbstractHttpServer {
    Q_OBJECT
public:
    PlayersServer(PlayersRoom &room, const GameState &state, QObject *parent = nullptr);
    ~PlayersServer() override;

    void setLimits(const ServerLimits &limits) { limits_ = limits; }

    // Listens on every address of this machine, on the room's port if it
    // has one and it is free, else on the first free one from
    // kPreferredPort on; the port, or 0 when none could be had.
    static constexpr quint16 kPreferredPort = 47'110;
    quint16 start(const QHostAddress &address = QHostAddress::Any);
    void stop();
    bool running() const;

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

    // Time passed: pings, dead phones and slow clients dropped, states that
    // changed with the time (a short lockout ending) sent. A timer calls it;
    // tests may too.
    void sweep();

signals:
    void playersChanged();

protected:
    bool handleRequest(const QHttpServerRequest &request, QTcpSocket *socket) override;
    void missingHandler(const QHttpServerRequest &request, QTcpSocket *socket) override;

private:
    struct Phone {
        std::unique_ptr<QWebSocket> socket;
        QString token;
        std::deque<qint64> recent; // the moments of the last messages
        qint64 lastHeard = 0;
        QByteArray lastState;
    };

    void acceptPhones();
    void received(QWebSocket *socket, const QString &text);
    void act(Phone &phone, const struct PlayerMessage &m, qint64 arrivedMs);
    void join(Phone &phone, const PlayerMessage &m);
    void send(Phone &phone, const QJsonObject &message);
    void sendStates();
    void scheduleStates();
    QJsonObject stateFor(int team) const;
    QJsonObject teamsMessage(const char *type) const;
    Phone *phoneOf(QWebSocket *socket);
    void drop(QWebSocket *socket);
    bool throttled(Phone &phone, qint64 now);

    PlayersRoom &room_;
    const GameState &state_;
    ServerLimits limits_;
    GuardedTcpServer *tcp_ = nullptr;
    std::vector<std::unique_ptr<Phone>> phones_;
    QPointer<BoardGame> game_;
    QPointer<BuzzIn> buzzIn_;
    QPointer<TeamAnswers> answers_;
    int teamCount_ = 3;
    bool statesPending_ = false;
    QTimer sweeper_;
    qint64 lastPing_ = 0;
};
