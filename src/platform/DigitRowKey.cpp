#include "DigitRowKey.h"

#include <QKeyEvent>

namespace {

// X11 and Wayland report keys by evdev code + 8: the digit row "1".."9",
// "0" is 10..19 on every layout.
constexpr quint32 kFirstDigitKey = 10;
constexpr quint32 kLastDigitKey = 19;

} // namespace

int DigitRowKey(const QKeyEvent &event)
{
    if (event.modifiers() & Qt::KeypadModifier)
        return -1;
    const quint32 code = event.nativeScanCode();
    if (code >= kFirstDigitKey && code <= kLastDigitKey)
        return int(code - kFirstDigitKey + 1) % 10;
    // Without a physical code (another platform, a synthetic key), the
    // character decides.
    if (code == 0 && event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9)
        return event.key() - Qt::Key_0;
    return -1;
}
