#include "FormLook.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

QFont ArialFont(qreal points, bool bold)
{
    QFont f(QStringLiteral("Arial"));
    f.setPointSizeF(points);
    f.setBold(bold);
    return f;
}

void CentreOnScreen(QWidget &form)
{
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        form.move((screen->size().width() - form.width()) / 2, (screen->size().height() - form.height()) / 2);
}
