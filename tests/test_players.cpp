// The players' server with real WebSocket clients on loopback: joining with
// the right and a wrong room code, the buzz order from several phones, a
// phone acting for another team, every limit at the edge, a phone coming
// back with its token after a dropped connection or a restart, wagers and
// the final's responses; and the message checker on its own.

#include "GameFixture.h"

#include "game/BuzzIn.h"
#include "game/PlayersRoom.h"
#include "game/TeamAnswers.h"
#include "players/PlayerMessages.h"
#include "players/PlayersServer.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QWebSocket>
#include <QtTest>

namespace {

// A phone: a WebSocket client that keeps every message it gets.
class Phone {
public:
    explicit Phone(quint16 port)
    {
        QObject::connect(&socket_, &QWebSocket::textMessageReceived, [this](const QString &text) {
            got << QJsonDocument::fromJson(text.toUtf8()).object();
        });
        socket_.open(QUrl(QStringLiteral("ws://127.0.0.1:%1/ws").arg(port)));
    }
    bool connected() { return QTest::qWaitFor([this] { return socket_.state() == QAbstractSocket::ConnectedState; }, 5000); }
    bool closed() { return QTest::qWaitFor([this] { return socket_.state() == QAbstractSocket::UnconnectedState; }, 5000); }
    void send(const QJsonObject &o) { socket_.sendTextMessage(QString::fromUtf8(QJsonDocument(o).toJson(QJsonDocument::Compact))); }
    void sendRaw(const QString &text) { socket_.sendTextMessage(text); }
    // The last message of a type once one has come (waits for it).
    QJsonObject last(const QString &type, const QString &phase = QString())
    {
        QJsonObject found;
        (void)QTest::qWaitFor([&] {
            for (auto it = got.crbegin(); it != got.crend(); ++it) {
                if ((*it)[QStringLiteral("type")] == type &&
                    (phase.isEmpty() || (*it)[QStringLiteral("phase")] == phase)) {
                    found = *it;
                    return true;
                }
            }
            return false;
        }, 5000);
        return found;
    }
    QJsonObject join(const QString &room, int team, const QString &name)
    {
        send({{QStringLiteral("type"), QStringLiteral("join")}, {QStringLiteral("room"), room},
              {QStringLiteral("team"), team}, {QStringLiteral("name"), name}});
        return last(QStringLiteral("joined"));
    }
    QWebSocket &socket() { return socket_; }
    QList<QJsonObject> got;

private:
    QWebSocket socket_;
};

QJsonObject message(const char *type) { return {{QStringLiteral("type"), QLatin1String(type)}}; }

} // namespace

class TestPlayers : public QObject, GameFixture {
    Q_OBJECT

    std::unique_ptr<BuzzIn> buzzIn_;
    std::unique_ptr<TeamAnswers> answers_;
    std::unique_ptr<PlayersRoom> room_;
    std::unique_ptr<PlayersServer> server_;
    quint16 port_ = 0;

    void startServer()
    {
        server_ = std::make_unique<PlayersServer>(*room_, settings_);
        port_ = server_->start(QHostAddress::LocalHost);
        QVERIFY(port_);
        server_->attach(game_.get(), buzzIn_.get(), answers_.get());
    }
    // A plain clue of a three-team game, buzz-in on, its lock running (as
    // in the game itself).
    int openPlainClue()
    {
        ForceGameMode(true);
        const int tile = plainTile();
        clock_->advance(3000);
        game_->TilePress(tile, true, false);
        return tile;
    }
    QString roomCode() const { return room_->code(); }

private slots:
    void init()
    {
        setUp(5);
        ForceGameMode(false); // the lock only where a test opens a clue
        startRules(setText({"A", "B", "C", "D", "E", "F"}, {}, "Seas"), 3, false);
        buzzIn_ = std::make_unique<BuzzIn>(*game_);
        buzzIn_->setEnabled(true);
        answers_ = std::make_unique<TeamAnswers>(*game_);
        game_->start();
        room_ = std::make_unique<PlayersRoom>();
        startServer();
    }

    void cleanup()
    {
        server_.reset();
        room_.reset();
        answers_.reset();
        buzzIn_.reset();
        tearDown();
    }

