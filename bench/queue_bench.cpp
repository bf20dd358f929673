// What a selection and an opened album cost.
#include <benchmark/benchmark.h>

#include "catalogue_maker.h"
#include "files/files.h"
#include "shell/jukebox.h"
#include "support/jukebox_test.h"
#include "support/test_machine.h"

namespace sonotik {
namespace {

// A jukebox with an album of this many files, each with a sidecar.
struct AlbumBench {
  TempFolder folder;
  TestMachine machine;
  Jukebox jukebox{folder.path(), machine.machine};
  std::string album = folder.path() + "\\music\\Big\\";

  explicit AlbumBench(int files) {
    MakeJukebox(folder, 12, 12, 0);
    for (int i = 0; i < files; ++i) {
      const std::string name = "music/Big/" + LastDigits(i, 4) + ".wav";
      folder.Write(name, "sound");
      folder.Write(name + ".tag", Sidecar("Ada", "Song " + std::to_string(i), "Big", "3:05"));
    }
    jukebox.Start();
  }
  std::string Path(int i) const { return album + LastDigits(i, 4) + ".wav"; }
};

void AddWithAThousandQueued(benchmark::State& state) {
  AlbumBench bench(1000);
  Queue& queue = bench.jukebox.house.queue;
  for (int i = 0; i < 1000; ++i) queue.Append(bench.Path(i), bench.album + "Cover.jpg");
  for (auto _ : state) {
    bench.jukebox.house.selection.Choose(bench.Path(7), PlayWay::kAddToQueue);
    queue.RemoveAt(1000);
  }
}
BENCHMARK(AddWithAThousandQueued)->Unit(benchmark::kMillisecond);

// The same list written when each of its thousand tags has to be read.
void ExportWithAThousandTagsRead(benchmark::State& state) {
  AlbumBench bench(1000);
  const std::string path = bench.folder.path();
  for (auto _ : state) {
    Assembly& house = bench.jukebox.house;
    Queue queue(path, house.machine.random, house.tags, house.fields);
    for (int i = 0; i < 1000; ++i) queue.Append(bench.Path(i), bench.album + "Cover.jpg");
    queue.Export();
  }
}
BENCHMARK(ExportWithAThousandTagsRead)->Unit(benchmark::kMillisecond);

// Its floor: a file of the same length, as safely written.
void WriteAsManyBytesSafely(benchmark::State& state) {
  AlbumBench bench(1000);
  Queue& queue = bench.jukebox.house.queue;
  for (int i = 0; i < 1000; ++i) queue.Append(bench.Path(i), bench.album + "Cover.jpg");
  queue.Export();
  const std::string bytes = ReadWholeFile(bench.folder.path() + "\\queue.upl");
  for (auto _ : state) ReplaceFile(bench.folder.path() + "\\plain.upl", bytes);
}
BENCHMARK(WriteAsManyBytesSafely)->Unit(benchmark::kMillisecond);

void OpenAlbumOfAHundred(benchmark::State& state) {
  AlbumBench bench(100);
  for (auto _ : state) bench.jukebox.house.track_list.Open(bench.album);
}
BENCHMARK(OpenAlbumOfAHundred)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sonotik
