// The instruments of the synthesiser: envelopes, timbres and the drum kit.

#include "Instruments.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

namespace plovsynth {
namespace {

struct Envelope {
    double attack, decay, sustain, release;

    // Level at time t after the note start, for a note held `held` seconds.
    double level(double t, double held) const
    {
        auto holding = [&](double x) {
            if (x < attack)
                return x / attack;
            if (x < attack + decay)
                return 1.0 - (1.0 - sustain) * (x - attack) / decay;
            return sustain;
        };
        if (t < held)
            return holding(t);
        const double r = t - held;
        if (r >= release)
            return 0.0;
        return holding(held) * (1.0 - r / release);
    }
};

// Band-limited sum of harmonics with amplitudes amp(k); stops below Nyquist.
// sin(k x) comes from the recurrence 2 cos(x) sin((k-1) x) - sin((k-2) x):
// one sin and one cos per sample instead of one sin per harmonic, which keeps
// a 30-second clip with chords well under a second to render.
template <typename Amp>
double harmonics(double phase, double frequency, int maxHarmonic, Amp amp)
{
    const double twoCos = 2 * std::cos(phase);
    double previous = 0;
    double current = std::sin(phase);
    double s = 0;
    for (int k = 1; k <= maxHarmonic && k * frequency < kRate / 2.2; ++k) {
        s += amp(k) * current;
        const double next = twoCos * current - previous;
        previous = current;
        current = next;
    }
    return s;
}

double instrumentSample(const std::string &kind, double f, double t, double held, double vibrato)
{
    const double phase = 2 * kPi * f * t + vibrato;
    // Gentle roll-off above `corner` Hz, so bright waveforms keep their bite
    // in the middle but lose the fizz that tires ears on projector speakers.
    auto soft = [f](int k, double corner) {
        const double r = k * f / corner;
        return 1.0 / (1.0 + r * r);
    };
    if (kind == "sine")
        return std::sin(phase);
    if (kind == "square")
        return 0.6 * harmonics(phase, f, 25, [&](int k) { return k % 2 ? soft(k, 6000) / k : 0.0; });
    if (kind == "saw")
        return 0.5 * harmonics(phase, f, 30, [&](int k) { return soft(k, 6000) / k; });
    if (kind == "triangle")
        return harmonics(phase, f, 15, [](int k) {
            return k % 2 ? ((k / 2) % 2 ? -1.0 : 1.0) / (k * k) : 0.0;
        });
    if (kind == "brass") {
        // Brightness opens during the attack, like a player pushing air.
        // Once open the spectrum no longer changes, so it comes from a table.
        static const std::array<double, 21> open = [] {
            std::array<double, 21> a{};
            for (int k = 1; k <= 20; ++k)
                a[size_t(k)] = std::pow(1.0 / k, 0.9);
            return a;
        }();
        const double bright = std::min(1.0, 0.35 + t / 0.08);
        const double slope = 1.6 - 0.7 * bright;
        return 0.5 * harmonics(phase, f, 20, [&](int k) {
            return (bright < 1.0 ? std::pow(1.0 / k, slope) : open[size_t(k)]) * soft(k, 4500);
        });
    }
    if (kind == "organ")
        return 0.45 * (std::sin(phase) + 0.5 * std::sin(2 * phase) + 0.3 * std::sin(3 * phase) +
                       0.2 * std::sin(4 * phase) + 0.1 * std::sin(6 * phase));
    if (kind == "pad")
        return 0.35 * (harmonics(phase, f, 12, [&](int k) { return soft(k, 5000) / k; }) +
                       harmonics(phase * 1.004, f, 12, [&](int k) { return soft(k, 5000) / k; }));
    if (kind == "bass")
        return 0.8 * std::sin(phase) + 0.3 * std::sin(2 * phase) + 0.1 * std::sin(3 * phase);
    if (kind == "bell") {
        // High bells get a smaller modulation index: their sidebands would
        // otherwise reach far above 10 kHz and sound like glass scratching.
        const double index = 3.0 * std::exp(-t * 3.0) * std::min(1.0, 600.0 / f);
        return std::sin(phase + index * std::sin(3.5 * phase));
    }
    if (kind == "marimba")
        return std::sin(phase) + 0.25 * std::exp(-t * 30) * std::sin(4 * phase);
    if (kind == "pluck") {
        // Harmonic k dies as exp(-2.5 k t): a running power of one decay
        // (harmonics() asks for k = 1, 2, 3, ... in order) spares an exp each.
        const double decay = std::exp(-t * 2.5);
        double power = 1.0;
        return harmonics(phase, f, 16, [&](int k) {
            power *= decay;
            return power / k;
        });
    }
    if (kind == "buzz")
        // Rolled off from 3.5 kHz: an unmistakable buzzer, not a painful one.
        return 0.5 * harmonics(phase, f, 40, [&](int k) { return soft(k, 3500) / k; }) +
               0.4 * harmonics(phase * 1.013, f, 25, [&](int k) { return k % 2 ? soft(k, 3500) / k : 0.0; });
    (void)held;
    throw std::runtime_error("unknown instrument " + kind);
}

Envelope envelopeFor(const std::string &kind, const Voice &v)
{
    Envelope e{0.01, 0.1, 0.8, 0.08};
    if (kind == "brass") e = {0.03, 0.12, 0.75, 0.10};
    else if (kind == "pad") e = {0.25, 0.3, 0.8, 0.5};
    else if (kind == "organ") e = {0.01, 0.05, 0.9, 0.06};
    else if (kind == "bell") e = {0.002, 1.2, 0.0, 0.6};
    else if (kind == "marimba") e = {0.002, 0.5, 0.0, 0.2};
    else if (kind == "pluck") e = {0.002, 0.8, 0.15, 0.15};
    else if (kind == "bass") e = {0.005, 0.25, 0.6, 0.08};
    else if (kind == "buzz") e = {0.01, 0.05, 0.9, 0.05};
    else if (kind == "square") e = {0.005, 0.08, 0.7, 0.05};
    if (v.attack >= 0) e.attack = std::max(0.001, v.attack);
    if (v.release >= 0) e.release = std::max(0.001, v.release);
    return e;
}

} // namespace

void renderTone(std::vector<double> &out, const Note &n, const Voice &v)
{
    const Envelope env = envelopeFor(v.instrument, v);
    const double f = n.frequency * std::pow(2.0, v.detuneCents / 1200.0);
    const size_t first = size_t(n.start * kRate);
    const size_t count = size_t((n.length + env.release) * kRate);
    if (out.size() < first + count)
        out.resize(first + count, 0.0);
    const bool vibrato = v.instrument == "brass" || v.instrument == "pad" || v.instrument == "organ";
    for (size_t i = 0; i < count; ++i) {
        const double t = double(i) / kRate;
        const double vib = vibrato ? 0.15 * std::min(1.0, t / 0.3) * std::sin(2 * kPi * 5.5 * t) : 0.0;
        out[first + i] += v.volume * n.velocity * env.level(t, n.length) *
                          instrumentSample(v.instrument, f, t, n.length, vib);
    }
}

namespace {

double drumLength(char drum)
{
    switch (drum) {
    case 'C': return 1.6;
    case 'O': return 0.5;
    case 'K': case 'T': case 'M': return 0.45;
    case 'W': case 'L': return 0.15;
    default: return 0.25;
    }
}

// One hit of the drum kit, sample by sample. One-pole filters shape the
// noise: raw white noise puts most of its energy above 10 kHz, which hisses
// instead of sounding like a drum.
class DrumHit {
public:
    DrumHit(char drum, Noise &noise) : drum_(drum), noise_(noise) {}

