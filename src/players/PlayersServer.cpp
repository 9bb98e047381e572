#include "PlayersServer.h"

#include "PlayerMessages.h"

#include "game/BoardGame.h"
#include "game/BuzzIn.h"
#include "game/GameRules.h"
#include "game/GameState.h"
#include "game/TeamAnswers.h"
#include "platform/Clock.h"

#include <QFile>
#include <QHttpServerRequest>
#include <QHttpServerResponder>
#include <QJsonArray>
#include <QJsonDocument>
#include <QNetworkInterface>
#include <QTcpServer>
#include <QTcpSocket>
#include <QWebSocket>

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

PlayersServer::PlayersServer(PlayersRoom &room, const GameState &state, QObject *parent)
    : QAbstractHttpServer(parent), room_(room), state_(state)
{
    connect(this, &QAbstractHttpServer::newWebSocketConnection, this, &PlayersServer::acceptPhones);
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
    room_.setPort(tcp_->serverPort());
    lastPing_ = Clock::instance().steadyMs();
    sweeper_.start();
    return room_.port();
}

void PlayersServer::stop()
{
    sweeper_.stop();
    phones_.clear();
    if (tcp_) {
        tcp_->close();
        delete tcp_; // its connections with it
        tcp_ = nullptr;
    }
}

bool PlayersServer::running() const
{
    return tcp_ && tcp_->isListening();
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

bool PlayersServer::handleRequest(const QHttpServerRequest &request, QTcpSocket *socket)
{
    if (request.method() != QHttpServerRequest::Method::Get)
        return false;
    const QString path = request.url().path();
    // The phones' connection: taken over by the WebSocket server as soon as
    // this says yes and writes nothing (Qt hands the socket on only then).
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

void PlayersServer::missingHandler(const QHttpServerRequest &request, QTcpSocket *socket)
{
    makeResponder(request, socket).write(QHttpServerResponder::StatusCode::NotFound);
}

void PlayersServer::acceptPhones()
{
    while (hasPendingWebSocketConnections()) {
        std::unique_ptr<QWebSocket> socket = nextPendingWebSocketConnection();
        if (!socket || socket->requestUrl().path() != QStringLiteral("/ws") || !tcp_) {
            continue; // not the page's: let go at once
        }
        tcp_->upgraded(socket->peerAddress(), socket->peerPort());
        socket->setMaxAllowedIncomingMessageSize(quint64(kMostMessageBytes));
        socket->setMaxAllowedIncomingFrameSize(quint64(kMostMessageBytes));
        QWebSocket *raw = socket.get();
        connect(raw, &QWebSocket::textMessageReceived, this, [this, raw](const QString &text) { received(raw, text); });
        // Only text is the page's; anything else ends the connection.
        connect(raw, &QWebSocket::binaryMessageReceived, this, [this, raw] { drop(raw); });
        connect(raw, &QWebSocket::pong, this, [this, raw] {
            if (Phone *p = phoneOf(raw))
                p->lastHeard = Clock::instance().steadyMs();
        });
        connect(raw, &QWebSocket::disconnected, this, [this, raw] {
            QMetaObject::invokeMethod(this, [this, raw] { drop(raw); }, Qt::QueuedConnection);
        });
        auto phone = std::make_unique<Phone>();
        phone->socket = std::move(socket);
        phone->lastHeard = Clock::instance().steadyMs();
        phones_.push_back(std::move(phone));
        send(*phones_.back(), teamsMessage("welcome"));
    }
}

PlayersServer::Phone *PlayersServer::phoneOf(QWebSocket *socket)
{
    for (auto &p : phones_) {
        if (p->socket.get() == socket)
            return p.get();
    }
    return nullptr;
}

void PlayersServer::drop(QWebSocket *socket)
{
    const auto it = std::find_if(phones_.begin(), phones_.end(), [&](const auto &p) { return p->socket.get() == socket; });
    if (it == phones_.end())
        return;
    std::unique_ptr<Phone> gone = std::move(*it);
    phones_.erase(it);
    gone->socket->disconnect(this);
    gone->socket->abort();
    // The socket may be the sender of the signal that brought us here.
    gone->socket.release()->deleteLater();
}

bool PlayersServer::throttled(Phone &phone, qint64 now)
{
    phone.recent.push_back(now);
    while (!phone.recent.empty() && now - phone.recent.front() >= 1000)
        phone.recent.pop_front();
    return int(phone.recent.size()) > limits_.messagesPerSecond;
}

void PlayersServer::received(QWebSocket *socket, const QString &text)
{
    Phone *phone = phoneOf(socket);
    if (!phone)
        return;
    const qint64 now = Clock::instance().steadyMs();
    phone->lastHeard = now;
    if (throttled(*phone, now)) {
        if (int(phone->recent.size()) > 2 * limits_.messagesPerSecond) {
            drop(socket);
            return;
        }
        if (int(phone->recent.size()) == limits_.messagesPerSecond + 1)
            send(*phone, {{QStringLiteral("type"), QStringLiteral("error")}, {QStringLiteral("code"), QStringLiteral("busy")}});
        return;
    }
    const std::optional<PlayerMessage> m = ParsePlayerMessage(text.toUtf8());
    if (m)
        act(*phone, *m, now);
}

void PlayersServer::act(Phone &phone, const PlayerMessage &m, qint64 arrivedMs)
{
    if (m.type == PlayerMessage::Join) {
        join(phone, m);
        return;
    }
    if (m.type == PlayerMessage::Hello) {
        if (!room_.find(m.token)) {
            send(phone, {{QStringLiteral("type"), QStringLiteral("error")}, {QStringLiteral("code"), QStringLiteral("token")}});
            return;
        }
        phone.token = m.token;
    }
    // Everything else acts for the team of the phone's own token only.
    const PhonePlayer *player = room_.find(phone.token);
    if (!player)
        return;
    switch (m.type) {
    case PlayerMessage::Hello: {
        const QString teamName = TeamName(player->team, state_.TeamNames[size_t(player->team)]);
        send(phone, {{QStringLiteral("type"), QStringLiteral("joined")}, {QStringLiteral("token"), player->token},
                     {QStringLiteral("team"), player->team}, {QStringLiteral("name"), player->name},
                     {QStringLiteral("teamName"), teamName}, {QStringLiteral("color"), TeamColor(player->team).name()}});
        phone.lastState.clear();
        break;
    }
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
    case PlayerMessage::Join: break;
    }
    scheduleStates();
}

void PlayersServer::join(Phone &phone, const PlayerMessage &m)
{
    const auto error = [&](const char *code) {
        send(phone, {{QStringLiteral("type"), QStringLiteral("error")}, {QStringLiteral("code"), QLatin1String(code)}});
    };
    if (m.room != room_.code())
        return error("room");
    if (m.team >= teamCount())
        return error("team");
    const std::optional<PhonePlayer> player = room_.join(m.team, m.name);
    if (!player)
        return error("full");
    act(phone, PlayerMessage{PlayerMessage::Hello, {}, 0, {}, player->token, 0, {}}, Clock::instance().steadyMs());
}

void PlayersServer::send(Phone &phone, const QJsonObject &message)
{
    phone.socket->sendTextMessage(QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact)));
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
        const auto teamsChanged = [this] {
            for (auto &p : phones_)
                send(*p, teamsMessage("teams"));
        };
        connect(game, &BoardGame::teamsChanged, this, teamsChanged);
        connect(game, &BoardGame::teamNameChanged, this, teamsChanged);
        connect(buzzIn, &BuzzIn::changed, this, &PlayersServer::scheduleStates);
        connect(answers, &TeamAnswers::changed, this, &PlayersServer::scheduleStates);
    }
    scheduleStates();
}

