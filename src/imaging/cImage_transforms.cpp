// The transformations of an image. Numbers of less than a byte are moved as bytes.
#include <algorithm>
#include <cstring>

#include "imaging/cImage.h"

namespace sonotik {
namespace {

// How to walk over the source while the target is filled from its upper left corner: where in the
// source's bytes that begins, and how far a target pixel to the right and one down is in them.
struct Walk {
  ptrdiff_t origin = 0;
  ptrdiff_t right = 0;
  ptrdiff_t down = 0;
};

// A turned walk leaves the cache at every step; in squares it comes back in time.
constexpr int kSquare = 64;

template <size_t kBytes>
void Move(const PixelView& from, Walk walk, const PixelView& size, uint8_t* to) {
  for (int top = 0; top < size.height; top += kSquare) {
    for (int left = 0; left < size.width; left += kSquare) {
      const int bottom = std::min(top + kSquare, size.height);
      const int width = std::min(kSquare, size.width - left);
      for (int y = top; y < bottom; ++y) {
        const uint8_t* source = from.bytes.data() + walk.origin + y * walk.down + left * walk.right;
        uint8_t* target = to + size.bytes_per_row * static_cast<size_t>(y) + kBytes * left;
        if (walk.right == static_cast<ptrdiff_t>(kBytes)) {
          std::memcpy(target, source, kBytes * static_cast<size_t>(width));
          continue;
        }
        for (int x = 0; x < width; ++x) {
          std::memcpy(target + kBytes * x, source + x * walk.right, kBytes);
        }
      }
    }
  }
}

void MovePixels(const cImage& from, Walk walk, cImage& to) {
  if (from.BitCount() == 24) {
    Move<3>(from.hDC(), walk, to.hDC(), to.DIBitsPtr());
  } else {
    Move<1>(from.hDC(), walk, to.hDC(), to.DIBitsPtr());
  }
}

// How much of a target place a source place fills; those of one target place add up to 1.
struct Share {
  size_t target;
  size_t source;
  float part;
};

std::vector<Share> Shares(int source_size, int target_size) {
  std::vector<Share> shares;
  for (int64_t target = 0; target < target_size; ++target) {
    // In steps of which the whole length has source_size x target_size.
    const int64_t from = target * source_size;
    const int64_t to = from + source_size;
    for (int64_t source = from / target_size; source * target_size < to; ++source) {
      const int64_t covered =
          std::min(to, (source + 1) * target_size) - std::max(from, source * target_size);
      shares.push_back({static_cast<size_t>(target), static_cast<size_t>(source),
                        static_cast<float>(covered) / static_cast<float>(source_size)});
    }
  }
  return shares;
}

void Average(const cImage& from, cImage& to) {
  const std::vector<Share> across = Shares(from.Width(), to.Width());
  const std::vector<Share> down = Shares(from.Height(), to.Height());
  const size_t source_width = 3 * static_cast<size_t>(from.Width());
  std::vector<float> column_sums(source_width);
  std::vector<float> sums(3 * static_cast<size_t>(to.Width()));
  for (size_t i = 0; i < down.size(); ++i) {
    const uint8_t* row = from.DIBitsPtr() + from.BytesPerScanLine() * down[i].source;
    const float part = down[i].part;
    for (size_t x = 0; x < source_width; ++x) column_sums[x] += part * row[x];
    if (i + 1 < down.size() && down[i + 1].target == down[i].target) continue;
    for (const Share& share : across) {
      for (size_t c = 0; c < 3; ++c) {
        sums[3 * share.target + c] += share.part * column_sums[3 * share.source + c];
      }
    }
    uint8_t* made = to.DIBitsPtr() + to.BytesPerScanLine() * down[i].target;
    for (size_t x = 0; x < sums.size(); ++x) made[x] = static_cast<uint8_t>(sums[x] + 0.5F);
    std::ranges::fill(column_sums, 0.0F);
    std::ranges::fill(sums, 0.0F);
  }
}

void PickNumbers(const cImage& from, cImage& to) {
  const auto middle = [](int64_t target, int64_t source_size, int64_t target_size) {
    return static_cast<size_t>((2 * target + 1) * source_size / (2 * target_size));
  };
  for (int y = 0; y < to.Height(); ++y) {
    const uint8_t* row =
        from.DIBitsPtr() + from.BytesPerScanLine() * middle(y, from.Height(), to.Height());
    uint8_t* made = to.DIBitsPtr() + to.BytesPerScanLine() * static_cast<size_t>(y);
    for (int x = 0; x < to.Width(); ++x) made[x] = row[middle(x, from.Width(), to.Width())];
  }
}

uint8_t Grey(unsigned red, unsigned green, unsigned blue) {
  return static_cast<uint8_t>((299 * red + 587 * green + 114 * blue + 500) / 1000);
}

bool InBytes(int bit_count) { return bit_count == 8 || bit_count == 24; }

}  // namespace

cImage cImage::Greyscale() const {
  cImage made = *this;
  for (Color& color : made.colors_) {
    const uint8_t grey = Grey(color & 255, color >> 8 & 255, color >> 16 & 255);
    color = Rgb(grey, grey, grey);
  }
  if (bit_count_ != 24) return made;
  for (int y = 0; y < height_; ++y) {
    uint8_t* row = made.bits_.data() + BytesPerScanLine() * static_cast<size_t>(y);
    for (int x = 0; x < width_; ++x)
      std::fill_n(row + 3 * x, 3, Grey(row[3 * x + 2], row[3 * x + 1], row[3 * x]));
  }
  return made;
}

std::optional<cImage> cImage::Resample(int width, int height) const {
  if (width == width_ && height == height_) return *this;
  cImage made = AsLarge(width, height);
  if (made.bits_.empty()) return std::nullopt;
  if (bit_count_ == 24) {
    Average(*this, made);
  } else if (bit_count_ == 8) {
    PickNumbers(*this, made);
  } else {
    made = InDepth(8).Resample(width, height)->InDepth(bit_count_);
  }
  return made;
}

cImage cImage::Mirror(bool vertical) const {
  if (bits_.empty()) return {};
  if (!InBytes(bit_count_)) return InDepth(8).Mirror(vertical).InDepth(bit_count_);
  cImage made = AsLarge(width_, height_);
  const ptrdiff_t pixel = bit_count_ / 8;
  const auto row = static_cast<ptrdiff_t>(BytesPerScanLine());
  MovePixels(
      *this,
      vertical ? Walk{(height_ - 1) * row, pixel, -row} : Walk{(width_ - 1) * pixel, -pixel, row},
      made);
  return made;
}

std::optional<cImage> cImage::Rotate(int degrees) const {
  degrees = (degrees % 360 + 360) % 360;
  // A turn by nothing gives no image either; that is meant.
  if (degrees % 90 != 0 || degrees == 0 || bits_.empty()) return std::nullopt;
  if (!InBytes(bit_count_)) return InDepth(8).Rotate(degrees)->InDepth(bit_count_);
  cImage made = degrees == 180 ? AsLarge(width_, height_) : AsLarge(height_, width_);
  const ptrdiff_t pixel = bit_count_ / 8;
  const auto row = static_cast<ptrdiff_t>(BytesPerScanLine());
  const ptrdiff_t last_row = (height_ - 1) * row;
  const ptrdiff_t last_pixel = (width_ - 1) * pixel;
  MovePixels(*this,
             degrees == 90    ? Walk{last_row, -row, pixel}
             : degrees == 180 ? Walk{last_row + last_pixel, -pixel, -row}
                              : Walk{last_pixel, row, -pixel},
             made);
  return made;
}

}  // namespace sonotik
