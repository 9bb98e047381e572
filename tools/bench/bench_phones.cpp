// Benchmark (not a test): 200 phones on loopback. The game's side (the
// board at 1920x1080 on Qt's offscreen platform, the players' server) runs
// here; the phones run in a second process (bench_phones phones PORT ROOM),
// each a WebSocket opened by hand from its own loopback address (eight to an
// address, the server's limit) so that 200 of them can connect. Reports:
//
// - the game's CPU with 200 phones connected and idle, over 10 s;
// - its memory per connected phone;
// - from a buzz message sent to the team's name painted on the board, the
//   median and 99th percentile over 100 clues, all 200 phones buzzing
//   within 10 ms each time;
// - whether the order decided is the order sent, for ten teams' buzzes sent
//   1 ms apart, over 20 clues.

#include "game/BuzzIn.h"
#include "game/GameState.h"
#include "game/PlayersRoom.h"
#include "players/PlayersServer.h"
#include "shell/Libraries.h"
#include "shell/PictureLibrary.h"
#include "ui/board/frmMain.h"
#include "ui/controls/ShadowLabel.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTextStream>
#include <QSocketNotifier>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <sys/resource.h>

namespace {

constexpr int kPhones = 200;

qint64 steadyNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// ------------------------------------------------------------- the phones

// A WebSocket client by hand: a handshake, masked text frames out, pings
// answered, everything else read and dropped.
class RawPhone {
public:
    RawPhone(int index, quint16 port)
    {
        socket_.bind(QHostAddress(QStringLiteral("127.0.0.%1").arg(1 + index / 8)));
        socket_.connectToHost(QHostAddress::LocalHost, port);
        QObject::connect(&socket_, &QTcpSocket::connected, [this] {
            socket_.write("GET /ws HTTP/1.1\r\nHost: 127.0.0.1\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
                          "Sec-WebSocket-Version: 13\r\nSec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n");
        });
        QObject::connect(&socket_, &QTcpSocket::readyRead, [this] { read(); });
    }
    bool open() const { return open_; }
    void send(const QByteArray &text, int opcode = 1)
    {
        QByteArray frame;
        frame.append(char(0x80 | opcode));
        frame.append(char(0x80 | text.size())); // short messages only
        const quint32 mask = QRandomGenerator::global()->generate();
        const char *m = reinterpret_cast<const char *>(&mask);
        frame.append(m, 4);
        for (qsizetype i = 0; i < text.size(); ++i)
            frame.append(char(text[i] ^ m[i % 4]));
        socket_.write(frame);
        socket_.flush();
    }

private:
    void read()
    {
        buffer_ += socket_.readAll();
        if (!open_) {
            const qsizetype end = buffer_.indexOf("\r\n\r\n");
            if (end < 0)
                return;
            open_ = buffer_.startsWith("HTTP/1.1 101");
            buffer_.remove(0, end + 4);
        }
        while (buffer_.size() >= 2) {
            const int opcode = buffer_[0] & 0x0f;
            qsizetype length = buffer_[1] & 0x7f, at = 2;
            if (length == 126) {
                if (buffer_.size() < 4)
                    return;
                length = (uchar(buffer_[2]) << 8) | uchar(buffer_[3]);
                at = 4;
            }
            if (buffer_.size() < at + length)
                return;
            if (opcode == 9) // a ping: the pong carries its data back
                send(buffer_.mid(at, length), 10);
            buffer_.remove(0, at + length);
        }
    }

    QTcpSocket socket_;
    QByteArray buffer_;
    bool open_ = false;
};

int runPhones(QCoreApplication &app, quint16 port, const QString &room)
{
    std::vector<std::unique_ptr<RawPhone>> phones;
    for (int i = 0; i < kPhones; ++i)
        phones.push_back(std::make_unique<RawPhone>(i, port));
    while (!std::all_of(phones.begin(), phones.end(), [](const auto &p) { return p->open(); })) {
        app.processEvents(QEventLoop::WaitForMoreEvents);
    }
    for (int i = 0; i < kPhones; ++i) {
        phones[size_t(i)]->send(QStringLiteral(R"({"type":"join","room":"%1","team":%2,"name":"P%3"})")
                                    .arg(room).arg(i % 10).arg(i).toUtf8());
        if (i % 15 == 14) // within the server's rate for the one connection... and kind to it
            QThread::msleep(1);
    }
    QTextStream out(stdout), in(stdin);
    out << "joined" << Qt::endl;
    // Commands: "storm" (all 200 within 10 ms, the order of the indices),
    // "ordered" (one phone of each team, 1 ms apart, teams 9 down to 0).
    QSocketNotifier notifier(0, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, [&] {
        const QString command = in.readLine().trimmed();
        if (command == QStringLiteral("storm")) {
            const qint64 start = steadyNs();
            out << "sent " << start << Qt::endl;
            for (int i = 0; i < kPhones; ++i) {
                phones[size_t(i)]->send(R"({"type":"buzz"})");
                while (steadyNs() < start + qint64(i) * 10'000'000 / kPhones)
                    ;
            }
        } else if (command == QStringLiteral("ordered")) {
            for (int team = 9; team >= 0; --team) {
                phones[size_t(team)]->send(R"({"type":"buzz"})");
                QThread::usleep(1000);
            }
            out << "sent" << Qt::endl;
        } else {
            app.quit();
        }
    });
    return app.exec();
}

// ------------------------------------------------------------- the game

qint64 rssKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    }
    return 0;
}

qint64 cpuUs()
{
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    return qint64(u.ru_utime.tv_sec + u.ru_stime.tv_sec) * 1'000'000 + u.ru_utime.tv_usec + u.ru_stime.tv_usec;
}

