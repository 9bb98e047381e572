// A QR code of a text (the players' page's address), as modules for the
// board to draw: libqrencode makes it, the board paints the squares.
#pragma once

#include <QByteArray>
#include <QList>

struct QrCode {
    int size = 0;        // modules a side; 0 when the text could not be encoded
    QList<bool> dark;    // size * size, row by row
    bool at(int x, int y) const { return dark[y * size + x]; }
};

QrCode MakeQrCode(const QByteArray &text);
