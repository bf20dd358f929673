#include "tools/demo/instruments.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace sonotik::demo {
namespace {

constexpr double kTwoPi = 2 * std::numbers::pi;

enum class Engine {
  kAdditive,  // tone: how fast upper partials die (1/s each), colour: partial k sounds at k^colour
  kFm,        // tone: modulator ratio, colour: modulation index
  kPluck,     // tone: brightness 0 to 1, colour: seconds to fall by 60 dB
  kPulse,     // tone: duty
  kSaw,       // two saws through a low pass at `tone` times the pitch, opened by `colour` times it
};

struct Instrument {
  Engine engine;
  double attack, decay, sustain, release;  // seconds, but sustain a level
  double tone, colour;
  double vibrato;  // depth in semitones
  std::array<double, 8> partials = {};
};

// clang-format off
// In the order of Sound.
constexpr Instrument kInstruments[] = {
    {Engine::kPulse, .004, .12, .7, .06, .5, 0, .10},
    {Engine::kPulse, .003, .08, .55, .04, .22, 0, 0},
    {Engine::kAdditive, .003, .2, .9, .05, 0, 1, 0, {1, 0, .11, 0, .04, 0, .02, 0}},
    {Engine::kFm, .006, .5, .45, .12, 2, 2.2, .12},
    {Engine::kAdditive, .003, 1.1, 0, .18, 1.6, 1.0007, 0, {1, .55, .38, .2, .13, .1, .04, .05}},
    {Engine::kFm, .003, 1.3, 0, .2, 1, 1.5, 0},
    {Engine::kAdditive, .008, .1, 1, .05, 0, 1, .12, {.9, 1, .6, .7, 0, .35, 0, .4}},
    {Engine::kPulse, .03, .2, .85, .09, .34, 0, .14},
    {Engine::kAdditive, .002, 1.4, 0, .35, 2.2, 2, .04, {1, .3, .06}},
    {Engine::kAdditive, .001, .35, 0, .2, 9, 2, 0, {1, .45, .16}},
    {Engine::kAdditive, .001, 1.1, 0, .8, 2.6, 1.53, 0, {1, .42, .3, .12}},
    {Engine::kPluck, .001, 9, 1, .12, .35, 2.2, 0},
    {Engine::kPluck, .001, 9, 1, .12, .7, 3.2, .05},
    {Engine::kPluck, .001, 9, 1, .06, .93, .9, 0},
    {Engine::kPluck, .001, 9, 1, .6, .5, 4, 0},
    {Engine::kSaw, .03, .18, .75, .1, 2.2, 4.2, .10},
    {Engine::kAdditive, .03, .1, .9, .08, 0, 1, .12, {1, .04, .45, .05, .22, .04, .08, .02}},
    {Engine::kAdditive, .05, .1, .9, .1, 0, 1, .22, {1, .22, .1, .03}},
    {Engine::kAdditive, .02, .1, .9, .05, 0, 1, .18, {1, .12, .2, .05, .04}},
    {Engine::kSaw, .09, .3, .85, .22, 3.0, 1.2, .12},
    {Engine::kSaw, .45, .5, .9, .8, 1.8, .9, .06},
    {Engine::kSaw, .006, .3, .6, .12, 2.5, 6, .14},
    {Engine::kSaw, .003, .16, .12, .09, 1.6, 9, 0},
    {Engine::kSaw, .004, .5, .6, .08, 5, 4, .05},
    {Engine::kPluck, .002, 9, 1, .08, .22, 1.5, 0},
    {Engine::kPluck, .002, 9, 1, .06, .45, 2.2, 0},
    {Engine::kSaw, .004, .18, .5, .05, 1.4, 5, 0},
    {Engine::kAdditive, .025, .15, .8, .07, 0, 1, 0, {1, .6, .3, .12, .05}},
};
// clang-format on

struct DrumSound {
  double from, to, sweep, tone, tone_decay;  // Hz, Hz, 1/s, level, 1/s
  double noise, noise_decay, high_pass;      // level, 1/s, 0 dull to 1 thin
  double attack;                             // seconds
  int hold;                                  // samples a noise value is held for, the chip's rattle
};

// clang-format off
// In the order of Drum.
constexpr DrumSound kDrums[] = {
    {150, 48, 28, 1.0, 9, .25, 90, .5, .001, 1},  {90, 42, 22, .9, 10, .06, 60, .2, .003, 1},
    {210, 46, 34, 1.1, 8, .35, 160, .6, .001, 1}, {320, 50, 40, .9, 14, .2, 80, .3, .001, 9},
    {230, 180, 20, .5, 20, .75, 17, .5, .001, 1}, {0, 0, 0, 0, 1, .42, 14, .6, .018, 1},
    {0, 0, 0, 0, 1, .8, 22, .62, .001, 1},        {260, 140, 30, .3, 24, .6, 18, .3, .001, 5},
    {1750, 1650, 9, .5, 70, .3, 120, .6, .001, 1}, {0, 0, 0, 0, 1, .42, 55, .93, .001, 1},
    {0, 0, 0, 0, 1, .40, 11, .93, .001, 1},       {0, 0, 0, 0, 1, .3, 60, .8, .001, 2},
    {5200, 5100, 1, .06, 7, .22, 9, .95, .001, 1}, {0, 0, 0, 0, 1, .3, 34, .9, .012, 1},
    {150, 80, 12, .9, 9, .12, 50, .3, .001, 1},   {420, 400, 1, .03, 5, .5, 2.6, .88, .001, 1},
};
// clang-format on

double Sine(double turns) {
  static const auto kTable = [] {
    std::array<float, 4097> table;
    for (int i = 0; i <= 4096; ++i) table[i] = static_cast<float>(std::sin(kTwoPi * i / 4096));
    return table;
  }();
  const double place = (turns - std::floor(turns)) * 4096;
  const int i = static_cast<int>(place);
  return kTable[i] + (kTable[i + 1] - kTable[i]) * (place - i);
}

// The correction that rounds a jump of a saw or pulse off, so that it doesn't alias.
double PolyBlep(double phase, double step) {
  if (phase < step) {
    const double t = phase / step;
    return t + t - t * t - 1;
  }
  if (phase > 1 - step) {
    const double t = (phase - 1) / step;
    return t * t + t + t + 1;
  }
  return 0;
}

double Saw(double phase, double step) { return 2 * phase - 1 - PolyBlep(phase, step); }

double Envelope(const Instrument& tool, double t, double held) {
  const auto pressed = [&](double at) {
    if (at < tool.attack) return at / tool.attack;
    return tool.sustain + (1 - tool.sustain) * std::exp(-(at - tool.attack) * 2.2 / tool.decay);
  };
  if (t < held) return pressed(t);
  const double left = std::max(0.0, 1 - (t - held) / tool.release);
  return pressed(held) * left * left;
}

// Karplus and Strong, 1983: a burst of noise running round a damped delay line. The all-pass at the
// end of the line tunes it between whole samples.
void Pluck(const Instrument& tool, double hz, std::vector<float>& out, Random& random) {
  const double period = kSampleRate / hz - 0.5;
  const int length = std::max(2, static_cast<int>(period - 0.1));
  const double fraction = period - length;
  const double all_pass = (1 - fraction) / (1 + fraction);
  const double loss = std::pow(0.001, 1 / (hz * tool.colour));
  std::vector<double> line(length);
  double smooth = 0;
  for (double& value : line) value = smooth += tool.tone * (random.Signed() - smooth);
  double mean = 0, peak = 1e-9;
  for (const double value : line) mean += value / length;
  for (double& value : line) peak = std::max(peak, std::abs(value -= mean));
  double before = 0, tuned = 0, tuned_in = 0;
  for (size_t i = 0; i < out.size(); ++i) {
    double& cell = line[i % length];
    const double damped = loss * 0.5 * (cell + before);
    before = cell;
    tuned = all_pass * (damped - tuned) + tuned_in;
    tuned_in = damped;
    out[i] = static_cast<float>(cell / peak);
    cell = tuned;
  }
}

// Brings every instrument to the same loudness, so that a band's gains can be compared: the loudest
// tenth of a second has an RMS of a quarter of the velocity.
void Level(std::vector<float>& note, double velocity) {
  const size_t window = std::min<size_t>(note.size(), kSampleRate / 10);
  double loudest = 1e-9;
  for (size_t start = 0; start + window <= note.size(); start += window) {
    double energy = 0;
    for (size_t i = start; i < start + window; ++i) energy += note[i] * note[i];
    loudest = std::max(loudest, energy / static_cast<double>(window));
  }
  const auto gain = static_cast<float>(0.25 * velocity / std::sqrt(loudest));
  for (float& value : note) value *= gain;
}

}  // namespace

