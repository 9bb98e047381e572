// Saves what a virtual X screen cannot show as PNGs, from Qt's offscreen
// platform with a laptop of the given size beside a 1024x768 projector.
// The game's own screens and flow do the work: the home screen starts a
// game with three named teams, and the console opens a clue.
//
//   shoot console OUT.png [WIDTHxHEIGHT]   the host's console (1366x768)
//   shoot picture OUT.png [WIDTHxHEIGHT]   a clue with its picture, on the
//                                          projector (the laptop's size is
//                                          then the projector's)
//   shoot editor OUT.png [WIDTHxHEIGHT]    the editor on the picture sample
//                                          set, maximized on the laptop
//   shoot phones OUT [WIDTHxHEIGHT]        phones: OUT-join.png (the join
//                                          screen), OUT-reveal.png (the
//                                          final's reveal) and
//                                          OUT-console.png (its answers)
//   shoot buzz OUT [WIDTHxHEIGHT]          buzz-in: four teams buzzed, two
//                                          judged wrong; OUT-board.png (the
//                                          projector, of the laptop's size)
//                                          and OUT-console.png
//   shoot windows OUT                      the small windows: OUT-help.png
//                                          (scoring) and OUT-buzzers.png

#include "game/BuzzIn.h"
#include "game/BuzzerInputs.h"
#include "game/GameState.h"
#include "game/TeamAnswers.h"
#include "platform/Clock.h"
#include "platform/ModuleFileName.h"
#include "shell/Libraries.h"
#include "ui/board/frmMain.h"
#include "ui/console/frmConsole.h"
#include "ui/editor/frmEditor.h"
#include "ui/help/frmHowToPlay.h"
#include "ui/controls/CommandButton.h"
#include "ui/select/frmSelect.h"
#include "ui/shell/Translations.h"
#include "ui/shell/basPLOVQuzr.h"

#include <QApplication>
#include <QFile>
#include <QComboBox>
#include <cstring>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

QString screensConfig(const QString &folder, int width, int height, QSize projector)
{
    const QString path = folder + QStringLiteral("/screens.json");
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return {};
    QTextStream(&f) << "{\"screens\": [{\"name\": \"laptop\", \"x\": 0, \"y\": 0, \"width\": " << width
                    << ", \"height\": " << height << ", \"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1},"
                    << "{\"name\": \"projector\", \"x\": " << width << ", \"y\": 0, \"width\": " << projector.width()
                    << ", \"height\": " << projector.height() << ", \"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1}]}";
    return path;
}

template <class T>
T *find()
{
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (auto *t = qobject_cast<T *>(w))
            return t;
    }
    return nullptr;
}

// Four teams buzz on a clue of General Knowledge; the first two are judged
// wrong, and the third has the turn.
int shootBuzz(frmSelect *home, GameState &state, const QString &out)
{
    home->buzzers().setBuzzIn(true);
    home->cmbScore->setCurrentIndex(4);
    home->lstQuestions->setCurrentItem(home->lstQuestions->findItems(QStringLiteral("General"), Qt::MatchStartsWith).value(0));
    home->cmdStart->click();
    frmConsole *console = home->console();
    frmMain *board = home->board();
    if (!console || !board)
        return 1;
    int tile = 13;
    while (tile == state.DailyDouble1 || tile == state.DailyDouble2)
        ++tile;
    console->findChild<QPushButton *>(QStringLiteral("cmdTile(%1)").arg(tile))->click();
    BuzzIn &buzz = board->buzzIn();
    if (!buzz.isOpen())
        buzz.toggleOpen();
    const qint64 t = Clock::instance().steadyMs() + 400;
    for (auto [team, ms] : {std::pair{0, 0}, std::pair{1, 120}, std::pair{2, 310}, std::pair{3, 550}})
        buzz.buzz({team, QStringLiteral("key"), t + ms});
    buzz.judgeWrong();
    buzz.judgeWrong();
    QApplication::processEvents();
    const bool saved = board->grab().save(out + QStringLiteral("-board.png")) &&
                       console->grab().save(out + QStringLiteral("-console.png"));
    delete board;
    delete home;
    return saved ? 0 : 1;
}

// The help on its scoring topic, and the buzzers window.
int shootWindows(frmSelect *home, const QString &out)
{
    home->cmdHowToPlay->click();
    auto *help = qobject_cast<frmHowToPlay *>(home->help());
    if (!help)
        return 1;
    help->optHelp_Click(3);
    QApplication::processEvents();
    bool saved = help->grab().save(out + QStringLiteral("-help.png"));
    help->close();
    home->openBuzzers();
    QApplication::processEvents();
    saved = saved && home->buzzersWindow() && home->buzzersWindow()->grab().save(out + QStringLiteral("-buzzers.png"));
    delete home;
    return saved ? 0 : 1;
}

