#include "FakeSoundControl.h"

#include "shell/SoundLibrary.h"

#include <QtTest>

template <typename F>
F FakeSoundControl::fn(const char *name) const
{
    auto f = reinterpret_cast<F>(basPLOVQuzr::hSoundLib->module().resolve(name));
    if (!f)
        qFatal("fake sound library lacks %s", name);
    return f;
}

FakeSoundControl::FakeSoundControl()
{
    delete basPLOVQuzr::hSoundLib;
    basPLOVQuzr::hSoundLib = SoundLibrary::load(QStringLiteral(FAKE_SOUND_LIBRARY));
    if (!basPLOVQuzr::hSoundLib)
        qFatal("cannot load the fake sound library " FAKE_SOUND_LIBRARY);
    reset();
}

FakeSoundControl::~FakeSoundControl()
{
    delete basPLOVQuzr::hSoundLib;
    basPLOVQuzr::hSoundLib = nullptr;
    basPLOVQuzr::hCurrentSound = 0;
}

void FakeSoundControl::reset()
{
    fn<void (*)()>("FakeSnd_Reset")();
    basPLOVQuzr::hCurrentSound = 0;
}

QStringList FakeSoundControl::calls() const
{
    const QString log = QString::fromUtf8(fn<const char *(*)()>("FakeSnd_Log")());
    return log.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

int FakeSoundControl::statusPolls() const
{
    return fn<int (*)()>("FakeSnd_StatusPolls")();
}

void FakeSoundControl::setInitFailures(int count)
{
    fn<void (*)(int)>("FakeSnd_SetInitFailures")(count);
}

void FakeSoundControl::setClipLength(int soundId, int ms)
{
    fn<void (*)(int32_t, int)>("FakeSnd_SetClipLength")(soundId, ms);
}

void FakeSoundControl::setLoadFails(int soundId, bool fails)
{
    fn<void (*)(int32_t, int)>("FakeSnd_SetLoadFails")(soundId, fails ? 1 : 0);
}

void FakeSoundControl::advance(int ms)
{
    if (basPLOVQuzr::hSoundLib)
        fn<void (*)(int)>("FakeSnd_Advance")(ms);
}
