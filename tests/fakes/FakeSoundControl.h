// The test's side of the fake sound library: installs it as the game's
// sound library and reads back what the game asked of it.
#pragma once

#include <QString>
#include <QStringList>

class FakeSoundControl {
public:
    // Loads the fake as the game's sound library (hSoundLib) and clears it.
    FakeSoundControl();
    // Releases the library again (hSoundLib = nullptr).
    ~FakeSoundControl();

    void reset();
    QStringList calls() const;        // "InitSound", "LoadSound 101", "PlaySound 101", ...
    int statusPolls() const;
    void setInitFailures(int count);
    void setClipLength(int soundId, int ms);
    void setLoadFails(int soundId, bool fails);
    void advance(int ms);

private:
    template <typename F>
    F fn(const char *name) const;
};
