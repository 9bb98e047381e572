// Saves the host's console during a game as a PNG: a laptop of the given
// size beside a 1024x768 projector, simulated by Qt's offscreen platform.
// The game's own screens and flow do the work: the home screen starts a
// game with three named teams, and the console opens a clue.
//
//   shoot_console OUT.png [WIDTHxHEIGHT]   (1366x768)

#include "game/GameState.h"
#include "platform/ModuleFileName.h"
#include "shell/Libraries.h"
#include "ui/board/frmMain.h"
#include "ui/console/frmConsole.h"
#include "ui/controls/CommandButton.h"
#include "ui/select/frmSelect.h"
#include "ui/shell/basPLOVQuzr.h"

#include <QApplication>
#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

QString screensConfig(const QString &folder, int width, int height)
{
    const QString path = folder + QStringLiteral("/screens.json");
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return {};
    QTextStream(&f) << "{\"screens\": [{\"name\": \"laptop\", \"x\": 0, \"y\": 0, \"width\": " << width
                    << ", \"height\": " << height << ", \"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1},"
                    << "{\"name\": \"projector\", \"x\": " << width << ", \"y\": 0, \"width\": 1024, \"height\": 768,"
                    << " \"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1}]}";
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

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) {
        fprintf(stderr, "usage: shoot_console OUT.png [WIDTHxHEIGHT]\n");
        return 2;
    }
    const QStringList size = QString::fromLocal8Bit(argc > 2 ? argv[2] : "1366x768").split(QLatin1Char('x'));
    QTemporaryDir work;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" +
                                   screensConfig(work.path(), size.value(0).toInt(), size.value(1).toInt()).toLocal8Bit());
    QApplication app(argc, argv);
    ModuleFileName::overrideProgramFolder(QStringLiteral(QUIZZARR_PROGRAM_DIR));

    GameState state;
    Libraries libraries;
    state.TeamNames = {QStringLiteral("Owls"), QStringLiteral("Foxes"), QStringLiteral("Badgers")};
    basPLOVQuzr::Main(state, libraries);
    frmSelect *home = find<frmSelect>();
    const QList<QListWidgetItem *> sets =
        home->lstQuestions->findItems(QStringLiteral("World Geography"), Qt::MatchStartsWith);
    home->lstQuestions->setCurrentItem(sets.value(0));
    home->cmdStart->click();
    frmConsole *console = home->console();
    if (!console || !home->board())
        return 1;
    int tile = 8;
    while (tile == state.DailyDouble1 || tile == state.DailyDouble2)
        tile += 6;
    console->findChild<QPushButton *>(QStringLiteral("cmdTile(%1)").arg(tile))->click();
    state.Scores = {1200, 800, -300};
    console->refresh();
    const bool saved = console->grab().save(QString::fromLocal8Bit(argv[1]));
    delete home->board();
    delete home;
    return saved ? 0 : 1;
}