void PlayersServer::setTeamCount(int teams)
{
    teamCount_ = qBound(1, teams, 10);
    if (!game_) {
        for (auto &p : phones_)
            send(*p, teamsMessage("teams"));
    }
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
    for (auto &p : phones_) {
        if (p->token == token) {
            send(*p, {{QStringLiteral("type"), QStringLiteral("removed")}});
            p->token.clear();
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
        states[size_t(t)] = QJsonDocument(stateFor(t)).toJson(QJsonDocument::Compact);
    for (auto &p : phones_) {
        const PhonePlayer *player = room_.find(p->token);
        if (!player)
            continue;
        // Only what changed goes out.
        const QByteArray &state = states[size_t(player->team)];
        if (state != p->lastState) {
            p->lastState = state;
            p->socket->sendTextMessage(QString::fromUtf8(state));
        }
    }
}

void PlayersServer::sweep()
{
    const qint64 now = Clock::instance().steadyMs();
    if (tcp_)
        tcp_->sweep(now);
    std::vector<QWebSocket *> dead;
    for (auto &p : phones_) {
        if (now - p->lastHeard > limits_.deadAfterMs)
            dead.push_back(p->socket.get());
    }
    for (QWebSocket *s : dead)
        drop(s);
    if (now - lastPing_ >= limits_.pingEveryMs) {
        lastPing_ = now;
        for (auto &p : phones_)
            p->socket->ping();
    }
    // A lockout's end, the think music's seconds: states that move with time.
    sendStates();
}
