#include "FakeSoundControl.h"

#include "shell/Libraries.h"

#include <QtTest>

template <typename F>
F FakeSoundControl::fn(const char *name) const
{
    auto f = reinterpret_cast<F>(control_.resolve(name));
    if (!f)
        qFatal("fake sound library lacks %s", name);
    return f;
}

FakeSoundControl::FakeSoundControl(Libraries &libraries)
    : libraries_(libraries), control_(QStringLiteral(FAKE_SOUND_LIBRARY))
{
    if (!control_.load())
        qFatal("cannot load the fake sound library " FAKE_SOUND_LIBRARY);
    libraries_.hSoundLib = SoundLibrary::load(QStringLiteral(FAKE_SOUND_LIBRARY));
    if (!libraries_.hSoundLib)
        qFatal("cannot bind the fake sound library " FAKE_SOUND_LIBRARY);
    reset();
}

FakeSoundControl::~FakeSoundControl()
{
    libraries_.hSoundLib.reset();
    libraries_.hCurrentSound = 0;
    control_.unload();
}

void FakeSoundControl::reset()
{
    fn<void (*)()>("FakeSnd_Reset")();
    libraries_.hCurrentSound = 0;
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
    fn<void (*)(int)>("FakeSnd_Advance")(ms);
}

QStringList FakeSoundControl::played() const
{
    QStringList sounds;
    for (const QString &call : calls()) {
        if (call.startsWith(QStringLiteral("PlaySound ")))
            sounds << call.mid(10);
    }
    return sounds;
}
