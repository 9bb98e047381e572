#include "BoardLayout.h"

QRectF BoardArea(QSizeF window)
{
    const qreal w = qMin(window.width(), window.height() * 4.0 / 3.0);
    const qreal h = w * 3.0 / 4.0;
    return QRectF((window.width() - w) / 2.0, (window.height() - h) / 2.0, w, h);
}

qreal ReferencePointSize(int backdropPictureId, qreal boardWidth)
{
    if (backdropPictureId == 203)
        return 10;
    if (backdropPictureId == 303)
        return 15;
    return 20 * qMax<qreal>(1.0, boardWidth / 1024.0);
}

QRectF BoardGeometry::teamLabel(int i) const
{
    return QRectF(5, y0 + i * (2 * labelHeight + 10), 0, labelHeight);
}

QRectF BoardGeometry::scoreLabel(int i) const
{
    return teamLabel(i).translated(0, labelHeight);
}

BoardGeometry LayOutBoard(qreal W, qreal R)
{
    BoardGeometry g;
    g.y0 = W * 0.2365591 / 2.0;
    g.bannerHeight = qMax<qreal>(0.0, g.y0 - R);
    g.labelHeight = 0.6 * R;
    g.left = 0.1 * W;
    g.B = 0.8 * W + 10;
    g.r = g.B * 3.0 / 24.0;
    g.categories = QRectF(g.left, g.y0 + 5, g.B, g.r);
    for (int k = 0; k < 5; ++k)
        g.rows[size_t(k)] = QRectF(g.left, g.y0 + 5 + g.r + 10 + k * g.r, g.B, g.r);
    return g;
}
