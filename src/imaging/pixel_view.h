// What pictures are copied from: pixels that somebody else holds, in any of the usual depths.
#ifndef SONOTIK_IMAGING_PIXEL_VIEW_H_
#define SONOTIK_IMAGING_PIXEL_VIEW_H_

#include <cstddef>
#include <cstdint>
#include <span>

#include "widgets/canvas.h"
#include "widgets/colors.h"

namespace sonotik {

// A picture or a drawn surface, from its top row down. It must not outlive its pixels.
struct PixelView {
  PixelView() = default;
  // What is see-through shows on black.
  PixelView(const PixelSurface& surface);  // NOLINT: a surface is a view of itself

  int width = 0;
  int height = 0;
  // 1, 4, 8: numbers of `colors`, the leftmost pixel in the highest bits. 16: five bits each of
  // red, green and blue below a spare one, low byte first. 24: B, G, R. 32: B, G, R and a spare
  // byte.
  int bit_count = 0;
  size_t bytes_per_row = 0;
  std::span<const uint8_t> bytes;
  std::span<const Color> colors;

  // False for a size or depth that makes no sense, or with fewer bytes than that takes.
  bool sound() const;
  const uint8_t* Row(int y) const { return bytes.data() + bytes_per_row * static_cast<size_t>(y); }
};

// Bytes of a row, which ends at a multiple of four.
constexpr size_t BytesOfRow(int width, int bit_count) {
  return (static_cast<size_t>(width) * static_cast<size_t>(bit_count) + 31) / 32 * 4;
}

// The number that stands at x in a row of 1, 4 or 8 bits a pixel.
inline unsigned NumberAt(const uint8_t* row, int x, int bit_count) {
  const size_t bit = static_cast<size_t>(x) * static_cast<size_t>(bit_count);
  const auto bits = static_cast<unsigned>(bit_count);
  return row[bit / 8] >> (8 - bits - bit % 8) & ((1U << bits) - 1);
}

// B, G, R of the pixels from (x, y) rightwards, as many as there is room for. Outside of the source
// it is black, and so is a number without a colour.
void ReadRow(const PixelView& source, int64_t x, int64_t y, std::span<uint8_t> bgr);

}  // namespace sonotik

#endif  // SONOTIK_IMAGING_PIXEL_VIEW_H_
