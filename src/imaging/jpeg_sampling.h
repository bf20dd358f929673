// From pixels to the samples of the components: colour transform and subsampling.
#ifndef SONOTIK_IMAGING_JPEG_SAMPLING_H_
#define SONOTIK_IMAGING_JPEG_SAMPLING_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "imaging/pixel_view.h"

namespace sonotik {

// Y, Cb and Cr of JFIF 1.02, all with their middle at 0, from -128 to 127.5.
inline constexpr size_t kComponents = 3;

// Rows of samples.
struct Plane {
  Plane() = default;
  Plane(size_t wide, size_t high) : width(wide), samples(wide * high) {}
  float* Row(size_t y) { return samples.data() + width * y; }
  const float* Row(size_t y) const { return samples.data() + width * y; }

  size_t width = 0;
  std::vector<float> samples;
};

// Some rows of a picture in full resolution, on the right filled up by repeating the last pixel.
class ColorStrip {
 public:
  ColorStrip(size_t width, size_t height);

  // Takes the row of a part of the source; the part begins at (x, y) and is `width` wide.
  void Take(const PixelView& source, int x, int64_t y, size_t width, size_t row);
  const Plane& plane(size_t component) const { return planes_[component]; }

 private:
  std::array<Plane, kComponents> planes_;
  std::vector<uint8_t> bgr_;
  std::array<std::vector<uint8_t>, 3> channels_;
};

// How many samples a component has where the finest has `most`; both from 1 to 4.
struct Rate {
  size_t own = 1;
  size_t most = 1;
};

// Averages a plane over the sampling cells of a component: `height` rows of them, of which the last
// one is repeated below. Where a rate is no whole number a
// sample has a share of the pixels that its cell cuts.
void Subsample(const Plane& plane, Rate across, Rate down, size_t height, Plane& samples);

}  // namespace sonotik

#endif  // SONOTIK_IMAGING_JPEG_SAMPLING_H_
