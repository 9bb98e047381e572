#include "SoundLibrary.h"

#include "basDetectDevEnv.h"
#include "platform/Clock.h"

namespace {

// How long a wait for the end of a clip sleeps between two looks at it.
constexpr int kPollMs = 15;

// Counts the clips the game has started: a wait ends when another clip
// starts, whatever handle the library gives it.
int clipsStarted = 0;

template <typename F>
bool resolve(QLibrary &library, const char *name, F &function)
{
    function = reinterpret_cast<F>(library.resolve(name));
    return function != nullptr;
}

} // namespace

SoundLibrary::SoundLibrary(LoadedLibrary library) : library_(std::move(library)) {}

SoundLibrary *SoundLibrary::load(const QString &absolutePath)
{
    LoadedLibrary library = LoadLibraryFrom(absolutePath);
    if (!library)
        return nullptr;
    auto *sound = new SoundLibrary(std::move(library));
    QLibrary &l = *sound->library_;
    // A file of that name without our six operations is not our library.
    if (!resolve(l, "PLOV_InitSound", sound->init_) || !resolve(l, "PLOV_LoadSound", sound->load_) ||
        !resolve(l, "PLOV_PlaySound", sound->play_) || !resolve(l, "PLOV_GetSoundStatus", sound->status_) ||
        !resolve(l, "PLOV_UnloadSound", sound->unload_) || !resolve(l, "PLOV_Shutdown", sound->shutdown_)) {
        delete sound;
        return nullptr;
    }
    return sound;
}

void SoundLibrary::Shutdown() const
{
    shutdown_();
    basPLOVQuzr::hCurrentSound = 0;
}

void PlayGameSound(int32_t soundId, bool waitForEnd)
{
    using namespace basPLOVQuzr;
    if (!hSoundLib || basDetectDevEnv::IsInDevEnv())
        return;
    if (hCurrentSound != 0) {
        hSoundLib->UnloadSound(&hCurrentSound);
        hCurrentSound = 0;
    }
    ++clipsStarted;
    if (hSoundLib->LoadSound(soundId, &hCurrentSound) < 0) {
        if (hCurrentSound != 0)
            hSoundLib->UnloadSound(&hCurrentSound);
        hCurrentSound = 0;
        return;
    }
    hSoundLib->PlaySound(hCurrentSound);
    if (!waitForEnd)
        return;
    // Events run between the looks; one of them may shut the library down
    // or play another clip, which ends this wait too.
    const int32_t playing = hCurrentSound;
    const int thisClip = clipsStarted;
    auto stillOurs = [&] { return hSoundLib && clipsStarted == thisClip && hCurrentSound == playing; };
    while (stillOurs() && hSoundLib->GetSoundStatus(playing) == 1)
        Clock::instance().waitForEvents(kPollMs);
    // A clip started meanwhile is left to play: it cut this one off.
    if (stillOurs()) {
        hSoundLib->UnloadSound(&hCurrentSound);
        hCurrentSound = 0;
    }
}
