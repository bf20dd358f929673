#include "imaging/cImage.h"

#include <algorithm>
#include <utility>

namespace sonotik {
namespace {

bool HasNumbers(int bit_count) { return bit_count == 1 || bit_count == 4 || bit_count == 8; }

// What an image has for colours before anybody gives it some. Of the bits of a number blue has the
// lowest; the eye sees green best, so it has the most.
std::vector<Color> EvenColors(int bit_count) {
  if (bit_count == 1) return {kBlack, kWhite};
  const unsigned blue = bit_count == 8 ? 2 : 1;
  const unsigned green = bit_count == 8 ? 3 : 2;
  const unsigned red = static_cast<unsigned>(bit_count) - green - blue;
  const auto spread = [](unsigned number, unsigned bits) {
    const unsigned most = (1U << bits) - 1;
    return (number & most) * 255 / most;
  };
  std::vector<Color> colors(size_t{1} << bit_count);
  for (unsigned i = 0; i < colors.size(); ++i) {
    colors[i] = Rgb(spread(i >> (green + blue), red), spread(i >> blue, green), spread(i, blue));
  }
  return colors;
}

int DepthFor(size_t colors) {
  if (colors == 0 || colors > 256) return 24;
  return colors <= 2 ? 1 : colors <= 16 ? 4 : 8;
}

// Finds the number of the colour of a table that is nearest.
class Nearest {
 public:
  explicit Nearest(std::span<const Color> colors) : colors_(colors) {}

  unsigned Of(const uint8_t* bgr) {
    const Color wanted = Rgb(bgr[2], bgr[1], bgr[0]);
    // Neighbours are mostly of one colour.
    if (wanted != last_color_) {
      last_color_ = wanted;
      const auto far = [&](Color color) { return Distance(color, wanted); };
      last_ = static_cast<unsigned>(std::ranges::min_element(colors_, {}, far) - colors_.begin());
    }
    return last_;
  }

 private:
  static int Distance(Color a, Color b) {
    int sum = 0;
    for (unsigned shift = 0; shift < 24; shift += 8) {
      const int apart = static_cast<int>(a >> shift & 255) - static_cast<int>(b >> shift & 255);
      sum += apart * apart;
    }
    return sum;
  }

  std::span<const Color> colors_;
  Color last_color_ = 0xFFFFFFFF;
  unsigned last_ = 0;
};

void PutNumber(uint8_t* row, int x, int bit_count, unsigned number) {
  const size_t bit = static_cast<size_t>(x) * static_cast<size_t>(bit_count);
  row[bit / 8] |= static_cast<uint8_t>(number << (8 - static_cast<unsigned>(bit_count) - bit % 8));
}

}  // namespace

bool cImage::Create(int width, int height, int bit_count, std::span<const Color> colors) {
  *this = cImage();
  if (width <= 0 || height <= 0 || !(HasNumbers(bit_count) || bit_count == 24)) return false;
  if (int64_t{width} * height > kMostImagePixels) return false;
  bits_.resize(BytesOfRow(width, bit_count) * static_cast<size_t>(height));
  width_ = width;
  height_ = height;
  bit_count_ = bit_count;
  if (HasNumbers(bit_count)) {
    colors_ = EvenColors(bit_count);
    std::copy_n(colors.begin(), std::min(colors.size(), colors_.size()), colors_.begin());
  }
  return true;
}

bool cImage::CopyStdPicture(const PixelView& picture, int bit_count) {
  // A depth of 16 is raised to 24 on either way, 32 only as the picture's own.
  if (bit_count == 0) bit_count = std::min(picture.bit_count, 24);
  if (bit_count == 16) bit_count = 24;
  return CopyHDC(picture, picture.width, picture.height, bit_count);
}

bool cImage::CopyHDC(const PixelView& dc, int width, int height, int bit_count, int x, int y) {
  if (bit_count == 0) bit_count = DepthFor(dc.colors.size());
  // Made apart, since the source may be this image.
  cImage made;
  if (!dc.sound() || !made.Create(width, height, bit_count)) return false;
  made.CopyPalletHDC(dc);
  made.CopyPixels(dc, x, y);
  *this = std::move(made);
  return true;
}

bool cImage::CopyPalletHDC(const PixelView& dc) {
  const size_t count = std::min(dc.colors.size(), colors_.size());
  std::copy_n(dc.colors.begin(), count, colors_.begin());
  return count > 0;
}

void cImage::CopyPixels(const PixelView& from, int x, int y) {
  std::vector<uint8_t> bgr(3 * static_cast<size_t>(width_));
  Nearest nearest(colors_);
  for (int row = 0; row < height_; ++row) {
    uint8_t* to = bits_.data() + BytesPerScanLine() * static_cast<size_t>(row);
    ReadRow(from, x, int64_t{y} + row, bgr);
    if (bit_count_ == 24) {
      std::ranges::copy(bgr, to);
      continue;
    }
    for (int i = 0; i < width_; ++i) {
      PutNumber(to, i, bit_count_, nearest.Of(bgr.data() + 3 * static_cast<size_t>(i)));
    }
  }
}

void cImage::PaintHDC(PixelSurface& dc, int x, int y, uint32_t rop) const {
  const PixelView target(dc);
  const int64_t left = std::max(x, 0);
  const int64_t right = std::min<int64_t>(target.width, int64_t{x} + width_);
  if (!target.sound() || left >= right) return;
  std::vector<uint8_t> bgr(3 * static_cast<size_t>(right - left));
  // The half of the truth table that a white brush leaves, one mask for each pair of bits.
  const auto when = [rop](unsigned source, unsigned there) -> unsigned {
    return rop >> (20 + 2 * source + there) & 1U ? 255 : 0;
  };
  const unsigned both = when(1, 1), source = when(1, 0), there = when(0, 1), none = when(0, 0);
  const PixelView image = hDC();
  for (int64_t row = std::max(y, 0); row < std::min<int64_t>(dc.height, int64_t{y} + height_);
       ++row) {
    ReadRow(image, left - x, row - y, bgr);
    uint8_t* to = dc.bytes.data() + target.bytes_per_row * static_cast<size_t>(row) + 4 * left;
    for (size_t i = 0; i < bgr.size(); ++i) {
      uint8_t& byte = to[i / 3 * 4 + i % 3];
      const unsigned s = bgr[i], d = byte;
      byte = static_cast<uint8_t>((both & s & d) | (source & s & ~d) | (there & ~s & d) |
                                  (none & ~s & ~d));
    }
    for (int64_t i = 0; i < right - left; ++i) to[4 * i + 3] = 255;
  }
}

PixelView cImage::hDC() const {
  PixelView view;
  view.width = width_;
  view.height = height_;
  view.bit_count = bit_count_;
  view.bytes_per_row = BytesPerScanLine();
  view.bytes = bits_;
  view.colors = colors_;
  return view;
}

cImage cImage::AsLarge(int width, int height) const {
  cImage made;
  made.Create(width, height, bit_count_, colors_);
  return made;
}

cImage cImage::InDepth(int bit_count) const {
  cImage made;
  if (!made.Create(width_, height_, bit_count, colors_)) return made;
  for (int y = 0; y < height_; ++y) {
    const uint8_t* from = hDC().Row(y);
    uint8_t* to = made.bits_.data() + made.BytesPerScanLine() * static_cast<size_t>(y);
    for (int x = 0; x < width_; ++x) PutNumber(to, x, bit_count, NumberAt(from, x, bit_count_));
  }
  return made;
}

}  // namespace sonotik
