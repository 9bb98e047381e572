// Test double of the sound library: the six operations, a call log, and
// clips that "play" for a scripted time which passes only through
// FakeSnd_Advance (the test's clock calls it whenever the game waits).

#include "PLOVQSnd.h"

#include <map>
#include <string>

namespace {

struct Clip {
    int32_t id = 0;
    int remainingMs = 0;
    bool playing = false;
};

struct State {
    std::string log;
    bool initialised = false;
    int initFailures = 0;
    int statusPolls = 0;
    std::map<int32_t, Clip> clips;       // by handle
    std::map<int32_t, int> lengthMs;     // by clip id
    std::map<int32_t, bool> loadFails;   // by clip id
};

State &state()
{
    static State s;
    return s;
}

void note(const std::string &entry)
{
    state().log += entry + '\n';
}

int clipLength(int32_t id)
{
    const auto it = state().lengthMs.find(id);
    return it == state().lengthMs.end() ? 1000 : it->second;
}

} // namespace

#define FAKE_API extern "C" __attribute__((visibility("default")))

FAKE_API int32_t PLOV_InitSound(uintptr_t)
{
    State &s = state();
    if (s.initFailures > 0) {
        --s.initFailures;
        note("InitSound failed");
        return -1;
    }
    s.initialised = true;
    note("InitSound");
    return 0;
}

FAKE_API int32_t PLOV_LoadSound(int32_t soundId, int32_t *hSound)
{
    State &s = state();
    if (!s.initialised || s.loadFails[soundId]) {
        note("LoadSound " + std::to_string(soundId) + " failed");
        return -1;
    }
    // Handles are reused once free, as a library is free to do.
    int32_t handle = 1;
    while (s.clips.count(handle))
        ++handle;
    s.clips[handle] = Clip{soundId, clipLength(soundId), false};
    *hSound = handle;
    note("LoadSound " + std::to_string(soundId));
    return 0;
}

FAKE_API void PLOV_PlaySound(int32_t hSound)
{
    auto it = state().clips.find(hSound);
    if (it == state().clips.end())
        return;
    it->second.playing = it->second.remainingMs > 0;
    note("PlaySound " + std::to_string(it->second.id));
}

FAKE_API int32_t PLOV_GetSoundStatus(int32_t hSound)
{
    ++state().statusPolls;
    const auto it = state().clips.find(hSound);
    return it != state().clips.end() && it->second.playing ? 1 : 0;
}

FAKE_API void PLOV_UnloadSound(int32_t *hSound)
{
    const auto it = state().clips.find(*hSound);
    if (it != state().clips.end()) {
        note("UnloadSound " + std::to_string(it->second.id));
        state().clips.erase(it);
    }
    *hSound = 0;
}

FAKE_API void PLOV_Shutdown(void)
{
    state().initialised = false;
    state().clips.clear();
    note("Shutdown");
}

// ------------------------------------------------------------- test controls

FAKE_API void FakeSnd_Reset(void)
{
    state() = State{};
}

FAKE_API const char *FakeSnd_Log(void)
{
    return state().log.c_str();
}

FAKE_API int FakeSnd_StatusPolls(void)
{
    return state().statusPolls;
}

FAKE_API void FakeSnd_SetInitFailures(int count)
{
    state().initFailures = count;
}

FAKE_API void FakeSnd_SetClipLength(int32_t soundId, int ms)
{
    state().lengthMs[soundId] = ms;
}

FAKE_API void FakeSnd_SetLoadFails(int32_t soundId, int fails)
{
    state().loadFails[soundId] = fails != 0;
}

FAKE_API void FakeSnd_Advance(int ms)
{
    for (auto &[handle, clip] : state().clips) {
        if (!clip.playing)
            continue;
        clip.remainingMs -= ms;
        if (clip.remainingMs <= 0)
            clip.playing = false;
    }
}