// Paints of the team's name are counted here, with the moment each ended.
class PaintWatch : public QObject {
public:
    qint64 lastPainted = 0;

protected:
    bool eventFilter(QObject *o, QEvent *e) override
    {
        if (e->type() == QEvent::Paint) {
            const bool handled = o->event(e); // the paint itself, then its moment
            lastPainted = steadyNs();
            return handled;
        }
        return false;
    }
};

int runGame(QApplication &app, const char *self)
{
    QTextStream out(stdout);
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    GameState state;
    Libraries libraries;
    libraries.hPictureLib = PictureLibrary::load(QStringLiteral(QUIZZARR_PROGRAM_DIR "/PLOVQBmp.so"));
    state.QuestionFile = QStringLiteral(QUIZZARR_PROGRAM_DIR "/General Knowledge.QZ2");
    state.choosePictures(pictureIdsForScreenWidth(1920));
    frmMain *board = frmMain::StartGame(state, libraries, 10);
    board->buzzIn().setEnabled(true);
    PlayersRoom room;
    PlayersServer server(room, state);
    const quint16 port = server.start(QHostAddress::LocalHost);
    server.attach(&board->game(), &board->buzzIn(), &board->answers());
    app.processEvents();
    const qint64 before = rssKb();

    QProcess phones;
    phones.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    phones.start(QString::fromLocal8Bit(self), {QStringLiteral("phones"), QString::number(port), room.code()});
    const auto line = [&] {
        while (!phones.canReadLine())
            app.processEvents(QEventLoop::WaitForMoreEvents);
        return QString::fromUtf8(phones.readLine()).trimmed();
    };
    const auto tell = [&](const char *command) {
        phones.write(QByteArray(command) + '\n');
        phones.waitForBytesWritten();
    };
    line(); // joined
    while (room.players().size() < kPhones || server.phoneConnections() < kPhones) {
        app.processEvents(QEventLoop::WaitForMoreEvents);
    }
    for (int i = 0; i < 50; ++i)
        app.processEvents(QEventLoop::AllEvents, 10);
    const qint64 after = rssKb();
    out << "memory: " << double(after - before) / kPhones << " KB a connected phone (" << before << " KB before, "
        << after << " KB after)" << Qt::endl;

    // Idle: every phone connected, nothing happening but the pings.
    const qint64 cpu0 = cpuUs(), wall0 = steadyNs();
    QEventLoop idle;
    QTimer::singleShot(10'000, &idle, &QEventLoop::quit);
    idle.exec();
    const double idleCpu = double(cpuUs() - cpu0) * 1000.0 / double(steadyNs() - wall0) * 100.0;
    out << "idle with " << server.phoneConnections() << " phones: " << idleCpu << " % of a core" << Qt::endl;

    PaintWatch watch;
    board->findChild<ShadowLabel *>(QStringLiteral("lblBuzz"))->installEventFilter(&watch);
    int tile = 7;
    while (tile == state.DailyDouble1 || tile == state.DailyDouble2)
        ++tile;
    board->run([tile](BoardGame &g) { g.TilePress(tile, true, false); });
    const auto freshClue = [&] {
        // A phone sends at most 20 messages a second (the server's limit):
        // a clue every tenth of a second keeps well within it.
        QEventLoop pause;
        QTimer::singleShot(100, &pause, &QEventLoop::quit);
        pause.exec();
        board->buzzIn().setEnabled(false);
        board->buzzIn().setEnabled(true);
        if (!board->buzzIn().isOpen())
            board->buzzIn().toggleOpen();
        app.processEvents();
        QThread::msleep(5);
    };
    std::vector<double> ms;
    for (int round = 0; round < 100; ++round) {
        freshClue();
        watch.lastPainted = 0;
        tell("storm");
        const qint64 sent = line().section(QLatin1Char(' '), 1).toLongLong();
        while (board->buzzIn().order().size() < 10 || !watch.lastPainted) {
            app.processEvents(QEventLoop::WaitForMoreEvents);
        }
        ms.push_back(double(watch.lastPainted - sent) / 1e6);
    }
    std::sort(ms.begin(), ms.end());
    out << "first of 200 buzzes (within 10 ms) to the name painted at 1920x1080: median " << ms[ms.size() / 2]
        << " ms, 99th percentile " << ms[ms.size() * 99 / 100] << " ms" << Qt::endl;

    int right = 0;
    for (int round = 0; round < 20; ++round) {
        freshClue();
        tell("ordered");
        line();
        while (board->buzzIn().order().size() < 10)
            app.processEvents(QEventLoop::WaitForMoreEvents);
        QList<int> order;
        for (const BuzzIn::Entry &e : board->buzzIn().order())
            order << e.team;
        right += order == QList<int>{9, 8, 7, 6, 5, 4, 3, 2, 1, 0} ? 1 : 0;
    }
    out << "buzzes sent 1 ms apart decided in the order sent: " << right << " of 20 clues" << Qt::endl;
    tell("quit");
    phones.waitForFinished();
    delete board;
    return right == 20 ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 3 && QByteArray(argv[1]) == "phones") {
        QCoreApplication app(argc, argv);
        return runPhones(app, quint16(QByteArray(argv[2]).toUInt()), QString::fromLatin1(argv[3]));
    }
    QTemporaryDir work;
    QFile config(work.filePath(QStringLiteral("screen.json")));
    if (!config.open(QIODevice::WriteOnly))
        return 1;
    config.write(R"({"screens": [{"name": "s", "x": 0, "y": 0, "width": 1920, "height": 1080, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    config.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config.fileName().toLocal8Bit());
    for (const char *folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(folder, work.path().toLocal8Bit());
    QApplication app(argc, argv);
    return runGame(app, argv[0]);
}
