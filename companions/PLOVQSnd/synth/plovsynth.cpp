// plovsynth: renders one clip of the sound library from its note list.
//
//   plovsynth IN.notes OUT.raw|OUT.wav
//
// Output is 44100 Hz, mono, signed 16-bit little endian. A ".wav" output
// gets a RIFF header (for listening and measuring); ".raw" is what the
// library embeds. The note-list format is described in ../clips/README.md.
//
// Everything is deterministic: the same note list gives the same bytes, so
// a clip only changes when its score does.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <numbers>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr int kRate = 44100;
constexpr double kPi = std::numbers::pi;

struct Voice {
    std::string instrument = "sine";
    double volume = 0.8;
    int octaveShift = 0;
    double detuneCents = 0.0;
    double attack = -1.0;   // < 0: the instrument's own
    double release = -1.0;
};

struct Note {
    double start = 0;      // seconds
    double length = 0;     // seconds, held part
    double frequency = 0;  // Hz, 0 for drums
    char drum = 0;         // drum letter for the drum kit
    double velocity = 1;
};

struct Track {
    Voice voice;
    std::vector<Note> notes;
};

struct Score {
    double tempo = 120;     // quarter notes per minute
    double exactLength = -1;
    double tail = 0.4;
    double peakDb = -1.0;
    double reverb = 0.0;
    std::vector<Track> tracks;
};

[[noreturn]] void fail(int line, const std::string &what)
{
    throw std::runtime_error("line " + std::to_string(line) + ": " + what);
}

// "C4", "F#5", "Bb3" -> Hz (A4 = 440).
double noteFrequency(const std::string &name, int line)
{
    static const std::map<char, int> steps{{'C', 0}, {'D', 2}, {'E', 4}, {'F', 5},
                                           {'G', 7}, {'A', 9}, {'B', 11}};
    if (name.empty() || !steps.count(char(std::toupper(name[0]))))
        fail(line, "bad note '" + name + "'");
    int semis = steps.at(char(std::toupper(name[0])));
    size_t i = 1;
    while (i < name.size() && (name[i] == '#' || name[i] == 'b')) {
        semis += name[i] == '#' ? 1 : -1;
        ++i;
    }
    if (i >= name.size())
        fail(line, "note without octave '" + name + "'");
    const int octave = std::stoi(name.substr(i));
    const int midi = (octave + 1) * 12 + semis;
    return 440.0 * std::pow(2.0, (midi - 69) / 12.0);
}

// "4", "8.", "8t", "2+8" -> length in quarter notes.
double durationBeats(const std::string &text, int line)
{
    double total = 0;
    std::stringstream parts(text);
    std::string part;
    while (std::getline(parts, part, '+')) {
        if (part.empty())
            fail(line, "bad duration '" + text + "'");
        size_t used = 0;
        const int denominator = std::stoi(part, &used);
        if (denominator <= 0)
            fail(line, "bad duration '" + text + "'");
        double beats = 4.0 / denominator;
        const std::string suffix = part.substr(used);
        if (suffix == ".")
            beats *= 1.5;
        else if (suffix == "t")
            beats *= 2.0 / 3.0;
        else if (!suffix.empty())
            fail(line, "bad duration '" + text + "'");
        total += beats;
    }
    return total;
}

class Parser {
public:
    explicit Parser(std::istream &in) : in_(in) {}

    Score parse()
    {
        std::string raw;
        while (std::getline(in_, raw)) {
            ++line_;
            const std::string text = withoutComment(raw);
            std::vector<std::string> words = split(text);
            if (words.empty())
                continue;
            if (!directive(words))
                notesLine(words);
        }
        if (!repeatBody_.empty() || inRepeat_)
            fail(line_, "repeat without end");
        return score_;
    }

private:
    // "#" starts a comment only at the start of a word: "C#5/8" is a note.
    static std::string withoutComment(const std::string &line)
    {
        for (size_t i = 0; i < line.size(); ++i) {
            if (line[i] == '#' && (i == 0 || std::isspace(static_cast<unsigned char>(line[i - 1]))))
                return line.substr(0, i);
        }
        return line;
    }