    void joiningTakesTheRoomCode()
    {
        Phone phone(port_);
        QVERIFY(phone.connected());
        const QJsonObject welcome = phone.last(QStringLiteral("welcome"));
        QCOMPARE(welcome[QStringLiteral("teams")].toArray().size(), 3);
        QCOMPARE(welcome[QStringLiteral("teams")][1][QStringLiteral("name")].toString(), QStringLiteral("Team 2"));
        phone.send({{QStringLiteral("type"), QStringLiteral("join")}, {QStringLiteral("room"), QStringLiteral("ZZZZ")},
                    {QStringLiteral("team"), 1}, {QStringLiteral("name"), QStringLiteral("Ana")}});
        QCOMPARE(phone.last(QStringLiteral("error"))[QStringLiteral("code")].toString(), QStringLiteral("room"));
        QVERIFY(room_->players().isEmpty());
        const QJsonObject joined = phone.join(roomCode().toLower(), 1, QStringLiteral("  <b>Ana</b>  "));
        QCOMPARE(joined[QStringLiteral("team")].toInt(), 1);
        QCOMPARE(joined[QStringLiteral("name")].toString(), QStringLiteral("<b>Ana</b>")); // text, kept as typed
        QCOMPARE(joined[QStringLiteral("token")].toString().size(), 32);
        QCOMPARE(phone.last(QStringLiteral("state"))[QStringLiteral("phase")].toString(), QStringLiteral("idle"));
        QCOMPARE(room_->players().size(), 1);
    }

    // Three phones buzz: the order is the order their buzzes arrived in,
    // and each hears what it may do now.
    void phonesBuzzInTheGamesOrder()
    {
        Phone a(port_), b(port_), c(port_);
        for (Phone *p : {&a, &b, &c})
            QVERIFY(p->connected());
        a.join(roomCode(), 0, QStringLiteral("Ana"));
        b.join(roomCode(), 1, QStringLiteral("Ben"));
        c.join(roomCode(), 2, QStringLiteral("Cy"));
        openPlainClue();
        QVERIFY(!a.last(QStringLiteral("state"), QStringLiteral("closed")).isEmpty());
        buzzIn_->toggleOpen();
        QVERIFY(!a.last(QStringLiteral("state"), QStringLiteral("open")).isEmpty());
        c.send(message("buzz"));
        QVERIFY(!c.last(QStringLiteral("state"), QStringLiteral("first")).isEmpty());
        clock_->advance(5);
        a.send(message("buzz"));
        QTRY_COMPARE(buzzIn_->order().size(), 2);
        QCOMPARE(buzzIn_->order()[0].team, 2);
        QCOMPARE(buzzIn_->order()[1].team, 0);
        QCOMPARE(a.last(QStringLiteral("state"), QStringLiteral("other"))[QStringLiteral("answering")].toString(),
                 QStringLiteral("Team 3"));
        buzzIn_->judgeWrong();
        QVERIFY(!a.last(QStringLiteral("state"), QStringLiteral("first")).isEmpty());
        QVERIFY(!c.last(QStringLiteral("state"), QStringLiteral("out")).isEmpty());
    }

    // A phone acts for its own token's team only, whatever it claims.
    void aPhoneCannotActForAnotherTeam()
    {
        Phone stranger(port_), a(port_);
        QVERIFY(stranger.connected() && a.connected());
        a.join(roomCode(), 0, QStringLiteral("Ana"));
        openPlainClue();
        buzzIn_->toggleOpen();
        stranger.send(message("buzz")); // never joined
        stranger.send({{QStringLiteral("type"), QStringLiteral("hello")}, {QStringLiteral("token"), QString(32, QLatin1Char('0'))}});
        QCOMPARE(stranger.last(QStringLiteral("error"))[QStringLiteral("code")].toString(), QStringLiteral("token"));
        a.send({{QStringLiteral("type"), QStringLiteral("buzz")}, {QStringLiteral("team"), 2}});
        QTRY_COMPARE(buzzIn_->order().size(), 1);
        QCOMPARE(buzzIn_->order()[0].team, 0);
        // A wager outside a wager's time, and a response outside the final's.
        a.send({{QStringLiteral("type"), QStringLiteral("wager")}, {QStringLiteral("amount"), 100}});
        a.send({{QStringLiteral("type"), QStringLiteral("response")}, {QStringLiteral("text"), QStringLiteral("x")}});
        a.send(message("buzz"));
        QTRY_COMPARE(a.last(QStringLiteral("state"))[QStringLiteral("phase")].toString(), QStringLiteral("first"));
        QVERIFY(!answers_->answer(0).wager && !answers_->answer(0).response);
    }

    // A phone that lost its connection (asleep, out of the Wi-Fi) comes back
    // with its token to its team and the state of now; so after the game
    // was killed and resumed, its room restored from the journal.
    void aPhoneComesBackWithItsToken()
    {
        QString token;
        {
            Phone a(port_);
            QVERIFY(a.connected());
            token = a.join(roomCode(), 2, QStringLiteral("Cy"))[QStringLiteral("token")].toString();
        }
        openPlainClue();
        buzzIn_->toggleOpen();
        Phone back(port_);
        QVERIFY(back.connected());
        back.send({{QStringLiteral("type"), QStringLiteral("hello")}, {QStringLiteral("token"), token}});
        QCOMPARE(back.last(QStringLiteral("joined"))[QStringLiteral("team")].toInt(), 2);
        QVERIFY(!back.last(QStringLiteral("state"), QStringLiteral("open")).isEmpty());
        // The program ends and starts again: the journal gives the room back.
        const QString code = room_->code();
        const QList<PhonePlayer> players = room_->players();
        const quint16 port = port_;
        server_.reset();
        QVERIFY(back.closed());
        room_ = std::make_unique<PlayersRoom>();
        room_->restore(code, port, players);
        startServer();
        QCOMPARE(port_, port);
        Phone again(port_);
        QVERIFY(again.connected());
        again.send({{QStringLiteral("type"), QStringLiteral("hello")}, {QStringLiteral("token"), token}});
        QCOMPARE(again.last(QStringLiteral("joined"))[QStringLiteral("name")].toString(), QStringLiteral("Cy"));
    }

