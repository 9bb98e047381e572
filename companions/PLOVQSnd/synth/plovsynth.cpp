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

#include "Instruments.h"

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

using namespace plovsynth;

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