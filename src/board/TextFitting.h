// Fitting a text into a caption: the largest font in which the word-wrapped
// text fits a box. Measures in the font being tried.
#pragma once

#include <QFont>
#include <QString>

class CaptionControl;

// Breaks text into lines no wider than widthPixels, at spaces only (a word
// is never split), lines joined by "\n". A text that offers no break keeps
// its remainder on one over-long line.
QString WrapText(const QString &text, const QFont &font, int widthPixels);

// Sets V's font size and caption: S wrapped in the largest whole-point
// size, from FS upwards, that fits MaxWidth x MaxHeight. A text that does
// not fit at FS ends below it: FS - 1 when FS is 10 or less; above 10 the
// largest fitting size from FS - 9 down, and one started above 10 that fits
// at none of those keeps shrinking until it fits, so that a long clue never
// runs off the answer screen.
void CramText(const QString &S, CaptionControl &V, qreal FS, qreal MaxWidth, qreal MaxHeight);

// Whether a wrapped text fits the box in this font (equality fits).
bool TextFits(const QFont &font, const QString &wrapped, qreal maxWidth, qreal maxHeight);
