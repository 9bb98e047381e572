// Benchmark (not a test): from a buzzer's key event to the team's name
// painted on the answer screen, over 1,000 buzzes, at 1920x1080 and at
// 3840x2160 (each in a process of its own, on Qt's offscreen platform with
// a screen of that size). Prints the median and the 99th percentile.
//
//   bench_buzz              both sizes
//   bench_buzz 1920x1080    one

#include "game/BuzzIn.h"
#include "game/BuzzerInputs.h"
#include "game/GameState.h"
#include "shell/Libraries.h"
#include "shell/PictureLibrary.h"
#include "ui/board/frmMain.h"
#include "ui/controls/ShadowLabel.h"

#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <QTextStream>

#include <algorithm>

namespace {

constexpr int kBuzzes = 1000;
constexpr quint32 kScanCode = 69; // F3 on a PC keyboard

void key(QObject *to, ulong ms)
{
    QKeyEvent e(QEvent::KeyPress, Qt::Key_F3, Qt::NoModifier, kScanCode, 0, 0);
    e.setTimestamp(ms);
    QCoreApplication::sendEvent(to, &e);
}

int measure(QApplication &app, QTextStream &out, const QString &size)
{
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    GameState state;
    Libraries libraries;
    libraries.hPictureLib = PictureLibrary::load(QStringLiteral(QUIZZARR_PROGRAM_DIR "/PLOVQBmp.so"));
    state.QuestionFile = QStringLiteral(QUIZZARR_PROGRAM_DIR "/General Knowledge.QZ2");
    state.choosePictures(pictureIdsForScreenWidth(size.section(QLatin1Char('x'), 0, 0).toInt()));
    frmMain *board = frmMain::StartGame(state, libraries, 10);
    BuzzerInputs inputs;
    inputs.learn(0);
    key(board, 1);
    inputs.setBuzzIn(true);
    inputs.attach(&board->buzzIn());
    int tile = 7;
    while (tile == state.DailyDouble1 || tile == state.DailyDouble2)
        ++tile;
    board->run([tile](BoardGame &g) { g.TilePress(tile, true, false); });
    app.processEvents();
    const ShadowLabel *name = board->findChild<ShadowLabel *>(QStringLiteral("lblBuzz"));
    std::vector<qint64> us;
    QElapsedTimer t;
    for (int i = 0; i < kBuzzes; ++i) {
        // A fresh clue's buzzers, open and waiting.
        board->buzzIn().setEnabled(false);
        board->buzzIn().setEnabled(true);
        if (!board->buzzIn().isOpen())
            board->buzzIn().toggleOpen();
        app.processEvents();
        // A buzz within the millisecond the buzzers open may count as early
        // (times are whole milliseconds): this one comes a moment later.
        QThread::msleep(2);
        t.start();
        // Stamped as a window system stamps it: the time it was made.
        key(board, ulong(QDateTime::currentMSecsSinceEpoch() & 0xffffffff));
        us.push_back(t.nsecsElapsed() / 1000);
        if (!name->isVisible()) {
            out << "no name shown: learned " << inputs.settings().teams[0].describe() << ", takes " << board->buzzIn().takesBuzzes()
                << ", open " << board->buzzIn().isOpen() << ", order " << board->buzzIn().order().size() << ", screen "
                << board->screenVisible() << "\n";
            return 1;
        }
    }
    std::sort(us.begin(), us.end());
    out << "buzz to name painted at " << size << ": median " << double(us[us.size() / 2]) / 1000.0 << " ms, 99th percentile "
        << double(us[us.size() * 99 / 100]) / 1000.0 << " ms (" << board->width() << "x" << board->height() << ")\n";
    delete board;
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1) {
        const QString size = QString::fromLocal8Bit(argv[1]);
        QTemporaryDir work;
        QFile config(work.filePath(QStringLiteral("screen.json")));
        if (!config.open(QIODevice::WriteOnly))
            return 1;
        config.write(QStringLiteral("{\"screens\": [{\"name\": \"s\", \"x\": 0, \"y\": 0, \"width\": %1, \"height\": %2, "
                                    "\"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1}]}")
                         .arg(size.section(QLatin1Char('x'), 0, 0), size.section(QLatin1Char('x'), 1, 1))
                         .toUtf8());
        config.close();
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config.fileName().toLocal8Bit());
        for (const char *folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            qputenv(folder, work.path().toLocal8Bit());
        QApplication app(argc, argv);
        QTextStream out(stdout);
        return measure(app, out, size);
    }
    int failed = 0;
    for (const char *size : {"1920x1080", "3840x2160"}) {
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedChannels);
        child.start(QString::fromLocal8Bit(argv[0]), {QLatin1String(size)});
        child.waitForFinished(-1);
        failed += child.exitCode() != 0;
    }
    return failed;
}
