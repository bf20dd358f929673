// The JPEG encoder beside another library's, and moving pixels beside copying them.
#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <vector>

#include "imaging/cImage.h"
#include "imaging/cJpeg.h"
#include "libjpeg/judge.h"
#include "libjpeg/photo.h"

namespace sonotik {
namespace {

constexpr int kQuality = 75;

const cImage& FullScreen() {
  static const cImage photo = Photo(1920, 1080);
  return photo;
}

void CountPixels(benchmark::State& state) {
  state.SetItemsProcessed(state.iterations() * FullScreen().Width() * FullScreen().Height());
}

void cJpegEncodes(benchmark::State& state) {
  const cImage& photo = FullScreen();
  size_t size = 0;
  for (auto _ : state) {
    cJpeg jpeg;
    jpeg.SetQuality(kQuality);
    jpeg.SetSamplingFrequencies(2, 2, 1, 1, 1, 1);
    jpeg.SampleHDC(photo.hDC(), photo.Width(), photo.Height());
    size = jpeg.FileBytes().size();
  }
  CountPixels(state);
  state.counters["bytes"] = static_cast<double>(size);
}
BENCHMARK(cJpegEncodes)->Unit(benchmark::kMillisecond);

void LibjpegTurboEncodes(benchmark::State& state) {
  const cImage& photo = FullScreen();
  size_t size = 0;
  for (auto _ : state) size = EncodedByLibjpeg(photo, kQuality, {2, 2, 1, 1, 1, 1}).size();
  CountPixels(state);
  state.counters["bytes"] = static_cast<double>(size);
}
BENCHMARK(LibjpegTurboEncodes)->Name("LibjpegTurboWithSimd")->Unit(benchmark::kMillisecond);
BENCHMARK(LibjpegTurboEncodes)->Name("LibjpegTurboWithoutSimd")->Unit(benchmark::kMillisecond);

void PlainCopy(benchmark::State& state) {
  const cImage& photo = FullScreen();
  const size_t size = photo.hDC().bytes.size();
  for (auto _ : state) {
    std::vector<uint8_t> copy(size);
    std::memcpy(copy.data(), photo.DIBitsPtr(), size);
    benchmark::DoNotOptimize(copy.data());
  }
  CountPixels(state);
}
BENCHMARK(PlainCopy)->Unit(benchmark::kMillisecond);

template <typename Transformation>
void Transform(benchmark::State& state, Transformation transformation) {
  for (auto _ : state) benchmark::DoNotOptimize(transformation(FullScreen()));
  CountPixels(state);
}
BENCHMARK_CAPTURE(Transform, MirrorLeftToRight, [](const cImage& i) {
  return i.Mirror(false);
})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Transform, MirrorTopToBottom, [](const cImage& i) {
  return i.Mirror(true);
})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Transform, Rotate90, [](const cImage& i) {
  return i.Rotate(90);
})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Transform, Rotate180, [](const cImage& i) {
  return i.Rotate(180);
})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Transform, ResampleToHalf, [](const cImage& i) {
  return i.Resample(960, 540);
})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Transform, ResampleTo300, [](const cImage& i) {
  return i.Resample(300, 300);
})->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sonotik

// The library decides on its vector code once in a process, so a child measures it without.
int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const pid_t child = fork();
  if (child == 0) {
    setenv("JSIMD_FORCENONE", "1", 1);
    benchmark::RunSpecifiedBenchmarks(nullptr, "WithoutSimd");
    return 0;
  }
  waitpid(child, nullptr, 0);
  benchmark::RunSpecifiedBenchmarks(nullptr, "-WithoutSimd");
  return 0;
}
