// The two companion libraries, bound for the whole run, and the one way the
// game plays a clip or draws a picture. Either library may be missing: its
// handle is then empty and everything that needs it does nothing.
#pragma once

#include "PictureLibrary.h"
#include "SoundLibrary.h"

#include <QString>

#include <cstdint>
#include <memory>

class PictureBox;

class Libraries {
public:
    Libraries();
    ~Libraries();
    Libraries(const Libraries &) = delete;
    Libraries &operator=(const Libraries &) = delete;

    // Where the game binds them from: its own folder, never a search path.
    static QString PictureLibraryPath();
    static QString SoundLibraryPath();

    std::unique_ptr<PictureLibrary> hPictureLib;
    std::unique_ptr<SoundLibrary> hSoundLib;
    // The one loaded clip; 0 = none.
    int32_t hCurrentSound = 0;

    // Plays a clip; a new clip cuts off the last. With waitForEnd the call
    // returns when the clip has ended, dispatching events meanwhile. Nothing
    // is heard without the library or outside the game's own executable.
    void PlayGameSound(int32_t soundId, bool waitForEnd);
    // Whether PlayGameSound is heard at all: a library, and the game's own
    // executable.
    bool soundsHeard() const;

    // Stops the sound library taking new clips (a clip playing may finish)
    // and forgets the current clip.
    void ShutdownSound();

    // Draws picture id into the target, which takes the picture's size.
    // Without the library, or for an id it does not hold, the target stays
    // as it was.
    void DrawLibraryBitmap(PictureBox &target, int32_t id) const;

    // Shuts the sound down and releases both libraries; safe to call more
    // than once.
    void ShutdownLibraries();

private:
    // Counts the clips the game has started: a wait ends when another clip
    // starts, whatever handle the library gives it.
    int clipsStarted_ = 0;
};
