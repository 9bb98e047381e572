// The binding to the sound library and the one way the game plays a clip.
#pragma once

#include "platform/LoadLibrary.h"

#include <QString>

#include <cstdint>

class SoundLibrary {
public:
    // The library at this absolute path with all six operations, or nullptr.
    static SoundLibrary *load(const QString &absolutePath);

    int32_t InitSound(uintptr_t window) const { return init_(window); }
    int32_t LoadSound(int32_t soundId, int32_t *hSound) const { return load_(soundId, hSound); }
    void PlaySound(int32_t hSound) const { play_(hSound); }
    int32_t GetSoundStatus(int32_t hSound) const { return status_(hSound); }
    void UnloadSound(int32_t *hSound) const { unload_(hSound); }
    // Also forgets the current clip: after a shutdown no clip is loaded.
    void Shutdown() const;

    // For tests and diagnostics: the loaded module itself.
    QLibrary &module() const { return *library_; }

private:
    explicit SoundLibrary(LoadedLibrary library);

    LoadedLibrary library_;
    int32_t (*init_)(uintptr_t) = nullptr;
    int32_t (*load_)(int32_t, int32_t *) = nullptr;
    void (*play_)(int32_t) = nullptr;
    int32_t (*status_)(int32_t) = nullptr;
    void (*unload_)(int32_t *) = nullptr;
    void (*shutdown_)() = nullptr;
};

namespace basPLOVQuzr {

// The loaded sound library; nullptr when it could not be loaded.
inline SoundLibrary *hSoundLib = nullptr;
// The one loaded clip; 0 = none.
inline int32_t hCurrentSound = 0;

} // namespace basPLOVQuzr

// Plays a clip; a new clip cuts off the last. With waitForEnd the call
// returns when the clip has ended, dispatching events meanwhile. Nothing is
// heard without the library or outside the game's own executable.
void PlayGameSound(int32_t soundId, bool waitForEnd);
