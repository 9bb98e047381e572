#include "Mixer.h"

#include <algorithm>
#include <cstdint>

namespace plovqsnd {

Mixer::Slot *Mixer::slot(int32_t handle)
{
    if (handle <= 0)
        return nullptr;
    for (Slot &s : slots_) {
        if (s.handle == handle)
            return &s;
    }
    return nullptr;
}

const Mixer::Slot *Mixer::slot(int32_t handle) const
{
    return const_cast<Mixer *>(this)->slot(handle);
}

int32_t Mixer::load(std::span<const int16_t> samples)
{
    for (Slot &s : slots_) {
        if (s.handle == 0) {
            lastHandle_ = lastHandle_ == INT32_MAX ? 1 : lastHandle_ + 1;
            s = Slot{samples, 0, lastHandle_, false};
            return lastHandle_;
        }
    }
    return 0;
}

void Mixer::play(int32_t handle)
{
    if (Slot *s = slot(handle)) {
        s->position = 0;
        s->playing = !s->samples.empty();
    }
}

bool Mixer::isPlaying(int32_t handle) const
{
    const Slot *s = slot(handle);
    return s && s->playing;
}

void Mixer::unload(int32_t handle)
{
    if (Slot *s = slot(handle))
        *s = Slot{};
}

void Mixer::clear()
{
    slots_.fill(Slot{});
}

void Mixer::releaseIdle()
{
    for (Slot &s : slots_) {
        if (!s.playing)
            s = Slot{};
    }
}

bool Mixer::anyPlaying() const
{
    for (const Slot &s : slots_) {
        if (s.playing)
            return true;
    }
    return false;
}

int32_t Mixer::lengthMs(int32_t handle) const
{
    const Slot *s = slot(handle);
    return s ? int32_t(s->samples.size() * 1000 / kSampleRate) : -1;
}

void Mixer::seek(int32_t handle, int32_t ms)
{
    Slot *s = slot(handle);
    if (!s)
        return;
    const size_t to = size_t(std::max<int64_t>(0, int64_t(ms) * kSampleRate / 1000));
    s->position = std::min(to, s->samples.size());
    if (s->position >= s->samples.size())
        s->playing = false;
}

void Mixer::mix(std::span<int16_t> out)
{
    std::fill(out.begin(), out.end(), int16_t(0));
    for (Slot &s : slots_) {
        if (!s.playing)
            continue;
        const size_t n = std::min(out.size(), s.samples.size() - s.position);
        for (size_t i = 0; i < n; ++i) {
            const int sum = out[i] + s.samples[s.position + i];
            out[i] = int16_t(std::clamp(sum, -32768, 32767));
        }
        s.position += n;
        if (s.position >= s.samples.size())
            s.playing = false;
    }
}

} // namespace plovqsnd
