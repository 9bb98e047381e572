// Where everything on the board goes, as pure geometry: window size in,
// rectangles out.
#pragma once

#include <QRectF>
#include <QSizeF>

#include <array>

// The largest 4:3 rectangle centred in a window of this size: the board
// lays out inside it and the backdrop continues around it.
QRectF BoardArea(QSizeF window);

// Arial Bold's point size for the team labels' reference line: 10, 15 or
// 20 by size class (banner 203, 303, 403); on boards wider than 1024 px the
// large class grows with the board, so labels stay readable on big screens.
qreal ReferencePointSize(int backdropPictureId, qreal boardWidth);

struct BoardGeometry {
    qreal y0 = 0;          // top of the team labels, below the banner
    qreal bannerHeight = 0;
    qreal left = 0;        // left edge of the grid
    qreal B = 0;           // grid width
    qreal r = 0;           // row height
    QRectF categories;
    std::array<QRectF, 5> rows;
    qreal labelHeight = 0; // h = 0.6 R

    QRectF teamLabel(int i) const;   // "Team i+1:"
    QRectF scoreLabel(int i) const;  // its score, one line below
};

// W: the area's width; R: the height of the reference line.
BoardGeometry LayOutBoard(qreal W, qreal R);
