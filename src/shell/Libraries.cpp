#include "Libraries.h"

#include "basDetectDevEnv.h"
#include "platform/Clock.h"
#include "platform/ModuleFileName.h"
#include "platform/PictureBox.h"

namespace {

// How long a wait for the end of a clip sleeps between two looks at it.
constexpr int kPollMs = 15;

} // namespace

Libraries::Libraries() = default;

Libraries::~Libraries()
{
    ShutdownLibraries();
}

QString Libraries::PictureLibraryPath()
{
    return ModuleFileName::programFolder() + QStringLiteral("PLOVQBmp") + librarySuffix();
}

QString Libraries::SoundLibraryPath()
{
    return ModuleFileName::programFolder() + QStringLiteral("PLOVQSnd") + librarySuffix();
}

bool Libraries::soundsHeard() const
{
    return hSoundLib && basDetectDevEnv::IsRunningCompiled();
}

void Libraries::PlayGameSound(int32_t soundId, bool waitForEnd)
{
    if (!soundsHeard())
        return;
    if (hCurrentSound != 0) {
        hSoundLib->UnloadSound(&hCurrentSound);
        hCurrentSound = 0;
    }
    ++clipsStarted_;
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
    const int thisClip = clipsStarted_;
    auto stillOurs = [&] { return hSoundLib && clipsStarted_ == thisClip && hCurrentSound == playing; };
    while (stillOurs() && hSoundLib->GetSoundStatus(playing) == 1)
        Clock::instance().waitForEvents(kPollMs);
    // A clip started meanwhile is left to play: it cut this one off.
    if (stillOurs()) {
        hSoundLib->UnloadSound(&hCurrentSound);
        hCurrentSound = 0;
    }
}

void Libraries::ShutdownSound()
{
    if (hSoundLib)
        hSoundLib->Shutdown();
    hCurrentSound = 0;
}

void Libraries::DrawLibraryBitmap(PictureBox &target, int32_t id) const
{
    if (!hPictureLib)
        return;
    const QImage picture = hPictureLib->bitmap(id);
    if (!picture.isNull())
        target.setImage(picture);
}

void Libraries::ShutdownLibraries()
{
    ShutdownSound();
    hSoundLib.reset();
    hPictureLib.reset();
}
