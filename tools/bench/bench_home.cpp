// Benchmark (not a test): the home screen with a big library of sets.
//   start-up to the painted home screen, against a bare Qt Widgets window
//   with a 5-line list (bench_bare_window), each a fresh process;
//   the same start-up with 10,000 sets in the program folder, against 5;
//   a key press in the list with 10,000 sets, to the list repainted.
// Run it under Xvfb (xvfb-run -a bench_home) to count the window system's
// share, as a host's screen would.

#include "game/GameState.h"
#include "platform/ModuleFileName.h"
#include "platform/MsgBox.h"
#include "shell/Libraries.h"
#include "shell/StartupPrefetch.h"
#include "select/QuestionSetList.h"
#include "ui/select/frmSelect.h"
#include "ui/shell/WindowIcon.h"
#include "ui/shell/basPLOVQuzr.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QListWidget>
#include <QProcess>
#include <QThread>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <unistd.h>

namespace {

// A program folder: the companion libraries beside count sets.
void makeProgramFolder(const QString &folder, int count)
{
    for (const char *library : {"PLOVQBmp.so", "PLOVQSnd.so"})
        QFile::link(QStringLiteral(QUIZZARR_PROGRAM_DIR "/") + QLatin1String(library),
                    folder + QLatin1Char('/') + QLatin1String(library));
    for (int i = 0; i < count; ++i) {
        QFile f(folder + QStringLiteral("/Set %1 of the library.QZ2").arg(i, 5, 10, QLatin1Char('0')));
        f.open(QIODevice::WriteOnly);
        f.write("[Round1]\r\nDescription=A set of questions, number " + QByteArray::number(i) +
                "\r\nTimer=20\r\nCategory0=Rivers\r\n");
    }
}

double median(QList<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

QString ms(double value)
{
    return QString::number(value, 'f', 1) + QStringLiteral(" ms");
}

QString times(double value)
{
    return QString::number(value, 'f', 2) + QLatin1Char('x');
}

// Counts the paints a widget gets; shown on a real screen (under Xvfb),
// the window system's expose decides when the first one comes.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    int paints = 0;
    void waitForPaint()
    {
        const int before = paints;
        while (paints == before)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

// The child processes end at their list's first paint: start-up is what
// comes before it, not the tidying after.
[[noreturn]] void endAtFirstPaint(QWidget *list)
{
    PaintCounter counter(list);
    counter.waitForPaint();
    ::_exit(0);
}

// As the game's own main() starts, with the program folder elsewhere.
int game(int argc, char **argv, const QString &programFolder)
{
    QApplication::setApplicationName(applicationTitle());
    ModuleFileName::overrideProgramFolder(programFolder);
    auto ahead = std::make_unique<StartupPrefetch>();
    QApplication app(argc, argv);
    SetWindowIconAfterFirstPaint(QStringLiteral("quizzarr"));
    QApplication::setQuitOnLastWindowClosed(false);
    ModuleFileName::declareGameExecutable();
    GameState state;
    Libraries libraries;
    basPLOVQuzr::Main(state, libraries, ahead.get());
    ahead.reset();
    for (QWidget *window : QApplication::topLevelWidgets())
        if (auto *home = qobject_cast<frmSelect *>(window))
            endAtFirstPaint(home->lstQuestions->viewport());
    return 1;
}

// Milliseconds from starting a process to its end.
double runMs(const QString &program, const QStringList &arguments, const QProcessEnvironment &environment)
{
    QProcess child;
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer t;
    t.start();
    child.start(program, arguments);
    child.waitForFinished(-1);
    const double elapsed = t.nsecsElapsed() / 1e6;
    if (child.exitCode() != 0)
        qFatal("bench_home %s failed", qPrintable(arguments.join(QLatin1Char(' '))));
    // The window system tidies up after the child; the next start must
    // not pay for it.
    QThread::msleep(100);
    return elapsed;
}

// A user with no sets of their own and no game left behind.
class User {
public:
    User()
    {
        environment_.insert(QStringLiteral("HOME"), home_.path());
        environment_.insert(QStringLiteral("XDG_DATA_HOME"), home_.path() + QStringLiteral("/data"));
        environment_.insert(QStringLiteral("XDG_CONFIG_HOME"), home_.path() + QStringLiteral("/config"));
        environment_.insert(QStringLiteral("XDG_CACHE_HOME"), home_.path() + QStringLiteral("/cache"));
        environment_.insert(QStringLiteral("XDG_RUNTIME_DIR"), home_.path());
        environment_.insert(QStringLiteral("SDL_AUDIODRIVER"), QStringLiteral("dummy"));
    }
    const QProcessEnvironment &environment() const { return environment_; }
    qint64 cacheBytes() const
    {
        qint64 bytes = 0;
        for (const QFileInfo &folder :
             QDir(home_.path() + QStringLiteral("/cache")).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot))
            bytes += QFileInfo(folder.filePath() + QStringLiteral("/set-descriptions")).size();
        return bytes;
    }

private:
    QTemporaryDir home_;
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
};

void startUp(QTextStream &out, const QString &few, const QString &many)
{
    // Each its own user, as each host has one program folder.
    User bareUser, fewUser, manyUser;
    const QString self = QCoreApplication::applicationFilePath();
    const QString bareWindow = QCoreApplication::applicationDirPath() + QStringLiteral("/bench_bare_window");
    const auto game = [&](const QString &folder, const User &user) {
        return runMs(self, {QStringLiteral("--game"), folder}, user.environment());
    };
    // The first start reads every set; it leaves what it read in the cache.
    const double first = game(many, manyUser);
    const qint64 cacheBytes = manyUser.cacheBytes();
    QList<double> bare, small, large;
    for (int run = 0; run < 21; ++run) {
        bare << runMs(bareWindow, {}, bareUser.environment());
        small << game(few, fewUser);
        large << game(many, manyUser);
    }
    out << "start-up to the painted home screen: a bare window " << ms(median(bare)) << ", the game with 5 sets "
        << ms(median(small)) << " (" << times(median(small) / median(bare)) << ")\n";
    out << "home screen painted with 10,000 sets " << ms(median(large)) << ", against 5 sets ("
        << times(median(large) / median(small)) << "); the very first start, nothing cached: " << ms(first)
        << " (" << times(first / median(small)) << "), leaving a cache of " << cacheBytes / 1024 << " KB\n";
}

void keyPress(QTextStream &out, const QString &many)
{
    GameState state;
    Libraries libraries;
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    ModuleFileName::overrideProgramFolder(many);
    frmSelect home(state, libraries);
    PaintCounter list(home.lstQuestions->viewport());
    home.show();
    list.waitForPaint();
    home.lstQuestions->setFocus();
    QList<double> keys;
    for (int k = 0; k < 20; ++k) {
        QElapsedTimer t;
        t.start();
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QCoreApplication::sendEvent(home.lstQuestions, &down);
        list.waitForPaint();
        keys << t.nsecsElapsed() / 1e6;
    }
    out << "a key press in the list of 10,000 sets, to repainted: " << QString::number(median(keys), 'f', 2)
        << " ms\n";
}

} // namespace

int main(int argc, char **argv)
{
    const QStringList arguments = [&] {
        QStringList list;
        for (int i = 1; i < argc; ++i)
            list << QString::fromLocal8Bit(argv[i]);
        return list;
    }();
    if (arguments.value(0) == QStringLiteral("--game"))
        return game(argc, argv, arguments.value(1));

    QApplication app(argc, argv);
    QTextStream out(stdout);
    QTemporaryDir few, many, empty;
    makeProgramFolder(few.path(), 5);
    makeProgramFolder(many.path(), 10000);
    // A host's sets have lain still for a while; a file changed within the
    // last two seconds is read afresh at every start.
    QThread::sleep(3);
    qputenv("HOME", empty.path().toLocal8Bit()); // no documents folder of sets
    {
        QElapsedTimer t;
        t.start();
        const auto entries = ListQuestionSets(many.path() + QLatin1Char('/'), QString());
        out << "listing 10,000 sets (reading every description): " << ms(t.nsecsElapsed() / 1e6) << ", "
            << entries.size() << " entries\n";
    }
    out.flush();
    startUp(out, few.path() + QLatin1Char('/'), many.path() + QLatin1Char('/'));
    out.flush();
    keyPress(out, many.path() + QLatin1Char('/'));
    return 0;
}
