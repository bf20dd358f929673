#include "imaging/jpeg_sampling.h"

#include <algorithm>
#include <numeric>

namespace sonotik {
namespace {

// What they have in Y.
constexpr float kRed = 0.299F;
constexpr float kGreen = 0.587F;
constexpr float kBlue = 0.114F;
constexpr float kMiddle = 128;

// The whole number that a decoder will aim at, less the middle. The largest colour is 127.5, which
// has no code if it is rounded up.
float WholeSample(float sample) {
  return static_cast<float>(static_cast<int>(sample + (kMiddle + 0.4999F))) - kMiddle;
}

// How far a channel is from the light, scaled so that it ends at half of the range; the channel has
// `weight` in the light.
void PutDifference(const uint8_t* channel, const float* light, float weight, float* out,
                   size_t count) {
  const float factor = 0.5F / (1 - weight);
  for (size_t i = 0; i < count; ++i) out[i] = WholeSample((channel[i] - light[i]) * factor);
}

// The sum of each run of kStep values, times `factor`.
template <size_t kStep>
void SumRuns(const float* values, float factor, std::span<float> sums) {
  for (size_t i = 0; i < sums.size(); ++i) {
    float sum = 0;
    for (size_t k = 0; k < kStep; ++k) sum += values[kStep * i + k];
    sums[i] = sum * factor;
  }
}

void SumCells(const float* values, Rate rate, float factor, std::span<float> sums) {
  for (size_t i = 0; i < sums.size(); ++i) {
    float sum = 0;
    for (size_t k = 0; k < rate.most; ++k) sum += values[(i * rate.most + k) / rate.own];
    sums[i] = sum * factor;
  }
}

// Means lie often in the middle of two numbers. Down and up in turn they don't tint the picture.
void RoundMeans(std::span<float> means) {
  // Less than a sixteenth, which is the least part of a mean.
  constexpr float kNudge = 1.0F / 64;
  for (size_t i = 0; i + 1 < means.size(); i += 2) {
    means[i] = WholeSample(means[i] - kNudge);
    means[i + 1] = WholeSample(means[i + 1] + kNudge);
  }
}

}  // namespace

ColorStrip::ColorStrip(size_t width, size_t height) : bgr_(3 * width) {
  planes_.fill(Plane(width, height));
  channels_.fill(std::vector<uint8_t>(width));
}

void ColorStrip::Take(const PixelView& source, int x, int64_t y, size_t width, size_t row) {
  ReadRow(source, x, y, std::span(bgr_).first(3 * width));
  for (size_t i = 3 * width; i < bgr_.size(); ++i) bgr_[i] = bgr_[i - 3];
  const size_t count = bgr_.size() / 3;
  // Apart first, since what stands side by side is what a vector unit takes.
  const uint8_t* const bgr = bgr_.data();
  uint8_t* const blue = channels_[0].data();
  uint8_t* const green = channels_[1].data();
  uint8_t* const red = channels_[2].data();
  for (size_t i = 0; i < count; ++i) {
    blue[i] = bgr[3 * i];
    green[i] = bgr[3 * i + 1];
    red[i] = bgr[3 * i + 2];
  }
  float* const light = planes_[0].Row(row);
  for (size_t i = 0; i < count; ++i) {
    light[i] = kRed * red[i] + kGreen * green[i] + kBlue * blue[i];
  }
  PutDifference(blue, light, kBlue, planes_[1].Row(row), count);
  PutDifference(red, light, kRed, planes_[2].Row(row), count);
  for (size_t i = 0; i < count; ++i) light[i] = WholeSample(light[i] - kMiddle);
}

void Subsample(const Plane& plane, Rate across, Rate down, size_t height, Plane& samples) {
  const size_t common = std::gcd(across.own, across.most);
  const Rate reduced{across.own / common, across.most / common};
  const float factor = 1 / static_cast<float>(reduced.most * down.most);
  std::vector<float> sums(plane.width);
  for (size_t y = 0; y < height; ++y) {
    std::ranges::fill(sums, 0.0F);
    for (size_t k = 0; k < down.most; ++k) {
      const float* row = plane.Row((y * down.most + k) / down.own);
      for (size_t x = 0; x < sums.size(); ++x) sums[x] += row[x];
    }
    const std::span<float> made(samples.Row(y), samples.width);
    if (reduced.own != 1) {
      SumCells(sums.data(), reduced, factor, made);
    } else if (reduced.most == 1) {
      SumRuns<1>(sums.data(), factor, made);
    } else if (reduced.most == 2) {
      SumRuns<2>(sums.data(), factor, made);
    } else if (reduced.most == 3) {
      SumRuns<3>(sums.data(), factor, made);
    } else {
      SumRuns<4>(sums.data(), factor, made);
    }
    RoundMeans(made);
  }
  for (size_t y = height; y < samples.samples.size() / samples.width; ++y) {
    std::copy_n(samples.Row(height - 1), samples.width, samples.Row(y));
  }
}

}  // namespace sonotik
