// The test's side of the fake sound library: installs it as the game's
// sound library and reads back what the game asked of it.
#pragma once

#include <QLibrary>
#include <QString>
#include <QStringList>

class Libraries;

class FakeSoundControl {
public:
    // Loads the fake as the game's sound library (hSoundLib) and clears it.
    explicit FakeSoundControl(Libraries &libraries);
    // Releases the library again (hSoundLib empty).
    ~FakeSoundControl();

    void reset();
    QStringList calls() const;        // "InitSound", "LoadSound 101", "PlaySound 101", ...
    QStringList played() const;       // the clips played, in order: "103", "101", ...
    int statusPolls() const;
    void setInitFailures(int count);
    void setClipLength(int soundId, int ms);
    void setLoadFails(int soundId, bool fails);
    void advance(int ms);

private:
    template <typename F>
    F fn(const char *name) const;

    Libraries &libraries_;
    // The test's own handle on the same module: its controls keep working
    // when the game releases its library.
    mutable QLibrary control_;
};
