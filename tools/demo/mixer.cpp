#include "tools/demo/mixer.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "tools/demo/instruments.h"

namespace sonotik::demo {
namespace {

// Parallel combs and a row of all-passes after M. R. Schroeder, 1962. Delays in samples; `spread`
// makes the two ears hear different rooms.
void Reverberate(const std::vector<float>& in, std::vector<float>& out, double gain, int spread) {
  std::vector<float> wet(in.size());
  for (const int delay : {1557, 1617, 1491, 1422, 1277, 1356}) {
    std::vector<float> line(delay + spread);
    float low = 0;
    for (size_t i = 0; i < in.size(); ++i) {
      float& cell = line[i % line.size()];
      wet[i] += cell;
      low += 0.65F * (cell - low);
      cell = in[i] + low * 0.8F;
    }
  }
  for (const int delay : {225, 556, 441}) {
    std::vector<float> line(delay + spread);
    for (float& value : wet) {
      float& cell = line[(&value - wet.data()) % line.size()];
      const float delayed = cell;
      cell = value + delayed * 0.5F;
      value = delayed - value * 0.5F;
    }
  }
  for (size_t i = 0; i < in.size(); ++i) out[i] += static_cast<float>(wet[i] * gain * 0.12);
}

}  // namespace

Mixer::Mixer(double seconds)
    : left_(static_cast<size_t>(seconds * kSampleRate)),
      right_(left_.size()),
      send_(left_.size()) {}

void Mixer::Add(std::span<const float> note, double start, double gain, double pan, double send) {
  const auto first = static_cast<size_t>(std::max(0.0, start) * kSampleRate);
  if (first >= left_.size()) return;
  const double angle = (pan + 1) * std::numbers::pi / 4;
  const auto to_left = static_cast<float>(gain * std::cos(angle) * std::numbers::sqrt2);
  const auto to_right = static_cast<float>(gain * std::sin(angle) * std::numbers::sqrt2);
  const auto to_send = static_cast<float>(gain * send);
  const size_t count = std::min(note.size(), left_.size() - first);
  for (size_t i = 0; i < count; ++i) {
    left_[first + i] += note[i] * to_left;
    right_[first + i] += note[i] * to_right;
    send_[first + i] += note[i] * to_send;
  }
}

void Mixer::AddEcho(double delay) {
  const auto step = static_cast<size_t>(delay * kSampleRate);
  for (int bounce = 1; bounce <= 4; ++bounce) {
    std::vector<float>& side = bounce % 2 != 0 ? right_ : left_;
    const auto gain = static_cast<float>(0.38 * std::pow(0.55, bounce - 1));
    for (size_t i = bounce * step; i < side.size(); ++i) side[i] += gain * send_[i - bounce * step];
  }
}

void Mixer::AddRoom(double room) {
  Reverberate(send_, left_, room, 0);
  Reverberate(send_, right_, room, 23);
}

Recording Mixer::Finish(double room, double echo) {
  if (echo > 0) AddEcho(echo);
  if (room > 0) AddRoom(room);
  double peak = 1e-9, energy = 1e-9;
  for (size_t i = 0; i < left_.size(); ++i) {
    peak = std::max({peak, std::abs(double{left_[i]}), std::abs(double{right_[i]})});
    energy += left_[i] * left_[i] + right_[i] * right_[i];
  }
  // A little saturation lets a piece with strong beats come up to the loudness of one without.
  const double crest = peak / std::sqrt(energy / static_cast<double>(left_.size() * 2));
  const double drive = std::clamp(crest / 6, 0.3, 1.6);
  constexpr double kPeak = 0.891;  // -1 dBFS
  const double top = kPeak * 32767 / std::tanh(drive);
  const size_t fade = std::min<size_t>(left_.size(), kSampleRate / 2);
  Recording recording;
  recording.reserve(left_.size() * 2);
  for (size_t i = 0; i < left_.size(); ++i) {
    const double out = std::min(1.0, static_cast<double>(left_.size() - 1 - i) / fade);
    for (const float value : {left_[i], right_[i]}) {
      recording.push_back(
          static_cast<int16_t>(std::lround(std::tanh(drive * value / peak) * top * out)));
    }
  }
  return recording;
}

}  // namespace sonotik::demo