// Phones on: the join screen before round 1, then the final's wagers and
// responses, judged, and the first team revealed.
int shootPhones(frmSelect *home, const QString &out)
{
    home->setPhonesOn(true);
    for (const char *name : {"Ana", "Ben", "Cy", "Dee", "Eli"})
        home->phones().room()->join(int(std::strlen(name)) % 4, QString::fromLatin1(name));
    home->cmbScore->setCurrentIndex(4);
    home->lstQuestions->setCurrentItem(home->lstQuestions->findItems(QStringLiteral("World"), Qt::MatchStartsWith).value(0));
    home->cmdStart->click();
    frmMain *board = home->board();
    frmConsole *console = home->console();
    if (!board || !console)
        return 1;
    QApplication::processEvents();
    bool saved = board->grab().save(out + QStringLiteral("-join.png"));
    board->showJoinScreen(false);
    const std::array<qint32, 4> scores{2400, 1800, 3100, 900};
    for (int t = 0; t < 4; ++t)
        board->game().addToScore(t, scores[size_t(t)]);
    board->game().KeyDown(QLatin1Char('N'), -1, 7);
    board->game().KeyDown(QLatin1Char('N'), -1, 7);
    board->game().AnswerScreenPress(); // the category
    TeamAnswers &answers = board->answers();
    const std::array<qint64, 4> wagers{1000, 1800, 2000, 900};
    for (int t = 0; t < 4; ++t)
        answers.setWager(t, wagers[size_t(t)], true);
    board->game().AnswerScreenPress(); // the clue
    const char *said[] = {"What is Lake Baikal?", "What is Lake Superior?", "What is Lake Baikal?", "What is the Caspian?"};
    for (int t = 0; t < 4; ++t) {
        answers.setResponse(t, QString::fromLatin1(said[t]));
        answers.judge(t, t % 2 == 0);
    }
    board->game().AnswerScreenPress(); // the response
    answers.revealNext();
    console->refresh();
    QApplication::processEvents();
    saved = saved && board->grab().save(out + QStringLiteral("-reveal.png")) &&
            console->grab().save(out + QStringLiteral("-console.png"));
    delete board;
    delete home;
    return saved ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    const QString what = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    if (argc < 3 || (what != QStringLiteral("console") && what != QStringLiteral("picture") &&
                     what != QStringLiteral("editor") && what != QStringLiteral("buzz") &&
                     what != QStringLiteral("phones") && what != QStringLiteral("windows"))) {
        fprintf(stderr, "usage: shoot console|picture|editor|buzz|phones|windows OUT.png [WIDTHxHEIGHT]\n");
        return 2;
    }
    const bool picture = what == QStringLiteral("picture") || what == QStringLiteral("buzz") || what == QStringLiteral("phones");
    const QStringList size = QString::fromLocal8Bit(argc > 3 ? argv[3] : "1366x768").split(QLatin1Char('x'));
    QTemporaryDir work;
    // A user of its own: no game left behind by an earlier shot comes back
    // to be resumed, and nothing is left behind for the next.
    qputenv("XDG_DATA_HOME", work.path().toLocal8Bit());
    qputenv("XDG_CACHE_HOME", work.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", work.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" +
                                   screensConfig(work.path(), size.value(0).toInt(), size.value(1).toInt(),
                                                 picture ? QSize(size.value(0).toInt(), size.value(1).toInt())
                                                         : QSize(1024, 768)).toLocal8Bit());
    QApplication app(argc, argv);
    InstallTranslations(QLocale::system()); // LANGUAGE=de: the shots in German
    ModuleFileName::overrideProgramFolder(QStringLiteral(QUIZZARR_PROGRAM_DIR));

    if (what == QStringLiteral("editor")) {
        QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
        frmEditor editor;
        editor.showMaximized();
        editor.LoadQuestionSet(QStringLiteral(QUIZZARR_PROGRAM_DIR "/") + (argc > 4 ? QString::fromLocal8Bit(argv[4]) : QStringLiteral("Pictures.QZ2")));
        QApplication::processEvents();
        return editor.grab().save(QString::fromLocal8Bit(argv[2])) ? 0 : 1;
    }

    GameState state;
    Libraries libraries;
    state.TeamNames = {QStringLiteral("Owls"), QStringLiteral("Foxes"), QStringLiteral("Badgers"), QStringLiteral("Hawks")};
    basPLOVQuzr::Main(state, libraries);
    frmSelect *home = find<frmSelect>();
    if (what == QStringLiteral("buzz"))
        return shootBuzz(home, state, QString::fromLocal8Bit(argv[2]));
    if (what == QStringLiteral("phones"))
        return shootPhones(home, QString::fromLocal8Bit(argv[2]));
    if (what == QStringLiteral("windows"))
        return shootWindows(home, QString::fromLocal8Bit(argv[2]));
    const QList<QListWidgetItem *> sets = home->lstQuestions->findItems(
        picture ? QStringLiteral("Pictures") : QStringLiteral("World Geography"), Qt::MatchStartsWith);
    home->lstQuestions->setCurrentItem(sets.value(0));
    home->cmdStart->click();
    frmConsole *console = home->console();
    if (!console || !home->board())
        return 1;
    int tile = picture ? 0 : 8; // the first flag
    while (tile == state.DailyDouble1 || tile == state.DailyDouble2)
        tile += 6;
    console->findChild<QPushButton *>(QStringLiteral("cmdTile(%1)").arg(tile))->click();
    state.Scores = {1200, 800, -300};
    console->refresh();
    QWidget *shown = picture ? static_cast<QWidget *>(home->board()) : console;
    const bool saved = shown->grab().save(QString::fromLocal8Bit(argv[2]));
    delete home->board();
    delete home;
    return saved ? 0 : 1;
}