    // Every limit at the edge: what is too big, too fast, too many, too
    // slow or not the page's is refused or closed.
    void everyLimitHolds()
    {
        Phone big(port_);
        QVERIFY(big.connected());
        big.sendRaw(QString(1100, QLatin1Char('x'))); // over 1 KB
        QVERIFY(big.closed());
        Phone flood(port_);
        QVERIFY(flood.connected());
        flood.join(roomCode(), 0, QStringLiteral("Fast"));
        for (int i = 0; i < 25; ++i)
            flood.send(message("buzz"));
        QCOMPARE(flood.last(QStringLiteral("error"))[QStringLiteral("code")].toString(), QStringLiteral("busy"));
        QCOMPARE(flood.socket().state(), QAbstractSocket::ConnectedState);
        for (int i = 0; i < 20; ++i)
            flood.send(message("buzz"));
        QVERIFY(flood.closed()); // twice the rate within a second
        std::vector<std::unique_ptr<Phone>> many;
        for (int i = 0; i < 8; ++i) {
            many.push_back(std::make_unique<Phone>(port_));
            QVERIFY(many.back()->connected());
        }
        Phone ninth(port_); // from the same address
        QVERIFY(ninth.closed());
        QCOMPARE(ninth.got.size(), 0);
        many.clear();
        QTRY_COMPARE(server_->phoneConnections(), 0);
        // HTTP: only the page's files; a request too large or too slow closes.
        // The server shares this thread: every wait lets the event loop run.
        const auto request = [this](const QByteArray &bytes, bool slow = false) {
            QTcpSocket s;
            s.connectToHost(QHostAddress::LocalHost, port_);
            if (!QTest::qWaitFor([&] { return s.state() == QAbstractSocket::ConnectedState; }, 5000))
                return QByteArray("not connected");
            s.write(bytes);
            if (slow) {
                QTest::qWait(50); // the server takes the first bytes
                clock_->advance(11'000);
                server_->sweep();
            }
            QByteArray answer;
            (void)QTest::qWaitFor([&] {
                answer += s.readAll();
                return s.state() == QAbstractSocket::UnconnectedState || answer.contains("\r\n\r\n");
            }, 5000);
            return answer;
        };
        QVERIFY(request("GET /../etc/passwd HTTP/1.1\r\nHost: x\r\n\r\n").startsWith("HTTP/1.1 404"));
        QVERIFY(request("GET /app.js HTTP/1.1\r\nHost: x\r\n\r\n").contains("Content-Type: text/javascript"));
        QCOMPARE(request("GET / HTTP/1.1\r\nX-Long: " + QByteArray(20'000, 'x')), QByteArray());
        QCOMPARE(request("GET / HT", true), QByteArray());
        // Two hundred players, and not one more.
        Phone joiner(port_);
        QVERIFY(joiner.connected());
        for (int i = int(room_->players().size()); i < PlayersRoom::kMostPlayers; ++i) {
            clock_->advance(100); // within the rate
            joiner.send({{QStringLiteral("type"), QStringLiteral("join")}, {QStringLiteral("room"), roomCode()},
                         {QStringLiteral("team"), i % 3}, {QStringLiteral("name"), QStringLiteral("P%1").arg(i)}});
            QTRY_COMPARE(room_->players().size(), i + 1);
        }
        QTRY_COMPARE(room_->players().size(), PlayersRoom::kMostPlayers);
        clock_->advance(100);
        joiner.send({{QStringLiteral("type"), QStringLiteral("join")}, {QStringLiteral("room"), roomCode()},
                     {QStringLiteral("team"), 0}, {QStringLiteral("name"), QStringLiteral("one more")}});
        QCOMPARE(joiner.last(QStringLiteral("error"))[QStringLiteral("code")].toString(), QStringLiteral("full"));
    }

    // A phone that no longer answers the server's pings is let go.
    void aDeadPhoneIsDropped()
    {
        // A phone's connection, opened by hand, that then answers nothing:
        // asleep, with its socket still open.
        QTcpSocket asleep;
        asleep.connectToHost(QHostAddress::LocalHost, port_);
        QTRY_COMPARE(asleep.state(), QAbstractSocket::ConnectedState);
        asleep.write("GET /ws HTTP/1.1\r\nHost: x\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
                     "Sec-WebSocket-Version: 13\r\nSec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n");
        QTRY_VERIFY(asleep.bytesAvailable() > 0);
        QVERIFY(asleep.readAll().startsWith("HTTP/1.1 101"));
        QTRY_COMPARE(server_->phoneConnections(), 1);
        clock_->advance(25'000);
        server_->sweep();
        QTRY_COMPARE(server_->phoneConnections(), 0);
    }

    // The checker alone, on messages no page sends (tests/data/player-messages.txt).
    void onlyWellFormedMessagesAreMessages_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("accepted");
        for (const QByteArray &line : readFile(QStringLiteral(QUIZZARR_TEST_DATA "/player-messages.txt")).split('\n')) {
            if (!line.isEmpty() && !line.startsWith('#'))
                QTest::newRow(line.left(60).constData()) << line.mid(line.indexOf('\t') + 1) << line.startsWith("accepted");
        }
    }
    void onlyWellFormedMessagesAreMessages()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, accepted);
        QCOMPARE(ParsePlayerMessage(bytes).has_value(), accepted);
    }

    void wagersAndTheFinalsResponses()
    {
        Phone a(port_), b(port_);
        QVERIFY(a.connected() && b.connected());
        a.join(roomCode(), 0, QStringLiteral("Ana"));
        b.join(roomCode(), 1, QStringLiteral("Ben"));
        game_->addToScore(0, 300);
        // A daily double found by team 1 (it answered right last): it wagers.
        answers_->noteRight(0);
        clock_->advance(3000);
        game_->TilePress(settings_.DailyDouble1, true, false);
        const QJsonObject asked = a.last(QStringLiteral("state"), QStringLiteral("wager"));
        QCOMPARE(asked[QStringLiteral("max")].toInt(), 500); // the round's highest value, above its score
        QCOMPARE(b.last(QStringLiteral("state"))[QStringLiteral("phase")].toString(), QStringLiteral("idle"));
        a.send({{QStringLiteral("type"), QStringLiteral("wager")}, {QStringLiteral("amount"), 600}}); // too much
        a.send({{QStringLiteral("type"), QStringLiteral("wager")}, {QStringLiteral("amount"), 400}});
        b.send({{QStringLiteral("type"), QStringLiteral("wager")}, {QStringLiteral("amount"), 100}}); // not its daily double
        QTRY_COMPARE(answers_->answer(0).wager, std::optional<qint64>(400));
        QVERIFY(!answers_->answer(1).wager);
        // The final: every team wagers while the category shows, answers
        // while the clue shows, and is locked once it is over.
        for (int i = 0; i < 3; ++i) {
            clock_->advance(3000);
            game_->AnswerScreenPress();
        }
        QVERIFY(game_->KeyDown(QLatin1Char('N'), -1, 7));
        clock_->advance(3000);
        game_->AnswerScreenPress(); // the category
        QCOMPARE(b.last(QStringLiteral("state"), QStringLiteral("finalWager"))[QStringLiteral("category")].toString(),
                 QStringLiteral("Seas"));
        a.send({{QStringLiteral("type"), QStringLiteral("wager")}, {QStringLiteral("amount"), 300}});
        b.send({{QStringLiteral("type"), QStringLiteral("wager")}, {QStringLiteral("amount"), 1}}); // it has nothing to wager
        QTRY_COMPARE(answers_->answer(0).wager, std::optional<qint64>(300));
        QVERIFY(!answers_->answer(1).wager);
        // No think music in a test program: the clue takes responses until
        // the host goes on.
        clock_->advance(3000);
        game_->AnswerScreenPress(); // the clue
        QVERIFY(!a.last(QStringLiteral("state"), QStringLiteral("finalResponse")).isEmpty());
        a.send({{QStringLiteral("type"), QStringLiteral("response")}, {QStringLiteral("text"), QStringLiteral("What is the Baltic?")}});
        QTRY_COMPARE(answers_->answer(0).response, std::optional<QString>(QStringLiteral("What is the Baltic?")));
        game_->AnswerScreenPress(); // the response shows
        QVERIFY(!a.last(QStringLiteral("state"), QStringLiteral("finalLocked")).isEmpty());
        a.send({{QStringLiteral("type"), QStringLiteral("response")}, {QStringLiteral("text"), QStringLiteral("changed")}});
        // The host judges; the reveal changes the score.
        answers_->judge(0, true);
        QCOMPARE(answers_->revealNext(), std::optional<int>(0));
        QCOMPARE(settings_.Scores[0], 600);
    }
};

QTEST_MAIN(TestPlayers)
#include "test_players.moc"
