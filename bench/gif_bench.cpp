// Decoding GIFs beside giflib, the same bytes in memory: structure and colour numbers of all
// frames.
#include <benchmark/benchmark.h>
#include <gif_lib.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "support/gif_files.h"
#include "widgets/gif_decoder.h"

namespace sonotik {
namespace {

struct Files {
  std::string photo;      // one frame of 1,024 x 1,024 in 256 colours
  std::string animation;  // 48 frames of 320 x 240
};

const Files& Made() {
  static const Files files = [] {
    const TempFolder folder;
    RunIn(folder, std::string(kImageMagick) + "-seed 1 -size 1024x1024 plasma: photo.gif");
    RunIn(folder, "ffmpeg -v error -nostdin -f lavfi -i testsrc2=s=320x240:d=4.8:r=10 a.gif");
    return Files{folder.Read("photo.gif"), folder.Read("a.gif")};
  }();
  return files;
}

struct Memory {
  const std::string& bytes;
  size_t at = 0;
};

int ReadMemory(GifFileType* file, GifByteType* into, int length) {
  auto& memory = *static_cast<Memory*>(file->UserData);
  const size_t count = std::min(static_cast<size_t>(length), memory.bytes.size() - memory.at);
  std::memcpy(into, memory.bytes.data() + memory.at, count);
  memory.at += count;
  return static_cast<int>(count);
}

int64_t DecodeByGiflib(const std::string& bytes) {
  Memory memory{bytes};
  GifFileType* const file = DGifOpen(&memory, ReadMemory, nullptr);
  int64_t pixels = 0;
  if (file != nullptr && DGifSlurp(file) == GIF_OK) {
    for (int i = 0; i < file->ImageCount; ++i) {
      const GifImageDesc& frame = file->SavedImages[i].ImageDesc;
      pixels += int64_t{frame.Width} * frame.Height;
    }
  }
  DGifCloseFile(file, nullptr);
  return pixels;
}

int64_t Decode(const std::string& bytes) {
  int64_t pixels = 0;
  const auto gif = ReadGif(bytes);
  if (!gif) return 0;
  for (const GifFrame& frame : gif->frames) {
    const auto indexes = DecodeGifFrame(bytes, frame);
    benchmark::DoNotOptimize(indexes.data());
    pixels += static_cast<int64_t>(indexes.size());
  }
  return pixels;
}

void Run(benchmark::State& state, int64_t (*decode)(const std::string&),
         std::string Files::*member) {
  const std::string& bytes = Made().*member;
  const int64_t pixels = DecodeByGiflib(bytes);
  for (auto _ : state) {
    if (decode(bytes) != pixels) state.SkipWithError("misread");
  }
  // Pixels a second.
  state.SetItemsProcessed(state.iterations() * pixels);
}
BENCHMARK_CAPTURE(Run, photo, Decode, &Files::photo)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Run, photo_by_giflib, DecodeByGiflib, &Files::photo)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Run, animation, Decode, &Files::animation)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Run, animation_by_giflib, DecodeByGiflib, &Files::animation)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sonotik

BENCHMARK_MAIN();
