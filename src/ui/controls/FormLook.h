// How the screens look and sit: their typeface, and their place on the
// screen when they open.
#pragma once

#include <QFont>

class QWidget;

// The screens' "Arial" (Liberation Sans stands in for it).
QFont ArialFont(qreal points, bool bold = false);

// Moves a screen to the middle of the primary screen.
void CentreOnScreen(QWidget &form);
