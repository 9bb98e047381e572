#include "FuzzApplication.h"

#include <QGuiApplication>
#include <QImageReader>

void Fuzz::ensureGuiApplication()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    static QGuiApplication *app = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // A picture's pixels stay within the targets' bound on one
        // allocation (the game itself keeps Qt's larger default).
        QImageReader::setAllocationLimit(48);
        return new QGuiApplication(argc, argv);
    }();
    (void)app;
}
