#include "PlayersServer.h"

#include "PlayerMessages.h"

#include "game/BoardGame.h"
#include "game/BuzzIn.h"
#include "game/GameRules.h"
#include "game/GameState.h"
#include "game/TeamAnswers.h"
#include "platform/Clock.h"

#include <QAbstractHttpServer>
#include <QFile>
#include <QHttpServerRequest>
#include <QHttpServerResponder>
#include <QJsonArray>
#include <QJsonDocument>
#include <QNetworkInterface>
#include <QTcpServer>
#include <QTcpSocket>
#include <QWebSocket>

#include <deque>
#include <functional>

namespace {

struct PageFile {
    const char *path, *resource, *type;
};
// The page's own files, compiled into the program: nothing else is served.
constexpr PageFile kPage[] = {
    {"/", ":/players/index.html", "text/html; charset=utf-8"},
    {"/index.html", ":/players/index.html", "text/html; charset=utf-8"},
    {"/style.css", ":/players/style.css", "text/css; charset=utf-8"},
    {"/app.js", ":/players/app.js", "text/javascript; charset=utf-8"},
};

QByteArray pageFile(const QString &resource)
{
    QFile f(resource);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QByteArray compact(const QJsonObject &o)
{
    return QJsonDocument(o).toJson(QJsonDocument::Compact);
}

} // namespace

// Every connection before it is a phone's: counted per address and in all,
// and closed when its request grows too large or takes too long.
class GuardedTcpServer : public QTcpServer {
public:
    GuardedTcpServer(const ServerLimits &limits, QObject *parent) : QTcpServer(parent), limits_(limits) {}

    // The connection that became a phone's: no longer timed.
    void upgraded(const QHostAddress &address, quint16 port)
    {
        for (Guarded &g : guarded_) {
            if (g.socket && g.socket->peerAddress() == address && g.socket->peerPort() == port)
                g.phone = true;
        }
    }

    void sweep(qint64 now)
    {
        prune();
        for (Guarded &g : guarded_) {
            if (!g.phone && now - g.opened > limits_.requestTimeoutMs)
                g.socket->abort();
        }
        prune();
    }

protected:
    void incomingConnection(qintptr handle) override
    {
        auto *socket = new QTcpSocket(this);
        if (!socket->setSocketDescriptor(handle)) {
            delete socket;
            return;
        }
        prune();
        const QHostAddress from = socket->peerAddress();
        const auto same = std::count_if(guarded_.begin(), guarded_.end(),
                                        [&](const Guarded &g) { return g.socket->peerAddress().isEqual(from); });
        if (qsizetype(guarded_.size()) >= limits_.mostConnections || same >= limits_.mostConnectionsPerAddress) {
            socket->abort();
            socket->deleteLater();
            return;
        }
        guarded_.push_back({socket, Clock::instance().steadyMs(), false, 0});
        // Before the HTTP server reads: it reads what has come each time, so
        // what has come is summed here.
        connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            for (Guarded &g : guarded_) {
                if (g.socket == socket && (g.received += socket->bytesAvailable()) > limits_.mostRequestBytes)
                    socket->abort();
            }
        });
        addPendingConnection(socket);
    }

private:
    struct Guarded {
        QPointer<QTcpSocket> socket;
        qint64 opened;
        bool phone;
        qint64 received;
    };
    void prune()
    {
        std::erase_if(guarded_, [](const Guarded &g) {
            return !g.socket || g.socket->state() == QAbstractSocket::UnconnectedState;
        });
    }

    const ServerLimits &limits_;
    std::vector<Guarded> guarded_;
};


// The network half: every connection, on the network thread.
class PhoneLink : public QAbstractHttpServer {
public:
    struct Callbacks {
        std::function<void(quint64)> connected, disconnected;
        std::function<void(quint64, const PlayerMessage &, qint64)> message;
    };

