// The main module: the program's start.
#pragma once

struct GameState;
class Libraries;
class StartupPrefetch;

namespace basPLOVQuzr {

// Chooses the pictures for the screen, binds the two companion libraries
// from the program folder (reporting each that is missing), and opens the
// home screen. Returns at once; the program lives while a screen is open,
// and state and libraries must outlive it. What was begun ahead, if
// anything, is taken up.
void Main(GameState &state, Libraries &libraries, StartupPrefetch *ahead = nullptr);

} // namespace basPLOVQuzr
