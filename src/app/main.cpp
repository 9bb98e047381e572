#include "shell/basPLOVQuzr.h"
#include "platform/ModuleFileName.h"
#include "platform/MsgBox.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(applicationTitle());
    // The home screen hides while a game, the editor or the help is open,
    // and message boxes come and go in between: the program ends when the
    // home screen closes, not when no window happens to be open.
    QApplication::setQuitOnLastWindowClosed(false);
    // Only this executable is the game: it answers to whatever name the host
    // gave its file, while the test programs, which link the same code,
    // stay outside the classroom unless a test says otherwise.
    ModuleFileName::declareGameExecutable();
    basPLOVQuzr::Main();
    return app.exec();
}
