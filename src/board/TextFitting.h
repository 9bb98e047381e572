// Fitting a text into a caption: the largest font in which the word-wrapped
// text fits a box. Measures in the font being tried.
#pragma once

#include <QFont>
#include <QString>

// A caption's lines as the caption control draws them: the height of one
// line, and the widest line, in this font. Fitting measures the same way.
namespace CaptionText {
qreal lineHeight(const QFont &font);
qreal width(const QFont &font, const QString &wrapped);
qreal height(const QFont &font, const QString &wrapped);
} // namespace CaptionText

// A text fitted into a box: the caption's point size and its lines.
struct FittedText {
    qreal points = 0;
    QString caption;
};

// Breaks text into lines no wider than widthPixels, at spaces only (a word
// is never split), lines joined by "\n". A text that offers no break keeps
// its remainder on one over-long line.
QString WrapText(const QString &text, const QFont &font, int widthPixels);

// S wrapped in the largest whole-point size of font, from FS upwards, that
// fits MaxWidth x MaxHeight; an empty S keeps the font's size. A text that does
// not fit at FS ends below it: FS - 1 when FS is 10 or less; above 10 the
// largest fitting size from FS - 9 down, and one started above 10 that fits
// at none of those keeps shrinking until it fits, so that a long clue never
// runs off the answer screen.
FittedText CramText(const QString &S, const QFont &font, qreal FS, qreal MaxWidth, qreal MaxHeight);

// Whether a wrapped text fits the box in this font (equality fits).
bool TextFits(const QFont &font, const QString &wrapped, qreal maxWidth, qreal maxHeight);
