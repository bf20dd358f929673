// What the machine does by itself: a random pick, and the facts at a song's start.
#include <benchmark/benchmark.h>

#include "catalogue_maker.h"
#include "shell/jukebox.h"
#include "support/test_machine.h"

namespace sonotik {
namespace {

void RandomPick(benchmark::State& state) {
  TempFolder folder;
  TestMachine machine;
  MakeJukebox(folder, 10, static_cast<int>(state.range(0)), 0);
  Jukebox jukebox(folder.path(), machine.machine);
  jukebox.Start();
  // One pick a round: none of the files is there.
  jukebox.house.settings.do_not_repeat = false;
  for (auto _ : state) jukebox.house.random_play.Random_Play();
}
BENCHMARK(RandomPick)->Arg(100)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

// As many facts; the last of 500 songs of one artist, or the artist's only one.
void FactsAtASongsStart(benchmark::State& state) {
  TempFolder folder;
  TestMachine machine;
  MakeJukebox(folder, 10, 10, 0);
  std::string bytes;
  for (int64_t i = 0; i < state.range(0); ++i) {
    SongFactRecord record;
    PutField(record.bytes, 0, 60,
             i % 100 == 0 && i < 50000 ? "Ada Lark" : "Artist " + std::to_string(i));
    PutField(record.bytes, 60, 60, "Song " + std::to_string(i));
    PutField(record.bytes, 120, 255, "A fact");
    bytes.append(record.bytes.data(), record.bytes.size());
  }
  folder.Write("songfacts.dat", bytes);
  Jukebox jukebox(folder.path(), machine.machine);
  jukebox.Start();
  Assembly& house = jukebox.house;
  house.fields.txtArtist = state.range(1) == 0 ? "artist 77" : "ada lark";
  house.fields.txtTitle = state.range(1) == 0 ? "SONG 77" : "SONG 49900";
  for (auto _ : state) house.fact_display.StartSongFacts();
  state.counters["shows"] = house.fact_display.active() ? 1 : 0;
}
BENCHMARK(FactsAtASongsStart)
    ->ArgNames({"facts", "of_many"})
    ->Args({500, 0})
    ->Args({50000, 0})
    ->Args({50000, 1})
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace sonotik