    PhoneLink(const ServerLimits &limits, Callbacks callbacks) : limits_(limits), callbacks_(std::move(callbacks))
    {
        connect(this, &QAbstractHttpServer::newWebSocketConnection, this, &PhoneLink::acceptPhones);
    }

    quint16 listenOn(const QHostAddress &address, const QList<quint16> &ports)
    {
        auto *tcp = new GuardedTcpServer(limits_, this);
        for (quint16 port : ports) {
            if (tcp->listen(address, port))
                break;
        }
        if (!tcp->isListening()) {
            delete tcp;
            return 0;
        }
        tcp_ = tcp;
        bind(tcp_);
        lastPing_ = Clock::instance().steadyMs();
        return tcp_->serverPort();
    }

    void close()
    {
        phones_.clear();
        delete tcp_;
        tcp_ = nullptr;
    }

    void send(quint64 id, const QByteArray &bytes)
    {
        if (Phone *p = phone(id))
            p->socket->sendTextMessage(QString::fromUtf8(bytes));
    }

    void sweep()
    {
        const qint64 now = Clock::instance().steadyMs();
        if (tcp_)
            tcp_->sweep(now);
        std::vector<quint64> dead;
        for (const auto &p : phones_) {
            if (now - p->lastHeard > limits_.deadAfterMs)
                dead.push_back(p->id);
        }
        for (quint64 id : dead)
            drop(id);
        if (now - lastPing_ >= limits_.pingEveryMs) {
            lastPing_ = now;
            for (const auto &p : phones_)
                p->socket->ping();
        }
    }

    void drop(quint64 id)
    {
        const auto it = std::find_if(phones_.begin(), phones_.end(), [&](const auto &p) { return p->id == id; });
        if (it == phones_.end())
            return;
        std::unique_ptr<Phone> gone = std::move(*it);
        phones_.erase(it);
        gone->socket->disconnect(this);
        gone->socket->abort();
        // The socket may be the sender of the signal that brought us here.
        gone->socket.release()->deleteLater();
        callbacks_.disconnected(id);
    }

protected:
    bool handleRequest(const QHttpServerRequest &request, QTcpSocket *socket) override
    {
        if (request.method() != QHttpServerRequest::Method::Get)
            return false;
        const QString path = request.url().path();
        // The phones' connection: taken over by the WebSocket server as soon
        // as this says yes and writes nothing (Qt hands the socket on then).
        if (path == QStringLiteral("/ws"))
            return request.value(QByteArrayLiteral("upgrade")).compare(QByteArrayLiteral("websocket"), Qt::CaseInsensitive) == 0;
        for (const PageFile &f : kPage) {
            if (path == QLatin1String(f.path)) {
                makeResponder(request, socket)
                    .write(pageFile(QLatin1String(f.resource)),
                           {{"Content-Type", f.type},
                            {"Cache-Control", "no-cache"},
                            {"X-Content-Type-Options", "nosniff"},
                            // The page runs its own script only and talks to its own server only.
                            {"Content-Security-Policy", "default-src 'self'; connect-src 'self' ws: wss:; img-src 'self' data:"}});
                return true;
            }
        }
        return false;
    }

    void missingHandler(const QHttpServerRequest &request, QTcpSocket *socket) override
    {
        makeResponder(request, socket).write(QHttpServerResponder::StatusCode::NotFound);
    }

private:
    struct Phone {
        quint64 id = 0;
        std::unique_ptr<QWebSocket> socket;
        std::deque<qint64> recent; // the moments of the last messages
        qint64 lastHeard = 0;
    };

    Phone *phone(quint64 id)
    {
        for (auto &p : phones_) {
            if (p->id == id)
                return p.get();
        }
        return nullptr;
    }