    double sample(double t)
    {
        switch (drum_) {
        case 'K': // falling sine thump
            return std::sin(advance(45 + 110 * std::exp(-t * 35))) * std::exp(-t * 9);
        case 'T':
        case 'M': {
            const double base = drum_ == 'T' ? 95 : 140;
            return 0.8 * std::sin(advance(base + 60 * std::exp(-t * 20))) * std::exp(-t * 8) +
                   0.1 * skin(below1k_) * std::exp(-t * 30);
        }
        case 'S': {
            const double tone = std::sin(advance(190));
            return 0.55 * skin(below150_) * std::exp(-t * 18) + 0.35 * tone * std::exp(-t * 25);
        }
        case 'X': // clap: three quick bursts
            return 0.6 * skin(below1k_) * (std::exp(-std::fmod(t, 0.012) * 250) * (t < 0.036) + std::exp(-t * 14) * 0.6);
        case 'H': return 0.35 * metal() * std::exp(-t * 70);
        case 'O': return 0.3 * metal() * std::exp(-t * 9);
        case 'C': return 0.4 * metal() * std::exp(-t * 2.8);
        case 'W':
        case 'L': { // wood block, tuned near C6 (W) and F5 (L): a clock's tick and tock
            const double f = drum_ == 'W' ? 1046.5 : 698.5;
            return 0.8 * std::sin(2 * kPi * f * t) * std::exp(-t * 45) +
                   0.25 * std::sin(2 * kPi * 2.76 * f * t) * std::exp(-t * 110) +
                   0.3 * skin(below3k_) * std::exp(-t * 700);
        }
        default:
            throw std::runtime_error(std::string("unknown drum ") + drum_);
        }
    }

private:
    static double coefficient(double hz) { return 1.0 - std::exp(-2 * kPi * hz / kRate); }

