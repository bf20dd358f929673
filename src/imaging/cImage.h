// A device-independent bitmap in memory: copying in and out, greyscale, scaling, mirroring and
// turning in right angles. A transformation gives a new image; the source stays.
#ifndef SONOTIK_IMAGING_CIMAGE_H_
#define SONOTIK_IMAGING_CIMAGE_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "imaging/pixel_view.h"

namespace sonotik {

// Raster operations: how the source, the pixels that are there and a white brush make the new ones.
// The third byte is the truth table of the operation; any of the 256 will do.
inline constexpr uint32_t kSourceCopy = 0x00CC0020;
inline constexpr uint32_t kSourcePaint = 0x00EE0086;
inline constexpr uint32_t kSourceAnd = 0x008800C6;
inline constexpr uint32_t kSourceInvert = 0x00660046;

// An image of more pixels isn't made.
inline constexpr int64_t kMostImagePixels = int64_t{1} << 26;

class cImage {
 public:
  // Black, or rather all numbers 0. The colours come in the order of their numbers; where fewer are
  // given than the depth has, the rest is an even spread of colours. What was there before is gone.
  // False, and no bitmap, for a depth other than 1, 4, 8 and 24 or a size that can't be.
  bool Create(int width, int height, int bit_count, std::span<const Color> colors = {});

  // A whole picture. A depth of 0 takes the picture's own; what is deeper than numbers becomes 24.
  bool CopyStdPicture(const PixelView& picture, int bit_count = 0);
  // A part of what is drawn elsewhere; black, or number 0, where it reaches beyond. A depth of 0 is
  // chosen by the colour table of the source: the smallest that holds it, 24 without one.
  bool CopyHDC(const PixelView& dc, int width, int height, int bit_count = 0, int x = 0, int y = 0);
  // The colour table of the source, as much of it as there is room for. True if all of that was
  // set.
  bool CopyPalletHDC(const PixelView& dc);
  // Draws the image at its size with its upper left corner at (x, y). Drawn pixels are opaque.
  void PaintHDC(PixelSurface& dc, int x, int y, uint32_t rop = kSourceCopy) const;

  // The depth stays.
  cImage Greyscale() const;
  // A pixel of a 24-bit image is the mean of the area that it covers in the source; numbers, which
  // have no mean, are those at its middle. Nothing for a size that can't be.
  std::optional<cImage> Resample(int width, int height) const;
  // Top to bottom if `vertical`, else left to right.
  cImage Mirror(bool vertical) const;
  // Clockwise by 90, 180 or 270 degrees, whatever full turns there are beside; no other angle gives
  // an image, nor does a full turn.
  std::optional<cImage> Rotate(int degrees) const;

  int Width() const { return width_; }
  int Height() const { return height_; }
  // The image as a source of the above; while it lives and isn't created anew.
  PixelView hDC() const;
  int BitCount() const { return bit_count_; }
  // The rows from the top down.
  uint8_t* DIBitsPtr() { return bits_.data(); }
  const uint8_t* DIBitsPtr() const { return bits_.data(); }
  size_t BytesPerScanLine() const { return BytesOfRow(width_, bit_count_); }

 private:
  cImage AsLarge(int width, int height) const;
  cImage InDepth(int bit_count) const;
  void CopyPixels(const PixelView& from, int x, int y);

  int width_ = 0;
  int height_ = 0;
  int bit_count_ = 0;
  std::vector<Color> colors_;
  std::vector<uint8_t> bits_;
};

}  // namespace sonotik

#endif  // SONOTIK_IMAGING_CIMAGE_H_