std::vector<float> RenderNote(Sound sound, double pitch, double seconds, double velocity,
                              Random& random) {
  const Instrument& tool = kInstruments[static_cast<int>(sound)];
  const double hz = 440 * std::pow(2, (pitch - 69) / 12);
  std::vector<float> out(static_cast<size_t>((seconds + tool.release) * kSampleRate) + 1);
  if (tool.engine == Engine::kPluck) Pluck(tool, hz, out, random);

  struct Partial {
    double ratio, level, fade;
  };
  std::vector<Partial> partials;
  double sum = 0;
  for (const double partial : tool.partials) sum += partial;
  for (int k = 0; k < 8; ++k) {
    const double ratio = std::pow(k + 1, tool.colour);
    if (tool.partials[k] == 0 || hz * ratio > 15000) continue;
    partials.push_back({ratio, tool.partials[k] / sum, std::exp(-tool.tone * k / kSampleRate)});
  }
  const double drift = random.Unit();
  double phase = tool.engine == Engine::kSaw ? drift : 0, phase2 = 0, low = 0, band = 0;
  for (size_t i = 0; i < out.size(); ++i) {
    const double t = static_cast<double>(i) / kSampleRate;
    const double envelope = Envelope(tool, t, seconds);
    const double bend = tool.vibrato * std::min(1.0, t * 2.5) * Sine(t * 5.3 + drift);
    const double step = hz * (1 + bend * 0.0578) / kSampleRate;
    phase += step;
    double value = 0;
    switch (tool.engine) {
      case Engine::kAdditive:
        for (Partial& partial : partials) {
          value += partial.level * Sine(phase * partial.ratio);
          partial.level *= partial.fade;
        }
        break;
      case Engine::kFm:
        value = Sine(phase + Sine(phase * tool.tone) * tool.colour * envelope *
                                 (0.4 + 0.6 * velocity) / kTwoPi);
        break;
      case Engine::kPluck:
        value = out[i];
        break;
      case Engine::kPulse: {
        phase -= std::floor(phase);
        const double second = phase + tool.tone - std::floor(phase + tool.tone);
        value = (Saw(phase, step) - Saw(second, step)) * 0.6;
        break;
      }
      case Engine::kSaw: {
        phase -= step * 0.003;
        phase -= std::floor(phase);
        phase2 += step * 1.003;
        phase2 -= std::floor(phase2);
        const double saw = 0.5 * (Saw(phase, step) + Saw(phase2, step));
        const double corner =
            std::min(hz * (tool.tone + tool.colour * envelope * velocity), 9000.0);
        const double f = 2 * Sine(corner / kSampleRate / 2);
        low += f * band;
        band += f * (saw - low - 0.9 * band);
        value = low;
        break;
      }
    }
    out[i] = static_cast<float>(value * envelope);
  }
  Level(out, velocity);
  return out;
}