    void acceptPhones()
    {
        while (hasPendingWebSocketConnections()) {
            std::unique_ptr<QWebSocket> socket = nextPendingWebSocketConnection();
            if (!socket || socket->requestUrl().path() != QStringLiteral("/ws") || !tcp_)
                continue; // not the page's: let go at once
            tcp_->upgraded(socket->peerAddress(), socket->peerPort());
            socket->setMaxAllowedIncomingMessageSize(quint64(kMostMessageBytes));
            socket->setMaxAllowedIncomingFrameSize(quint64(kMostMessageBytes));
            const quint64 id = ++lastId_;
            QWebSocket *raw = socket.get();
            connect(raw, &QWebSocket::textMessageReceived, this, [this, id](const QString &text) { received(id, text); });
            // Only text is the page's; anything else ends the connection.
            connect(raw, &QWebSocket::binaryMessageReceived, this, [this, id] { drop(id); });
            connect(raw, &QWebSocket::pong, this, [this, id] {
                if (Phone *p = phone(id))
                    p->lastHeard = Clock::instance().steadyMs();
            });
            connect(raw, &QWebSocket::disconnected, this, [this, id] {
                QMetaObject::invokeMethod(this, [this, id] { drop(id); }, Qt::QueuedConnection);
            });
            auto p = std::make_unique<Phone>();
            p->id = id;
            p->socket = std::move(socket);
            p->lastHeard = Clock::instance().steadyMs();
            phones_.push_back(std::move(p));
            callbacks_.connected(id);
        }
    }

    void received(quint64 id, const QString &text)
    {
        // Its moment first: the order of buzzes is the order they came in.
        const qint64 now = Clock::instance().steadyMs();
        Phone *p = phone(id);
        if (!p)
            return;
        p->lastHeard = now;
        p->recent.push_back(now);
        while (!p->recent.empty() && now - p->recent.front() >= 1000)
            p->recent.pop_front();
        const int inLastSecond = int(p->recent.size());
        if (inLastSecond > 2 * limits_.messagesPerSecond) {
            drop(id);
            return;
        }
        if (inLastSecond > limits_.messagesPerSecond) {
            if (inLastSecond == limits_.messagesPerSecond + 1)
                p->socket->sendTextMessage(QStringLiteral(R"({"type":"error","code":"busy"})"));
            return;
        }
        if (const std::optional<PlayerMessage> m = ParsePlayerMessage(text.toUtf8()))
            callbacks_.message(id, *m, now);
    }

    const ServerLimits &limits_;
    Callbacks callbacks_;
    GuardedTcpServer *tcp_ = nullptr;
    std::vector<std::unique_ptr<Phone>> phones_;
    quint64 lastId_ = 0;
    qint64 lastPing_ = 0;
};

PlayersServer::PlayersServer(PlayersRoom &room, const GameState &state, QObject *parent)
    : QObject(parent), room_(room), state_(state)
{
    network_.setObjectName(QStringLiteral("players-network"));
    connect(&room_, &PlayersRoom::changed, this, &PlayersServer::playersChanged);
    sweeper_.setInterval(250);
    connect(&sweeper_, &QTimer::timeout, this, &PlayersServer::sweep);
}

PlayersServer::~PlayersServer()
{
    stop();
}

quint16 PlayersServer::start(const QHostAddress &address)
{
    if (running())
        return room_.port();
    QList<quint16> ports;
    if (room_.port())
        ports << room_.port();
    for (quint16 p = kPreferredPort; p < kPreferredPort + 20; ++p)
        ports << p;
    // What the network thread hears comes here, in the order it came.
    PhoneLink::Callbacks callbacks;
    callbacks.connected = [this](quint64 id) {
        QMetaObject::invokeMethod(this, [this, id] { connected(id); }, Qt::QueuedConnection);
    };
    callbacks.disconnected = [this](quint64 id) {
        QMetaObject::invokeMethod(this, [this, id] { disconnected(id); }, Qt::QueuedConnection);
    };
    callbacks.message = [this](quint64 id, const PlayerMessage &m, qint64 ms) {
        QMetaObject::invokeMethod(this, [this, id, m, ms] { received(id, m, ms); }, Qt::QueuedConnection);
    };
    // Made on its thread, so that the HTTP and WebSocket servers inside it
    // belong to that thread too.
    network_.start();
    auto *anchor = new QObject;
    anchor->moveToThread(&network_);
    PhoneLink *link = nullptr;
    quint16 port = 0;
    QMetaObject::invokeMethod(anchor, [&] {
        link = new PhoneLink(limits_, std::move(callbacks));
        port = link->listenOn(address, ports);
        anchor->deleteLater();
    }, Qt::BlockingQueuedConnection);
    if (!port) {
        stopLink(link);
        return 0;
    }
    link_ = link;
    room_.setPort(port);
    sweeper_.start();
    return port;
}

