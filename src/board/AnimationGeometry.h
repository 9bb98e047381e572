// The answer screen's movements as pure geometry: the five steps of the
// zoom out of a tile or header, and the nine steps each of the flip's fold
// and unfold.
#pragma once

#include <QRectF>
#include <QSizeF>

#include <array>

// Start rectangle plus five equal steps; the last covers (0, 0, W, H).
std::array<QRectF, 6> ZoomRects(QRectF start, QSizeF board);

// Fold: heights H sin(a/2) for a = 160, 140, ..., 0, centred vertically at
// the given width; the last step (a = 0) has height 0 and is not shown.
std::array<QRectF, 9> FoldRects(QSizeF board, qreal width);

// Unfold: widths W sin(a/2) for a = 20, 40, ..., 180, centred across.
std::array<QRectF, 9> UnfoldRects(QSizeF board);

// A clue with a picture on the answer screen: where the picture and the
// clue's text go. The picture takes the larger of two arrangements, text
// beside it or under it, keeping clear of the category and value at the
// top; without text it has the whole screen to itself.
struct PictureClueLayout {
    QRectF picture;
    QRectF text; // empty without text
};
PictureClueLayout LayOutPictureClue(QSizeF screen, QSizeF picture, bool withText);
