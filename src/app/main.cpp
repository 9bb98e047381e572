#include "game/GameState.h"
#include "platform/ModuleFileName.h"
#include "platform/MsgBox.h"
#include "platform/TerminationSignals.h"
#include "shell/Libraries.h"
#include "shell/StartupPrefetch.h"
#include "ui/controls/QtFileDialog.h"
#include "ui/controls/QtMsgBox.h"
#include "ui/shell/Translations.h"
#include "ui/shell/WindowIcon.h"
#include "ui/shell/basPLOVQuzr.h"

#include <QApplication>

#include <memory>

int main(int argc, char **argv)
{
    // Named first: the user's folders of this program carry the name.
    QApplication::setApplicationName(applicationTitle());
    // The disk's share of the start runs on another core while Qt connects
    // to the screen.
    auto ahead = std::make_unique<StartupPrefetch>();
    QApplication app(argc, argv);
    // Installed, the desktop knows the game by its entry and the icon
    // theme holds its icon; from a build folder neither is there, and the
    // window simply goes without.
    QApplication::setDesktopFileName(QStringLiteral(QUIZZARR_APP_ID));
    // Before the first window: every text is read in the desktop's language.
    InstallTranslations(QLocale::system());
    SetWindowIconAfterFirstPaint(QStringLiteral("quizzarr"));
    // The home screen hides while a game, the editor or the help is open,
    // and message boxes come and go in between: the program ends when the
    // home screen closes, not when no window happens to be open.
    QApplication::setQuitOnLastWindowClosed(false);
    // Only this executable is the game: it answers to whatever name the host
    // gave its file, while the test programs, which link the same code,
    // stay outside the classroom unless a test says otherwise.
    ModuleFileName::declareGameExecutable();
    QtMsgBox boxes;
    installMsgBoxHandler(&boxes);
    QtFileDialog dialogs;
    installFileDialogHandler(&dialogs);

    GameState state;
    Libraries libraries;
    // Asked to end (a logout, kill, Ctrl+C): the same end as closing the
    // home screen, whatever screen or wait the game is in.
    TerminationSignals ending;
    QObject::connect(&ending, &TerminationSignals::received, &app, [&libraries] {
        libraries.ShutdownLibraries();
        QCoreApplication::exit(0);
    });
    basPLOVQuzr::Main(state, libraries, ahead.get());
    ahead.reset();
    return app.exec();
}
