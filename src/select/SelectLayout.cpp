#include "SelectLayout.h"

SelectLayout LayOutSelectScreen(QSizeF client, qreal P, qreal C, qreal labelWidth, QSizeF combo)
{
    const qreal W = client.width(), H = client.height();
    SelectLayout l;
    l.band = QRectF(0, 0, W, P);
    l.list = QRectF(15, P + 15, W - 45 - 75, H - 105 - (P + 15) - C);
    l.importExport = QRectF(W - 15 - 75, l.list.top(), 75, l.list.height());
    l.scoreLabel = QRectF(15, l.list.bottom() + 5, labelWidth + 2, C);
    l.scoreCombo = QRectF(l.scoreLabel.right() + 4, l.scoreLabel.top(), combo.width(), combo.height());
    l.buttons = QRectF(15, H - 70, W - 30, 55);
    return l;
}
