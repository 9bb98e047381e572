#include "shell/basPLOVQuzr.h"
#include "platform/MsgBox.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(applicationTitle());
    basPLOVQuzr::Main();
    return app.exec();
}
