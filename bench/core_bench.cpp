// What the core costs, each beside a plain version of the same work.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fstream>
#include <new>

#include "catalogue_maker.h"
#include "config/settings_file.h"
#include "files/files.h"
#include "shell/jukebox.h"
#include "support/test_machine.h"

namespace {

long allocations = 0;

}  // namespace

// Not inlined: beside a call of the other one the compiler would see half a pair.
[[gnu::noinline]] void* operator new(size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, size_t) noexcept { std::free(memory); }

namespace sonotik {
namespace {

constexpr int kMostAlbums = 32767;

struct SettingsBench {
  TempFolder folder;
  std::string path = folder.path();
  Settings settings;
  OptionLists lists;
  TestMessages messages;
  SettingsFile file{path, settings, lists, messages};
  SettingsBench() {
    lists.FillFixed(1);
    folder.Write("sonotik.def", ReadWholeFile(ProgramPath(SONOTIK_SOURCE "/app/sonotik.def")));
    file.LoadConfig();
    file.SaveConfig();
  }
};

void ReadSettings(benchmark::State& state) {
  SettingsBench bench;
  for (auto _ : state) {
    bench.lists.skins.clear();
    bench.lists.calendar_skins.clear();
    bench.file.LoadConfig();
  }
}
BENCHMARK(ReadSettings);

// The floor of reading settings: the file's bytes.
void ReadSettingsBytesOnly(benchmark::State& state) {
  SettingsBench bench;
  for (auto _ : state) benchmark::DoNotOptimize(ReadWholeFile(bench.path + "\\sonotik.ini"));
}
BENCHMARK(ReadSettingsBytesOnly);

void WriteSettings(benchmark::State& state) {
  SettingsBench bench;
  for (auto _ : state) bench.file.SaveConfig();
}
BENCHMARK(WriteSettings);

// The floor of writing settings: a file that is as safe and as long.
void WriteSettingsBytesOnly(benchmark::State& state) {
  SettingsBench bench;
  const std::string bytes = ReadWholeFile(bench.path + "\\sonotik.ini");
  for (auto _ : state) ReplaceFile(bench.path + "\\plain.ini", bytes);
}
BENCHMARK(WriteSettingsBytesOnly);

// Fifty records from the middle of the largest index, as a page takes them.
void PageOfFiftyRecords(benchmark::State& state) {
  const TempFolder folder;
  MakeJukebox(folder, kMostAlbums, 1, 0);
  const std::string path = folder.path();
  Catalogue catalogue(path);
  const CatalogueCursor cursor;
  for (auto _ : state) {
    RecordFile file(catalogue.AlbumFileFor(cursor), AlbumRecord::kSize);
    for (int64_t n = 20000; n < 20050; ++n) {
      benchmark::DoNotOptimize(catalogue.ReadAlbumRecord(file, n).Trimmed(AlbumRecord::kArtist));
    }
  }
}
BENCHMARK(PageOfFiftyRecords);

void PageOfFiftyRecordsByPlainStream(benchmark::State& state) {
  const TempFolder folder;
  MakeJukebox(folder, kMostAlbums, 1, 0);
  AlbumRecord record;
  for (auto _ : state) {
    std::ifstream file(folder.native() / "Records.cvr", std::ios::binary);
    for (int64_t n = 20000; n < 20050; ++n) {
      file.seekg((n - 1) * static_cast<int64_t>(AlbumRecord::kSize));
      file.read(record.bytes.data(), AlbumRecord::kSize);
      benchmark::DoNotOptimize(record.Trimmed(AlbumRecord::kArtist));
    }
  }
}
BENCHMARK(PageOfFiftyRecordsByPlainStream);

// The whole page, with the covers of fifty folders looked for.
void PageOfFiftyCovers(benchmark::State& state) {
  const TempFolder folder;
  MakeJukebox(folder, kMostAlbums, 1, 0);
  TestMachine machine;
  Jukebox jukebox(folder.path(), machine.machine);
  jukebox.Start();
  jukebox.house.cover_layout.covers_per_page = 50;
  jukebox.house.settings.show_new_on_recent_albums = false;
  long position = 1;
  for (auto _ : state) {
    jukebox.house.cursor.SetPosition(position = (position + 50) % 32000 + 1);
    jukebox.house.pages.read_albums3();
  }
}
BENCHMARK(PageOfFiftyCovers);

void OpenByNumber(benchmark::State& state) {
  const TempFolder folder;
  MakeJukebox(folder, kMostAlbums, 1, 0);
  const std::string path = folder.path() + "\\Records.cvr";
  AlbumRecord record;
  int64_t n = 1;
  for (auto _ : state) {
    RecordFile file(path, AlbumRecord::kSize);
    file.Read(n = n * 7919 % kMostAlbums + 1, record.bytes);
  }
}
BENCHMARK(OpenByNumber);

void JumpToTheLetterZ(benchmark::State& state) {
  const TempFolder folder;
  MakeJukebox(folder, kMostAlbums, 1, 0);
  TestMachine machine;
  Jukebox jukebox(folder.path(), machine.machine);
  jukebox.Start();
  for (auto _ : state) jukebox.house.letter_jump.JumpTo('Z', JumpControl::kLetterButton);
}
BENCHMARK(JumpToTheLetterZ);

// One idle poll of Timer1, with a key on each slot and in credit mode.
void IdlePoll(benchmark::State& state) {
  const TempFolder folder;
  MakeJukebox(folder, 12, 12, 0);
  std::string keys;
  for (int slot = 0; slot < 35; ++slot) keys += " " + std::to_string(40 + slot) + " \r\n";
  folder.Write("keyboard.dat", keys);
  TestMachine machine;
  Jukebox jukebox(folder.path(), machine.machine);
  jukebox.Start();
  jukebox.house.settings.enable_credit_mode = true;
  jukebox.ticks.Poll();
  const long before = allocations;
  for (auto _ : state) jukebox.ticks.Poll();
  state.counters["allocations"] = static_cast<double>(allocations - before);
}
BENCHMARK(IdlePoll);

}  // namespace
}  // namespace sonotik

BENCHMARK_MAIN();
