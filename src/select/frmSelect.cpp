#include "frmSelect.h"

#include "shell/basPLOVQuzr.h"

#include <QCloseEvent>

frmSelect::frmSelect(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Select the question set to use"));
    resize(640, 480);
}

void frmSelect::closeEvent(QCloseEvent *event)
{
    // Closing the home screen ends the program.
    basPLOVQuzr::ShutdownLibraries();
    event->accept();
}
