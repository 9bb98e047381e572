// The binding to the sound library: its six operations, by name.
#pragma once

#include "platform/LoadLibrary.h"

#include <QString>

#include <cstdint>
#include <memory>

class SoundLibrary {
public:
    // The library at this absolute path with all six operations, or nullptr.
    static std::unique_ptr<SoundLibrary> load(const QString &absolutePath);

    int32_t InitSound(uintptr_t window) const { return init_(window); }
    int32_t LoadSound(int32_t soundId, int32_t *hSound) const { return load_(soundId, hSound); }
    void PlaySound(int32_t hSound) const { play_(hSound); }
    int32_t GetSoundStatus(int32_t hSound) const { return status_(hSound); }
    void UnloadSound(int32_t *hSound) const { unload_(hSound); }
    void Shutdown() const { shutdown_(); }

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
