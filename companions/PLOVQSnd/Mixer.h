// The clip table and the mixing of the sound library, free of any audio
// back end. The back end calls mix() from its audio thread and locks around
// every other call.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace plovqsnd {

constexpr int kSampleRate = 44100;

class Mixer {
public:
    static constexpr int kMaxClips = 16;

    // Returns a handle > 0, or 0 when every slot is taken. Handles are
    // never reused, so a caller can tell a new clip from the one it had.
    int32_t load(std::span<const int16_t> samples);
    void play(int32_t handle);
    bool isPlaying(int32_t handle) const;
    void unload(int32_t handle);
    void clear();
    // Releases every clip that is not playing; the others play to their end.
    void releaseIdle();
    bool anyPlaying() const;

    // Length and position in milliseconds; -1 for an unknown handle.
    int32_t lengthMs(int32_t handle) const;
    void seek(int32_t handle, int32_t ms);

    // Adds every playing clip into out (mono), advancing their positions.
    void mix(std::span<int16_t> out);

private:
    struct Slot {
        std::span<const int16_t> samples;
        size_t position = 0;
        int32_t handle = 0; // 0: free
        bool playing = false;
    };
    Slot *slot(int32_t handle);
    const Slot *slot(int32_t handle) const;

    std::array<Slot, kMaxClips> slots_{};
    int32_t lastHandle_ = 0;
};

} // namespace plovqsnd
