#include "AnimationGeometry.h"

#include <cmath>
#include <numbers>

namespace {

qreal sinHalfDegrees(int a)
{
    return std::sin(a / 2.0 * std::numbers::pi / 180.0);
}

} // namespace

std::array<QRectF, 6> ZoomRects(QRectF start, QSizeF board)
{
    std::array<QRectF, 6> rects;
    const qreal dx = -start.x() / 5, dy = -start.y() / 5;
    const qreal dw = (board.width() - start.width()) / 5, dh = (board.height() - start.height()) / 5;
    rects[0] = start;
    for (int k = 1; k <= 5; ++k) {
        const QRectF &p = rects[size_t(k - 1)];
        rects[size_t(k)] = QRectF(p.x() + dx, p.y() + dy, p.width() + dw, p.height() + dh);
    }
    return rects;
}

std::array<QRectF, 9> FoldRects(QSizeF board, qreal width)
{
    std::array<QRectF, 9> rects;
    for (int k = 0; k < 9; ++k) {
        const qreal h = board.height() * sinHalfDegrees(160 - 20 * k);
        rects[size_t(k)] = QRectF(0, (board.height() - h) / 2, width, h);
    }
    return rects;
}

std::array<QRectF, 9> UnfoldRects(QSizeF board)
{
    std::array<QRectF, 9> rects;
    for (int k = 0; k < 9; ++k) {
        const qreal w = board.width() * sinHalfDegrees(20 + 20 * k);
        rects[size_t(k)] = QRectF((board.width() - w) / 2, 0, w, board.height());
    }
    return rects;
}

PictureClueLayout LayOutPictureClue(QSizeF screen, QSizeF picture, bool withText)
{
    // Clear of the category and value above, the teams down the left and
    // the screen's edges.
    const QRectF free(0.12 * screen.width(), 0.13 * screen.height(), 0.82 * screen.width(), 0.82 * screen.height());
    if (!withText || picture.isEmpty())
        return {free, {}};
    constexpr qreal kPictureShare = 0.6;
    constexpr qreal kGap = 0.03;
    const qreal gapX = kGap * free.width(), gapY = kGap * free.height();
    const QRectF besidePicture(free.topLeft(), QSizeF(kPictureShare * free.width(), free.height()));
    const QRectF besideText(besidePicture.right() + gapX, free.top(), free.right() - besidePicture.right() - gapX,
                            free.height());
    const QRectF underPicture(free.topLeft(), QSizeF(free.width(), kPictureShare * free.height()));
    const QRectF underText(free.left(), underPicture.bottom() + gapY, free.width(),
                           free.bottom() - underPicture.bottom() - gapY);
    auto shownArea = [&](const QRectF &box) {
        const QSizeF shown = picture.scaled(box.size(), Qt::KeepAspectRatio);
        return shown.width() * shown.height();
    };
    if (shownArea(besidePicture) >= shownArea(underPicture))
        return {besidePicture, besideText};
    return {underPicture, underText};
}
