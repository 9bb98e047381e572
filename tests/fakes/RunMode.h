// Tests are never the game's own executable; some must play as if they were
// (sounds heard, the answer screen's lock, the start warning).
#pragma once

// Makes the program count as the game itself (on) or as another program.
void ForceGameMode(bool on);
