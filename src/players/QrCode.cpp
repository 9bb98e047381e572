#include "QrCode.h"

#include <qrencode.h>

QrCode MakeQrCode(const QByteArray &text)
{
    QrCode code;
    // Medium correction: a scratched projector screen or a shaky phone
    // still reads it.
    QRcode *qr = QRcode_encodeString(text.constData(), 0, QR_ECLEVEL_M, QR_MODE_8, 1);
    if (!qr)
        return code;
    code.size = qr->width;
    code.dark.resize(qsizetype(qr->width) * qr->width);
    for (int i = 0; i < qr->width * qr->width; ++i)
        code.dark[i] = qr->data[i] & 1; // the lowest bit of each byte: dark or light
    QRcode_free(qr);
    return code;
}
