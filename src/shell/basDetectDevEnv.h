// Whether the program runs as the game's own executable, or inside some
// other program (a development environment, a test program). A few
// behaviours meant for the classroom are left out in the latter: sounds,
// the answer screen's click lock and the start warning.
#pragma once

namespace basDetectDevEnv {

bool IsRunningCompiled();
bool IsInDevEnv();

// Forgets the settled answer, so the next call asks again (for tests that
// change the program's apparent location).
void ForgetRunMode();

} // namespace basDetectDevEnv