    static std::vector<std::string> split(const std::string &text)
    {
        std::vector<std::string> words;
        std::stringstream s(text);
        std::string w;
        while (s >> w)
            words.push_back(w);
        return words;
    }

    bool directive(const std::vector<std::string> &w)
    {
        const std::string &d = w[0];
        auto number = [&](size_t i) {
            if (i >= w.size())
                fail(line_, d + " needs a value");
            return std::stod(w[i]);
        };
        if (d == "tempo") score_.tempo = number(1);
        else if (d == "length") score_.exactLength = number(1);
        else if (d == "tail") score_.tail = number(1);
        else if (d == "gain") score_.peakDb = number(1);
        else if (d == "reverb") score_.reverb = number(1);
        else if (d == "track") startTrack(w);
        else if (d == "repeat") startRepeat(int(number(1)));
        else if (d == "end") endRepeat();
        else return false;
        return true;
    }

    void startTrack(const std::vector<std::string> &w)
    {
        if (inRepeat_)
            fail(line_, "track inside repeat");
        if (w.size() < 3)
            fail(line_, "track NAME INSTRUMENT [options]");
        Track t;
        t.voice.instrument = w[2];
        for (size_t i = 3; i + 1 < w.size(); i += 2) {
            const double v = std::stod(w[i + 1]);
            if (w[i] == "vol") t.voice.volume = v;
            else if (w[i] == "oct") t.voice.octaveShift = int(v);
            else if (w[i] == "detune") t.voice.detuneCents = v;
            else if (w[i] == "attack") t.voice.attack = v;
            else if (w[i] == "release") t.voice.release = v;
            else fail(line_, "unknown track option " + w[i]);
        }
        score_.tracks.push_back(t);
        beat_ = 0;
        velocity_ = 1.0;
    }

    void startRepeat(int times)
    {
        if (inRepeat_)
            fail(line_, "nested repeat");
        inRepeat_ = true;
        repeatTimes_ = times;
        repeatBody_.clear();
    }

    void endRepeat()
    {
        if (!inRepeat_)
            fail(line_, "end without repeat");
        inRepeat_ = false;
        const auto body = repeatBody_;
        repeatBody_.clear();
        for (int k = 0; k < repeatTimes_; ++k)
            for (const auto &[l, words] : body)
                emit(words, l);
    }

    void notesLine(const std::vector<std::string> &words)
    {
        if (score_.tracks.empty())
            fail(line_, "notes before the first track");
        if (inRepeat_)
            repeatBody_.emplace_back(line_, words);
        else
            emit(words, line_);
    }

    void emit(const std::vector<std::string> &words, int line)
    {
        Track &track = score_.tracks.back();
        const double secondsPerBeat = 60.0 / score_.tempo;
        for (const std::string &token : words) {
            if (token[0] == 'v' && token.size() > 1 && (std::isdigit(token[1]) || token[1] == '.')) {
                velocity_ = std::stod(token.substr(1));
                continue;
            }
            const size_t slash = token.find('/');
            if (slash == std::string::npos)
                fail(line, "token without duration '" + token + "'");
            const double beats = durationBeats(token.substr(slash + 1), line);
            const std::string pitches = token.substr(0, slash);
            if (pitches != "R" && pitches != "r") {
                std::stringstream chord(pitches);
                std::string pitch;
                while (std::getline(chord, pitch, ':')) {
                    Note n;
                    n.start = beat_ * secondsPerBeat;
                    n.length = beats * secondsPerBeat;
                    n.velocity = velocity_;
                    if (track.voice.instrument == "drums")
                        n.drum = pitch[0];
                    else
                        n.frequency = noteFrequency(pitch, line) * std::pow(2.0, track.voice.octaveShift);
                    track.notes.push_back(n);
                }
            }
            beat_ += beats;
        }
    }

