// The sound library's C interface. The game loads this library at run time
// by absolute path and looks these functions up by name, so the names and
// signatures are the contract; nothing here may change without the game.
#pragma once

#include <stdint.h>

#if defined(__GNUC__)
#define PLOVQSND_API __attribute__((visibility("default")))
#else
#define PLOVQSND_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

// Opens the audio output. 0 = ready; anything else = no sound available now
// (the game offers to retry). The window handle is accepted for the game's
// convenience and not needed by the audio back end.
PLOVQSND_API int32_t PLOV_InitSound(uintptr_t window);

// Prepares clip soundId (101..109) and stores its handle in *hSound.
// Returns 0 on success, negative on failure (not initialised, unknown id,
// too many clips loaded).
PLOVQSND_API int32_t PLOV_LoadSound(int32_t soundId, int32_t *hSound);

// Starts a loaded clip from its beginning; returns at once.
PLOVQSND_API void PLOV_PlaySound(int32_t hSound);

// 1 while the clip is playing, 0 otherwise (finished, never started,
// unknown handle).
PLOVQSND_API int32_t PLOV_GetSoundStatus(int32_t hSound);

// Stops and releases a clip; sets *hSound to 0.
PLOVQSND_API void PLOV_UnloadSound(int32_t *hSound);

// Ends the session: no clip loads until the next PLOV_InitSound, and every
// clip that is not playing is released. A clip that still plays goes on to
// its end (the game's closing theme starts just before its board closes);
// the audio output closes when nothing plays any more, at the next
// shutdown, or when the library is unloaded.
PLOVQSND_API void PLOV_Shutdown(void);

// Diagnostics, for tests and tools: a clip's length in milliseconds
// (-1 for an unknown handle), and moving its play position.
PLOVQSND_API int32_t PLOV_GetSoundLength(int32_t hSound);
PLOVQSND_API void PLOV_SeekSound(int32_t hSound, int32_t milliseconds);

#ifdef __cplusplus
}
#endif