    double advance(double hz)
    {
        phase_ += 2 * kPi * hz / kRate;
        return phase_;
    }

    // Metal (hats, crash): noise between about 3 and 6 kHz.
    double metal() { return 2.5 * bandPass(below3k_); }
    // Skin (snare, clap): noise below about 6 kHz.
    double skin(double lowCut) { return 1.5 * bandPass(lowCut); }

    double bandPass(double lowCut)
    {
        const double x = noise_.next();
        low_ += lowCut * (x - low_);
        top1_ += below6k_ * ((x - low_) - top1_);
        top2_ += below6k_ * (top1_ - top2_);
        return top2_;
    }

    char drum_;
    Noise &noise_;
    double phase_ = 0, low_ = 0, top1_ = 0, top2_ = 0;
    const double below150_ = coefficient(150), below1k_ = coefficient(1000);
    const double below3k_ = coefficient(3000), below6k_ = coefficient(6000);
};

} // namespace

void renderDrum(std::vector<double> &out, const Note &n, const Voice &v, Noise &noise)
{
    const size_t first = size_t(n.start * kRate);
    const size_t count = size_t(drumLength(n.drum) * kRate);
    if (out.size() < first + count)
        out.resize(first + count, 0.0);
    DrumHit hit(n.drum, noise);
    for (size_t i = 0; i < count; ++i)
        out[first + i] += v.volume * n.velocity * hit.sample(double(i) / kRate);
}

// A small Schroeder reverb: four combs in parallel, two all-passes in series.
void addReverb(std::vector<double> &x, double mix)
{
    if (mix <= 0)
        return;
    x.resize(x.size() + size_t(kRate * 1.2), 0.0);
    const std::array<size_t, 4> combDelay{1557, 1617, 1491, 1422};
    std::vector<double> wet(x.size(), 0.0);
    for (size_t d : combDelay) {
        std::vector<double> buf(d, 0.0);
        size_t p = 0;
        double low = 0;
        for (size_t i = 0; i < x.size(); ++i) {
            const double y = buf[p];
            low = y * 0.8 + low * 0.2;
            buf[p] = x[i] + low * 0.8;
            wet[i] += y * 0.25;
            p = (p + 1) % d;
        }
    }
    for (size_t d : {size_t(225), size_t(556)}) {
        std::vector<double> buf(d, 0.0);
        size_t p = 0;
        for (double &s : wet) {
            const double y = buf[p];
            buf[p] = s + y * 0.5;
            s = y - s * 0.5;
            p = (p + 1) % d;
        }
    }
    for (size_t i = 0; i < x.size(); ++i)
        x[i] = x[i] * (1.0 - mix * 0.5) + wet[i] * mix;
}

} // namespace plovsynth
