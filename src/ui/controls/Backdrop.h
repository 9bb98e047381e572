// The background of every screen: a horizontal gradient from black at the
// left edge to full blue in the middle and back to black at the right.
#pragma once

#include <QImage>
#include <QRect>

class QPainter;

// One row of the backdrop for a window this many pixels wide; every row is
// the same, so the row is stretched down the whole height.
QImage BackdropRow(int widthPixels);

// Paints the backdrop over the rectangle (a whole window's inside).
void PaintBackdrop(QPainter &painter, const QRect &area);
