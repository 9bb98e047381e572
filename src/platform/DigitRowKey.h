// The digit row of the main keyboard, recognised by the physical key: a
// keyboard layout may make SHIFT+2 an "@" or a '"', and a French one makes
// the unshifted digit keys letters; the host still means team 2.
#pragma once

class QKeyEvent;

// 0..9 for a key of the main keyboard's digit row, -1 for any other key
// (the numeric keypad included).
int DigitRowKey(const QKeyEvent &event);
