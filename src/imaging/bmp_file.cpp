#include "imaging/bmp_file.h"

namespace sonotik {
namespace {

constexpr size_t kFileHeader = 14;
constexpr size_t kInfoHeader = 40;

std::string Little(size_t value, size_t bytes) {
  std::string made;
  for (size_t i = 0; i < bytes; ++i) made += static_cast<char>(value >> 8 * i & 255);
  return made;
}
std::string Word(size_t value) { return Little(value, 2); }
std::string Long(size_t value) { return Little(value, 4); }

}  // namespace

std::string BmpFile(const cImage& image) {
  const PixelView view = image.hDC();
  const size_t colors = view.colors.size();
  const size_t offset = kFileHeader + kInfoHeader + 4 * colors;
  std::string file = "BM" + Long(offset + view.bytes.size()) + Long(0) + Long(offset);
  file += Long(kInfoHeader) + Long(static_cast<size_t>(view.width)) +
          Long(static_cast<size_t>(view.height)) + Word(1) +
          Word(static_cast<size_t>(view.bit_count)) + Long(0) + Long(view.bytes.size()) + Long(0) +
          Long(0) + Long(colors) + Long(0);
  for (const Color color : view.colors) {
    file += Long((color >> 16 & 255) | (color & 0xFF00) | (color & 255) << 16);
  }
  file.reserve(offset + view.bytes.size());
  for (int y = view.height - 1; y >= 0; --y) {
    file.append(reinterpret_cast<const char*>(view.Row(y)), view.bytes_per_row);
  }
  return file;
}

}  // namespace sonotik
