#include "game/GameState.h"
#include "platform/MsgBox.h"
#include "shell/Libraries.h"
#include "ui/controls/QtFileDialog.h"
#include "ui/controls/QtMsgBox.h"
#include "ui/shell/basPLOVQuzr.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(applicationTitle());
    // The home screen hides while a game, the editor or the help is open,
    // and message boxes come and go in between: the program ends when the
    // home screen closes, not when no window happens to be open.
    QApplication::setQuitOnLastWindowClosed(false);
    QtMsgBox boxes;
    installMsgBoxHandler(&boxes);
    QtFileDialog dialogs;
    installFileDialogHandler(&dialogs);

    GameState state;
    Libraries libraries;
    basPLOVQuzr::Main(state, libraries);
    return app.exec();
}