void PlayersServer::stopLink(PhoneLink *link)
{
    QMetaObject::invokeMethod(link, [link] {
        link->close();
        delete link;
    }, Qt::BlockingQueuedConnection);
    network_.quit();
    network_.wait();
}

void PlayersServer::stop()
{
    sweeper_.stop();
    if (link_)
        stopLink(std::exchange(link_, nullptr));
    phones_.clear();
}

QString PlayersServer::address() const
{
    // The room's network: a private IPv4 address of an interface that is up,
    // else any address but the machine's own loopback.
    QString fallback = QStringLiteral("127.0.0.1");
    for (const QNetworkInterface &i : QNetworkInterface::allInterfaces()) {
        if (!(i.flags() & QNetworkInterface::IsUp) || !(i.flags() & QNetworkInterface::IsRunning) ||
            (i.flags() & QNetworkInterface::IsLoopBack))
            continue;
        for (const QNetworkAddressEntry &e : i.addressEntries()) {
            const QHostAddress a = e.ip();
            if (a.protocol() != QAbstractSocket::IPv4Protocol)
                continue;
            const quint32 v = a.toIPv4Address();
            const bool privateUse = (v >> 24) == 10 || (v >> 20) == (172u << 4 | 1) || (v >> 16) == (192u << 8 | 168);
            if (privateUse)
                return QStringLiteral("http://%1:%2/").arg(a.toString()).arg(room_.port());
            fallback = a.toString();
        }
    }
    return QStringLiteral("http://%1:%2/").arg(fallback).arg(room_.port());
}

void PlayersServer::sendBytes(quint64 id, const QByteArray &bytes)
{
    if (PhoneLink *link = link_)
        QMetaObject::invokeMethod(link, [link, id, bytes] { link->send(id, bytes); }, Qt::QueuedConnection);
}

void PlayersServer::send(quint64 id, const QJsonObject &message)
{
    sendBytes(id, compact(message));
}

void PlayersServer::connected(quint64 id)
{
    phones_.insert(id, Phone{});
    send(id, teamsMessage("welcome"));
}

void PlayersServer::disconnected(quint64 id)
{
    phones_.remove(id);
}

void PlayersServer::received(quint64 id, const PlayerMessage &m, qint64 arrivedMs)
{
    const auto phone = phones_.find(id);
    if (phone == phones_.end())
        return;
    if (m.type == PlayerMessage::Join) {
        join(id, m);
        return;
    }
    if (m.type == PlayerMessage::Hello) {
        hello(id, m.token);
        return;
    }
    // Everything else acts for the team of the phone's own token only.
    const PhonePlayer *player = room_.find(phone->token);
    if (!player)
        return;
    switch (m.type) {
    case PlayerMessage::Buzz:
        // A phone's buzz counts from when it arrived.
        if (buzzIn_)
            buzzIn_->buzz({player->team, QStringLiteral("phone"), arrivedMs});
        break;
    case PlayerMessage::Wager:
        if (answers_)
            answers_->setWager(player->team, m.amount);
        break;
    case PlayerMessage::Response:
        if (answers_)
            answers_->setResponse(player->team, m.text);
        break;
    case PlayerMessage::Join:
    case PlayerMessage::Hello: break;
    }
    scheduleStates();
}