    std::istream &in_;
    Score score_;
    int line_ = 0;
    double beat_ = 0;
    double velocity_ = 1.0;
    bool inRepeat_ = false;
    int repeatTimes_ = 0;
    std::vector<std::pair<int, std::vector<std::string>>> repeatBody_;
};

// ---------------------------------------------------------------- instruments

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

// A tiny deterministic noise source for percussion.
class Noise {
public:
    double next()
    {
        state_ = state_ * 1664525u + 1013904223u;
        return (state_ >> 8) / double(1u << 24) * 2.0 - 1.0;
    }

private:
    uint32_t state_ = 0x1234567u;
};

struct Rendered {
    std::vector<double> samples;
};

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

void renderDrum(std::vector<double> &out, const Note &n, const Voice &v, Noise &noise)
{
    double length = 0.25;
    if (n.drum == 'C') length = 1.6;
    else if (n.drum == 'O') length = 0.5;
    else if (n.drum == 'K' || n.drum == 'T' || n.drum == 'M') length = 0.45;
    else if (n.drum == 'W' || n.drum == 'L') length = 0.15;
    const size_t first = size_t(n.start * kRate);
    const size_t count = size_t(length * kRate);
    if (out.size() < first + count)
        out.resize(first + count, 0.0);
    // One-pole filters shape the noise: raw white noise puts most of its
    // energy above 10 kHz, which hisses instead of sounding like a drum.
    auto coefficient = [](double hz) { return 1.0 - std::exp(-2 * kPi * hz / kRate); };
    const double below150 = coefficient(150), below1k = coefficient(1000);
    const double below3k = coefficient(3000), below6k = coefficient(6000);
    double low = 0, top1 = 0, top2 = 0;
    // Metal (hats, crash): noise between about 3 and 6 kHz.
    auto metal = [&](double x) {
        low += below3k * (x - low);
        top1 += below6k * ((x - low) - top1);
        top2 += below6k * (top1 - top2);
        return 2.5 * top2;
    };
    // Skin (snare, clap): noise below about 6 kHz.
    auto skin = [&](double x, double lowCut) {
        low += lowCut * (x - low);
        top1 += below6k * ((x - low) - top1);
        top2 += below6k * (top1 - top2);
        return 1.5 * top2;
    };
    double phase = 0;
    for (size_t i = 0; i < count; ++i) {
        const double t = double(i) / kRate;
        double s = 0;
        switch (n.drum) {
        case 'K': { // falling sine thump
            const double f = 45 + 110 * std::exp(-t * 35);
            phase += 2 * kPi * f / kRate;
            s = std::sin(phase) * std::exp(-t * 9);
            break;
        }
        case 'T':
        case 'M': {
            const double base = n.drum == 'T' ? 95 : 140;
            const double f = base + 60 * std::exp(-t * 20);
            phase += 2 * kPi * f / kRate;
            s = 0.8 * std::sin(phase) * std::exp(-t * 8) + 0.1 * skin(noise.next(), below1k) * std::exp(-t * 30);
            break;
        }
        case 'S':
            phase += 2 * kPi * 190 / kRate;
            s = 0.55 * skin(noise.next(), below150) * std::exp(-t * 18) + 0.35 * std::sin(phase) * std::exp(-t * 25);
            break;
        case 'X': // clap: three quick bursts
            s = 0.6 * skin(noise.next(), below1k) *
                (std::exp(-std::fmod(t, 0.012) * 250) * (t < 0.036) + std::exp(-t * 14) * 0.6);
            break;
        case 'H':
            s = 0.35 * metal(noise.next()) * std::exp(-t * 70);
            break;
        case 'O':
            s = 0.3 * metal(noise.next()) * std::exp(-t * 9);
            break;
        case 'C':
            s = 0.4 * metal(noise.next()) * std::exp(-t * 2.8);
            break;
        case 'W':
        case 'L': { // wood block, tuned near C6 (W) and F5 (L): a clock's tick and tock
            const double f = n.drum == 'W' ? 1046.5 : 698.5;
            s = 0.8 * std::sin(2 * kPi * f * t) * std::exp(-t * 45) +
                0.25 * std::sin(2 * kPi * 2.76 * f * t) * std::exp(-t * 110) +
                0.3 * skin(noise.next(), below3k) * std::exp(-t * 700);
            break;
        }
        default:
            throw std::runtime_error(std::string("unknown drum ") + n.drum);
        }
        out[first + i] += v.volume * n.velocity * s;
    }
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

std::vector<double> render(const Score &score)
{
    std::vector<double> mix;
    Noise noise;
    double lastEnd = 0;
    for (const Track &track : score.tracks) {
        std::vector<double> out;
        for (const Note &n : track.notes) {
            if (track.voice.instrument == "drums")
                renderDrum(out, n, track.voice, noise);
            else
                renderTone(out, n, track.voice);
            lastEnd = std::max(lastEnd, n.start + n.length);
        }
        if (mix.size() < out.size())
            mix.resize(out.size(), 0.0);
        for (size_t i = 0; i < out.size(); ++i)
            mix[i] += out[i];
    }
    addReverb(mix, score.reverb);

    const size_t wanted = score.exactLength > 0 ? size_t(std::llround(score.exactLength * kRate))
                                                : size_t((lastEnd + score.tail) * kRate);
    mix.resize(wanted, 0.0);

    double peak = 0;
    for (double s : mix)
        peak = std::max(peak, std::abs(s));
    const double target = std::pow(10.0, score.peakDb / 20.0);
    const double scale = peak > 0 ? target / peak : 0.0;
    const size_t fade = std::min(mix.size(), size_t(kRate * 0.06));
    for (size_t i = 0; i < mix.size(); ++i) {
        mix[i] *= scale;
        if (i >= mix.size() - fade)
            mix[i] *= double(mix.size() - i) / fade;
        if (i < 64)
            mix[i] *= i / 64.0; // no click at the start
    }
    return mix;
}

void put16(std::ostream &o, uint16_t v) { o.put(char(v & 0xff)).put(char(v >> 8)); }
void put32(std::ostream &o, uint32_t v) { put16(o, uint16_t(v & 0xffff)); put16(o, uint16_t(v >> 16)); }

void write(const std::string &path, const std::vector<double> &samples)
{
    std::ofstream out(path, std::ios::binary);
    if (!out)
        throw std::runtime_error("cannot write " + path);
    const bool wav = path.size() > 4 && path.substr(path.size() - 4) == ".wav";
    const uint32_t bytes = uint32_t(samples.size() * 2);
    if (wav) {
        out.write("RIFF", 4); put32(out, 36 + bytes); out.write("WAVEfmt ", 8);
        put32(out, 16); put16(out, 1); put16(out, 1); put32(out, kRate);
        put32(out, kRate * 2); put16(out, 2); put16(out, 16);
        out.write("data", 4); put32(out, bytes);
    }
    for (double s : samples)
        put16(out, uint16_t(int16_t(std::lround(std::clamp(s, -1.0, 1.0) * 32767))));
    if (!out)
        throw std::runtime_error("write failed: " + path);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::cerr << "usage: plovsynth IN.notes OUT.raw|OUT.wav\n";
        return 2;
    }
    try {
        std::ifstream in(argv[1]);
        if (!in)
            throw std::runtime_error(std::string("cannot read ") + argv[1]);
        const Score score = Parser(in).parse();
        write(argv[2], render(score));
    } catch (const std::exception &e) {
        std::cerr << argv[1] << ": " << e.what() << '\n';
        return 1;
    }
    return 0;
}
