// GIF 87a and 89a: the structure of a file, and the pixels of its frames.
#ifndef SONOTIK_WIDGETS_GIF_DECODER_H_
#define SONOTIK_WIDGETS_GIF_DECODER_H_

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "widgets/colors.h"

namespace sonotik {

// How a frame leaves the picture when the next one comes.
enum class GifDisposal { kUnspecified, kLeave, kToBackground, kToPrevious };

struct GifFrame {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool interlaced = false;
  int delay_ms = 0;
  GifDisposal disposal = GifDisposal::kUnspecified;
  bool transparent = false;
  uint8_t transparent_index = 0;
  size_t color_table = 0;  // 0 is the global one
  // In the file: from the LZW code size to before the empty sub-block.
  size_t data = 0;
  size_t data_length = 0;
};

struct GifFile {
  std::vector<GifFrame> frames;
  // Number 0 is the global one, empty if the file has none; the local ones follow.
  std::vector<std::vector<Color>> color_tables;
  int loops = 0;  // 0 is for ever
  // What holds all frames; the screen that the file's head claims says nothing.
  int width = 0;
  int height = 0;
};

// More pixels than this are no animation for a screen.
inline constexpr int64_t kMostGifPixels = int64_t{4096} * 4096;

// Reads the structure. A file that ends early keeps its complete frames; nothing for a wrong
// signature, an image without any colour table, or no frame at all, or too large a picture.
std::optional<GifFile> ReadGif(std::string_view bytes);

// The colour numbers of a frame in the order of the file, width x height of them or fewer where the
// data ends early or makes no sense. Takes no more memory than the data can fill.
std::vector<uint8_t> DecodeGifFrame(std::string_view bytes, const GifFrame& frame);
// Where the nth row of the file stands in the frame: an interlaced one comes in four passes.
int GifRow(const GifFrame& frame, int nth);

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_GIF_DECODER_H_