void PlayersServer::hello(quint64 id, const QString &token)
{
    const PhonePlayer *player = room_.find(token);
    if (!player) {
        send(id, {{QStringLiteral("type"), QStringLiteral("error")}, {QStringLiteral("code"), QStringLiteral("token")}});
        return;
    }
    Phone &phone = phones_[id];
    phone.token = token;
    phone.lastState.clear();
    send(id, {{QStringLiteral("type"), QStringLiteral("joined")}, {QStringLiteral("token"), player->token},
              {QStringLiteral("team"), player->team}, {QStringLiteral("name"), player->name},
              {QStringLiteral("teamName"), TeamName(player->team, state_.TeamNames[size_t(player->team)])},
              {QStringLiteral("color"), TeamColor(player->team).name()}});
    scheduleStates();
}

void PlayersServer::join(quint64 id, const PlayerMessage &m)
{
    const auto error = [&](const char *code) {
        send(id, {{QStringLiteral("type"), QStringLiteral("error")}, {QStringLiteral("code"), QLatin1String(code)}});
    };
    if (m.room != room_.code())
        return error("room");
    if (m.team >= teamCount())
        return error("team");
    const std::optional<PhonePlayer> player = room_.join(m.team, m.name);
    if (!player)
        return error("full");
    hello(id, player->token);
}

void PlayersServer::attach(BoardGame *game, BuzzIn *buzzIn, TeamAnswers *answers)
{
    for (QObject *o : {static_cast<QObject *>(game_), static_cast<QObject *>(buzzIn_), static_cast<QObject *>(answers_)}) {
        if (o)
            disconnect(o, nullptr, this, nullptr);
    }
    game_ = game;
    buzzIn_ = buzzIn;
    answers_ = answers;
    if (game) {
        connect(game, &BoardGame::openClueChanged, this, &PlayersServer::scheduleStates);
        connect(game, &BoardGame::scoreChanged, this, &PlayersServer::scheduleStates);
        connect(game, &BoardGame::thinkTimeStarted, this, &PlayersServer::scheduleStates);
        connect(game, &BoardGame::teamsChanged, this, &PlayersServer::sendTeams);
        connect(game, &BoardGame::teamNameChanged, this, &PlayersServer::sendTeams);
        connect(buzzIn, &BuzzIn::changed, this, &PlayersServer::scheduleStates);
        connect(answers, &TeamAnswers::changed, this, &PlayersServer::scheduleStates);
    }
    scheduleStates();
}

void PlayersServer::sendTeams()
{
    const QByteArray teams = compact(teamsMessage("teams"));
    for (auto it = phones_.cbegin(); it != phones_.cend(); ++it)
        sendBytes(it.key(), teams);
}

void PlayersServer::setTeamCount(int teams)
{
    teamCount_ = qBound(1, teams, 10);
    if (!game_)
        sendTeams();
}

int PlayersServer::teamCount() const
{
    return game_ && game_->state().Teams > 0 ? game_->state().Teams : teamCount_;
}

QJsonObject PlayersServer::teamsMessage(const char *type) const
{
    QJsonArray teams;
    for (int t = 0; t < teamCount(); ++t)
        teams.append(QJsonObject{{QStringLiteral("team"), t},
                                 {QStringLiteral("name"), TeamName(t, state_.TeamNames[size_t(t)])},
                                 {QStringLiteral("color"), TeamColor(t).name()}});
    return {{QStringLiteral("type"), QLatin1String(type)}, {QStringLiteral("teams"), teams}};
}

void PlayersServer::removePlayer(const QString &token)
{
    for (auto it = phones_.begin(); it != phones_.end(); ++it) {
        if (it->token == token) {
            send(it.key(), {{QStringLiteral("type"), QStringLiteral("removed")}});
            it->token.clear();
        }
    }
    room_.remove(token);
}

