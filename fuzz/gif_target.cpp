// The libFuzzer target of the GIF decoder: the structure, the pixels of its frames, and the control
// that lays them on each other.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "widgets/ucAniGIF.h"

namespace {

void Demand(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // More is decoded by nobody's patience; the rest of a longer input is the same again.
  constexpr int64_t kMostPixels = 1 << 22;
  constexpr int kMostSteps = 40;
  const std::string bytes(data, data + size);
  const auto gif = sonotik::ReadGif(bytes);
  if (!gif) return 0;
  int64_t pixels = 0;
  for (const sonotik::GifFrame& frame : gif->frames) {
    const auto indexes = sonotik::DecodeGifFrame(bytes, frame);
    const int64_t whole = int64_t{frame.width} * frame.height;
    Demand(static_cast<int64_t>(indexes.size()) <= whole);
    Demand(frame.left + frame.width <= gif->width && frame.top + frame.height <= gif->height);
    Demand(frame.color_table < gif->color_tables.size());
    for (int row = 0; row < frame.height && row < 100; ++row) {
      const int at = sonotik::GifRow(frame, row);
      Demand(at >= 0 && at < frame.height);
    }
    pixels += static_cast<int64_t>(indexes.size());
    if (pixels > kMostPixels) break;
  }
  // Laying frames on each other costs the whole picture each time.
  if (int64_t{gif->width} * gif->height > 1 << 16) return 0;
  sonotik::ucAniGIF control;
  Demand(control.LoadAnimatedGIF_Array(bytes));
  for (int step = 0; step < kMostSteps; ++step) control.SetAction(sonotik::GifAction::kNext);
  control.SetMirrored(3);
  return 0;
}
