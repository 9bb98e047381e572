// The synthesiser's voices: what a note is, and how an instrument turns
// it into samples. The score's parser and the mixing live in plovsynth.cpp.
#pragma once

#include <cstdint>
#include <numbers>
#include <string>
#include <vector>

namespace plovsynth {

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

// Adds one note of a pitched instrument into out (grown as needed).
void renderTone(std::vector<double> &out, const Note &n, const Voice &v);
// Adds one hit of the drum kit into out.
void renderDrum(std::vector<double> &out, const Note &n, const Voice &v, Noise &noise);
// A small room: mixes a reverberated copy into x (which grows by its tail).
void addReverb(std::vector<double> &x, double mix);

} // namespace plovsynth
