#include "imaging/pixel_view.h"

#include <algorithm>
#include <initializer_list>

namespace sonotik {
namespace {

void PutColor(Color color, uint8_t* bgr) {
  bgr[0] = static_cast<uint8_t>(color >> 16);
  bgr[1] = static_cast<uint8_t>(color >> 8);
  bgr[2] = static_cast<uint8_t>(color);
}

void PutFiveBits(const uint8_t* low_first, uint8_t* bgr) {
  const unsigned pixel = low_first[0] | low_first[1] << 8U;
  for (unsigned channel = 0; channel < 3; ++channel) {
    bgr[channel] = static_cast<uint8_t>((pixel >> 5 * channel & 31U) * 255 / 31);
  }
}

void ReadInside(const PixelView& source, int64_t x, int64_t y, int64_t count, uint8_t* bgr) {
  const uint8_t* row = source.Row(static_cast<int>(y));
  switch (source.bit_count) {
    case 16:
      for (int64_t i = 0; i < count; ++i) PutFiveBits(row + 2 * (x + i), bgr + 3 * i);
      return;
    case 24:
      std::copy_n(row + 3 * x, 3 * count, bgr);
      return;
    case 32:
      for (int64_t i = 0; i < count; ++i) std::copy_n(row + 4 * (x + i), 3, bgr + 3 * i);
      return;
    default:
      for (int64_t i = 0; i < count; ++i) {
        const unsigned number = NumberAt(row, static_cast<int>(x + i), source.bit_count);
        PutColor(number < source.colors.size() ? source.colors[number] : kBlack, bgr + 3 * i);
      }
  }
}

}  // namespace

PixelView::PixelView(const PixelSurface& surface)
    : width(surface.width),
      height(surface.height),
      bit_count(32),
      bytes_per_row(static_cast<size_t>(std::max(surface.stride, 0))),
      bytes(surface.bytes) {}

bool PixelView::sound() const {
  const std::initializer_list<int> known = {1, 4, 8, 16, 24, 32};
  if (width <= 0 || height <= 0 || std::ranges::find(known, bit_count) == known.end()) return false;
  const size_t row = (static_cast<size_t>(width) * static_cast<size_t>(bit_count) + 7) / 8;
  return bytes_per_row >= row && bytes.size() >= row &&
         (bytes.size() - row) / bytes_per_row >= static_cast<size_t>(height) - 1;
}

void ReadRow(const PixelView& source, int64_t x, int64_t y, std::span<uint8_t> bgr) {
  const auto wanted = static_cast<int64_t>(bgr.size() / 3);
  const int64_t from = std::clamp<int64_t>(-x, 0, wanted);
  const int64_t to = std::clamp<int64_t>(source.width - x, from, wanted);
  if (y < 0 || y >= source.height || from == to) {
    std::ranges::fill(bgr, 0);
    return;
  }
  std::fill_n(bgr.begin(), 3 * from, 0);
  ReadInside(source, x + from, y, to - from, bgr.data() + 3 * from);
  std::fill(bgr.begin() + 3 * to, bgr.end(), 0);
}

}  // namespace sonotik
