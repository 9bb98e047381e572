// The main module: the program's start and end.
#pragma once

#include <QString>

namespace basPLOVQuzr {

// Chooses the pictures for the screen, binds the two companion libraries
// from the program folder (reporting each that is missing), and opens the
// home screen. Returns at once; the program lives while a screen is open.
void Main();

// Releases both companion libraries; safe to call more than once.
void ShutdownLibraries();

// The paths Main binds the libraries from.
QString PictureLibraryPath();
QString SoundLibraryPath();

} // namespace basPLOVQuzr
