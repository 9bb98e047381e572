#include "Backdrop.h"

#include "platform/NumberText.h"

#include <QPainter>

QImage BackdropRow(int widthPixels)
{
    QImage row(qMax(1, widthPixels), 1, QImage::Format_RGB32);
    row.fill(Qt::black);
    const int half = int(RoundHalfEven(widthPixels / 2.0));
    if (half == 0)
        return row;
    auto put = [&](int x, int blue) {
        if (x >= 0 && x < row.width())
            row.setPixel(x, 0, qRgb(0, 0, qMin(blue, 255)));
    };
    for (int i = 0; i <= half; ++i) {
        const int c = (i * 256) / half;
        put(i, c);
        put(half + i, 256 - c);
    }
    return row;
}

void PaintBackdrop(QPainter &painter, const QRect &area)
{
    if (area.width() < 2)
        return;
    painter.drawImage(area, BackdropRow(area.width()));
}