std::vector<float> RenderDrum(Drum drum, double velocity, Random& random) {
  const DrumSound& sound = kDrums[static_cast<int>(drum)];
  const double slowest = std::min(sound.tone > 0 ? sound.tone_decay : 1e9, sound.noise_decay);
  std::vector<float> out(static_cast<size_t>(std::min(1.9, 6 / slowest) * kSampleRate));
  double phase = 0, noise = 0, before = 0;
  float peak = 1e-9F;
  for (size_t i = 0; i < out.size(); ++i) {
    const double t = static_cast<double>(i) / kSampleRate;
    phase += (sound.to + (sound.from - sound.to) * std::exp(-t * sound.sweep)) / kSampleRate;
    if (i % sound.hold == 0) noise = random.Signed();
    // A clap is three slaps shortly after one another.
    const double clap = drum == Drum::kClap && t < 0.03 ? 1 - std::fmod(t, 0.01) * 80 : 1;
    const double body = sound.tone * Sine(phase) * std::exp(-t * sound.tone_decay);
    const double hiss =
        sound.noise * (noise - before * sound.high_pass) * clap * std::exp(-t * sound.noise_decay);
    before = noise;
    const double fade = std::min(1.0, (out.size() - i) / 400.0) * std::min(1.0, t / sound.attack);
    out[i] = static_cast<float>((body + hiss) * fade);
    peak = std::max(peak, std::abs(out[i]));
  }
  for (float& value : out) value *= static_cast<float>(velocity) / peak;
  return out;
}

}  // namespace sonotik::demo
