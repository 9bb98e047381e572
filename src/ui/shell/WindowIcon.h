// The program's window icon, from the desktop's icon theme.
#pragma once

#include <QString>

// Looks the icon up once the first window has painted: searching the theme
// takes milliseconds that the first screen should not wait for.
void SetWindowIconAfterFirstPaint(const QString &iconName);
