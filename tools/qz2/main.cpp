#include "Commands.h"

#include <QGuiApplication>

#include <cstdio>

namespace {

// qz2 speaks for itself on its own output; Qt's notes on the way (a
// drawing's quirks, a missing runtime folder) are no concern of a host's.
void onlyFatal(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "qz2: %s\n", qPrintable(message));
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(onlyFatal);
    // Pictures and the sheet lay text out in fonts (a drawing's <text> as
    // much as the sheet's clues), which takes a GUI application; none of
    // them needs a screen, whatever the desktop says.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTextStream out(stdout), err(stderr);
    out.setEncoding(QStringConverter::Utf8);
    err.setEncoding(QStringConverter::Utf8);
    return RunQz2(app.arguments().mid(1), out, err);
}
