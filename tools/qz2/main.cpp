#include "Commands.h"

#include <QGuiApplication>

#include <cstring>
#include <memory>

int main(int argc, char **argv)
{
    // Only the sheet lays text out in fonts, which takes a GUI application;
    // it needs no screen.
    std::unique_ptr<QCoreApplication> owner;
    if (argc > 1 && std::strcmp(argv[1], "sheet") == 0) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        owner = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        owner = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication &app = *owner;
    QTextStream out(stdout), err(stderr);
    out.setEncoding(QStringConverter::Utf8);
    err.setEncoding(QStringConverter::Utf8);
    return RunQz2(app.arguments().mid(1), out, err);
}
