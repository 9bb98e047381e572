#include "shell/basPLOVQuzr.h"
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
    basPLOVQuzr::Main();
    return app.exec();
}
