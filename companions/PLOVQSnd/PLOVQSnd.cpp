// The sound library: eight clips built in at compile time, played through
// SDL2's audio output. Every entry point is safe to call in any state; a
// call that cannot be honoured fails quietly with the documented result.
//
// SDL2 is bound when sound is first initialised, not with this library: it
// brings a whole sound system of some fifty libraries, and the game binds
// this library at its start, long before its first clip.

#include "PLOVQSnd.h"
#include "Mixer.h"

#include <SDL.h>

#include <dlfcn.h>
#include <mutex>

#define PLOV_CLIP(id)                                      \
    extern "C" const unsigned char plovqsnd_clip##id##_start[]; \
    extern "C" const unsigned char plovqsnd_clip##id##_end[];
PLOV_CLIP(101) PLOV_CLIP(102) PLOV_CLIP(103) PLOV_CLIP(104)
PLOV_CLIP(105) PLOV_CLIP(106) PLOV_CLIP(107) PLOV_CLIP(108)
PLOV_CLIP(109)
#undef PLOV_CLIP

namespace {

using plovqsnd::Mixer;

// The few SDL2 functions the library calls, bound once and kept for the
// life of the process: SDL's own threads and exit handlers may outlive any
// unloading.
struct Sdl {
    decltype(&SDL_SetHint) SetHint = nullptr;
    decltype(&SDL_InitSubSystem) InitSubSystem = nullptr;
    decltype(&SDL_QuitSubSystem) QuitSubSystem = nullptr;
    decltype(&SDL_OpenAudioDevice) OpenAudioDevice = nullptr;
    decltype(&SDL_PauseAudioDevice) PauseAudioDevice = nullptr;
    decltype(&SDL_CloseAudioDevice) CloseAudioDevice = nullptr;

    bool bind()
    {
        void *library = ::dlopen(PLOVQSND_SDL_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        return library && find(library, "SDL_SetHint", SetHint) && find(library, "SDL_InitSubSystem", InitSubSystem) &&
               find(library, "SDL_QuitSubSystem", QuitSubSystem) &&
               find(library, "SDL_OpenAudioDevice", OpenAudioDevice) &&
               find(library, "SDL_PauseAudioDevice", PauseAudioDevice) &&
               find(library, "SDL_CloseAudioDevice", CloseAudioDevice);
    }

private:
    template <typename F> static bool find(void *library, const char *name, F &function)
    {
        function = reinterpret_cast<F>(::dlsym(library, name));
        return function != nullptr;
    }
};

// SDL2's functions, or null when SDL2 cannot be had.
const Sdl *sdl()
{
    static const Sdl bound = [] {
        Sdl s;
        return s.bind() ? s : Sdl{};
    }();
    return bound.SetHint ? &bound : nullptr;
}

struct Clip {
    int32_t id;
    const unsigned char *start;
    const unsigned char *end;
};

constexpr Clip kClips[] = {
    {101, plovqsnd_clip101_start, plovqsnd_clip101_end},
    {102, plovqsnd_clip102_start, plovqsnd_clip102_end},
    {103, plovqsnd_clip103_start, plovqsnd_clip103_end},
    {104, plovqsnd_clip104_start, plovqsnd_clip104_end},
    {105, plovqsnd_clip105_start, plovqsnd_clip105_end},
    {106, plovqsnd_clip106_start, plovqsnd_clip106_end},
    {107, plovqsnd_clip107_start, plovqsnd_clip107_end},
    {108, plovqsnd_clip108_start, plovqsnd_clip108_end},
    {109, plovqsnd_clip109_start, plovqsnd_clip109_end},
};

// One audio device for the whole library; the mixer is shared with SDL's
// audio thread, so every access holds the mutex. After a shutdown the device
// stays open while a clip still plays (the game's closing theme comes just
// before it closes its board); it closes for good when the library goes.
struct Device {
    SDL_AudioDeviceID id = 0;
    bool ready = false; // initialised and not shut down: clips may load
    Mixer mixer;
    std::mutex mutex;