void PlayersServer::scheduleStates()
{
    // One round of messages for all the changes of one event.
    if (statesPending_)
        return;
    statesPending_ = true;
    QMetaObject::invokeMethod(this, &PlayersServer::sendStates, Qt::QueuedConnection);
}
QJsonObject PlayersServer::stateFor(int team) const
{
    QJsonObject s{{QStringLiteral("type"), QStringLiteral("state")}};
    const auto phase = [&](const char *p) { s.insert(QStringLiteral("phase"), QLatin1String(p)); };
    phase("idle");
    if (!game_ || !answers_ || !buzzIn_)
        return s;
    s.insert(QStringLiteral("teamScore"), state_.Scores[size_t(team)]);
    const TeamAnswers::Answer &a = answers_->answer(team);
    const QJsonValue wager = a.wager ? QJsonValue(double(*a.wager)) : QJsonValue();
    const QJsonValue response = a.response ? QJsonValue(*a.response) : QJsonValue();
    switch (answers_->phase()) {
    case TeamAnswers::Phase::DailyDoubleWager:
        if (answers_->dailyDoubleTeam() == team) {
            phase("wager");
            s.insert(QStringLiteral("max"), double(answers_->wagerLimit(team)));
            s.insert(QStringLiteral("wager"), wager);
        }
        return s;
    case TeamAnswers::Phase::FinalWager:
        phase("finalWager");
        s.insert(QStringLiteral("category"), game_->openClue().category);
        s.insert(QStringLiteral("max"), double(answers_->wagerLimit(team)));
        s.insert(QStringLiteral("wager"), wager);
        return s;
    case TeamAnswers::Phase::FinalResponse: {
        phase("finalResponse");
        const OpenClue clue = game_->openClue();
        s.insert(QStringLiteral("category"), clue.category);
        s.insert(QStringLiteral("wager"), wager);
        s.insert(QStringLiteral("response"), response);
        s.insert(QStringLiteral("secondsLeft"), clue.thinkSecondsLeft > 0 ? QJsonValue(clue.thinkSecondsLeft) : QJsonValue());
        return s;
    }
    case TeamAnswers::Phase::FinalLocked:
        phase("finalLocked");
        s.insert(QStringLiteral("wager"), wager);
        s.insert(QStringLiteral("response"), response);
        return s;
    case TeamAnswers::Phase::None:
        break;
    }
    if (!buzzIn_->enabled() || !buzzIn_->takesBuzzes())
        return s;
    const std::optional<int> turn = buzzIn_->hasTurn();
    if (turn == team) {
        phase("first");
    } else if (buzzIn_->out(team)) {
        phase("out");
    } else if (turn) {
        phase("other");
        s.insert(QStringLiteral("answering"), TeamName(*turn, state_.TeamNames[size_t(*turn)]));
    } else if (buzzIn_->earlyUntil(team) > Clock::instance().steadyMs()) {
        phase("locked");
    } else {
        phase(buzzIn_->isOpen() ? "open" : "closed");
    }
    return s;
}

void PlayersServer::sendStates()
{
    statesPending_ = false;
    std::array<QByteArray, 10> states;
    for (int t = 0; t < 10; ++t)
        states[size_t(t)] = compact(stateFor(t));
    for (auto it = phones_.begin(); it != phones_.end(); ++it) {
        const PhonePlayer *player = room_.find(it->token);
        if (!player)
            continue;
        // Only what changed goes out.
        const QByteArray &state = states[size_t(player->team)];
        if (state != it->lastState) {
            it->lastState = state;
            sendBytes(it.key(), state);
        }
    }
}

void PlayersServer::sweep()
{
    if (PhoneLink *link = link_)
        QMetaObject::invokeMethod(link, [link] { link->sweep(); }, Qt::BlockingQueuedConnection);
    // A lockout's end, the think music's seconds: states that move with time.
    sendStates();
}