    void close()
    {
        if (id != 0) { // only ever opened through SDL's functions
            sdl()->CloseAudioDevice(id); // waits for the audio thread to finish
            id = 0;
            sdl()->QuitSubSystem(SDL_INIT_AUDIO);
        }
        std::lock_guard lock(mutex);
        mixer.clear();
    }

    // The library is being unloaded, or the program ends: no audio thread
    // may outlive the code it runs, nor the mixer it reads.
    ~Device() { close(); }
};

Device &device()
{
    static Device d;
    return d;
}

void audioCallback(void *, Uint8 *stream, int length)
{
    Device &d = device();
    std::lock_guard lock(d.mutex);
    d.mixer.mix({reinterpret_cast<int16_t *>(stream), size_t(length) / sizeof(int16_t)});
}

std::span<const int16_t> samplesOf(int32_t soundId)
{
    for (const Clip &c : kClips) {
        if (c.id == soundId)
            return {reinterpret_cast<const int16_t *>(c.start), size_t(c.end - c.start) / sizeof(int16_t)};
    }
    return {};
}

} // namespace

extern "C" {

int32_t PLOV_InitSound(uintptr_t)
{
    Device &d = device();
    if (d.id != 0) {
        d.ready = true;
        return 0;
    }
    const Sdl *sdlBound = sdl();
    if (!sdlBound)
        return -1;
    // A library has no business with the program's signals: left to SDL,
    // SIGTERM and SIGINT would no longer end the game.
    sdlBound->SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (sdlBound->InitSubSystem(SDL_INIT_AUDIO) != 0)
        return -1;
    SDL_AudioSpec want{};
    want.freq = plovqsnd::kSampleRate;
    want.format = AUDIO_S16SYS;
    want.channels = 1;
    want.samples = 1024;
    want.callback = audioCallback;
    d.id = sdlBound->OpenAudioDevice(nullptr, 0, &want, nullptr, 0);
    if (d.id == 0) {
        sdlBound->QuitSubSystem(SDL_INIT_AUDIO);
        return -2;
    }
    sdlBound->PauseAudioDevice(d.id, 0);
    d.ready = true;
    return 0;
}

int32_t PLOV_LoadSound(int32_t soundId, int32_t *hSound)
{
    Device &d = device();
    if (hSound)
        *hSound = 0;
    if (!d.ready || !hSound)
        return -1;
    const std::span<const int16_t> samples = samplesOf(soundId);
    if (samples.empty())
        return -2;
    std::lock_guard lock(d.mutex);
    const int32_t handle = d.mixer.load(samples);
    if (handle == 0)
        return -3;
    *hSound = handle;
    return 0;
}

void PLOV_PlaySound(int32_t hSound)
{
    Device &d = device();
    std::lock_guard lock(d.mutex);
    d.mixer.play(hSound);
}

int32_t PLOV_GetSoundStatus(int32_t hSound)
{
    Device &d = device();
    std::lock_guard lock(d.mutex);
    return d.mixer.isPlaying(hSound) ? 1 : 0;
}

void PLOV_UnloadSound(int32_t *hSound)
{
    if (!hSound)
        return;
    Device &d = device();
    {
        std::lock_guard lock(d.mutex);
        d.mixer.unload(*hSound);
    }
    *hSound = 0;
}

void PLOV_Shutdown(void)
{
    Device &d = device();
    d.ready = false;
    bool playing = false;
    {
        std::lock_guard lock(d.mutex);
        d.mixer.releaseIdle();
        playing = d.mixer.anyPlaying();
    }
    if (!playing)
        d.close();
}

int32_t PLOV_GetSoundLength(int32_t hSound)
{
    Device &d = device();
    std::lock_guard lock(d.mutex);
    return d.mixer.lengthMs(hSound);
}

void PLOV_SeekSound(int32_t hSound, int32_t milliseconds)
{
    Device &d = device();
    std::lock_guard lock(d.mutex);
    d.mixer.seek(hSound, milliseconds);
}

} // extern "C"

