// Finding music: the scan of a large track file and the suggestions, each beside a plain version.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <fstream>

#include "catalogue_maker.h"
#include "files/files.h"
#include "shell/jukebox.h"
#include "support/test_machine.h"

namespace sonotik {
namespace {

constexpr int kAlbums = 32767;
constexpr int kTracks = 100000;
constexpr char kNowhere[] = "morning";

struct SearchBench {
  TempFolder folder;
  TestMachine machine;
  std::unique_ptr<Jukebox> jukebox;
  SearchBench() {
    MakeJukebox(folder, kAlbums, kTracks, 0);
    jukebox = std::make_unique<Jukebox>(folder.path(), machine.machine);
    jukebox->Start();
  }
  Search& search() { return jukebox->house.search; }
};

std::string PlainUpper(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

// The paths of the first 99 tracks whose title holds the text.
std::vector<std::string> PlainSearch(const std::filesystem::path& path, const std::string& text) {
  const std::string key = PlainUpper(text);
  std::vector<std::string> hits;
  std::ifstream file(path, std::ios::binary);
  TrackRecord record;
  for (int64_t n = 0; hits.size() < 99; ++n) {
    file.seekg(n * static_cast<int64_t>(TrackRecord::kSize));
    if (!file.read(record.bytes.data(), TrackRecord::kSize)) break;
    if (PlainUpper(record.Trimmed(TrackRecord::kTrack)).find(key) != std::string::npos) {
      hits.emplace_back(record.Field(TrackRecord::kPath));
    }
  }
  return hits;
}

void SearchWithoutHit(benchmark::State& state) {
  SearchBench bench;
  // First that both find the same, in the same order.
  for (const char* text : {"song 9 of", "77", "evening", "SONG 99999", " of a "}) {
    bench.search().SetSearchText(text);
    bench.search().search(SearchMode::kTrack);
    const auto plain = PlainSearch(bench.folder.native() / "Records.rec", text);
    const auto& found = bench.search().results().paths;
    if (bench.search().result_count() != static_cast<int>(plain.size()) ||
        !std::equal(plain.begin(), plain.end(), found.begin())) {
      return state.SkipWithError("the plain search finds something else");
    }
  }
  bench.search().SetSearchText(kNowhere);
  for (auto _ : state) bench.search().search(SearchMode::kTrack);
  state.SetBytesProcessed(state.iterations() * kTracks * static_cast<int64_t>(TrackRecord::kSize));
}
BENCHMARK(SearchWithoutHit)->Unit(benchmark::kMillisecond);

void SearchWithoutHitByPlainStream(benchmark::State& state) {
  const SearchBench bench;
  for (auto _ : state) {
    benchmark::DoNotOptimize(PlainSearch(bench.folder.native() / "Records.rec", kNowhere));
  }
  state.SetBytesProcessed(state.iterations() * kTracks * static_cast<int64_t>(TrackRecord::kSize));
}
BENCHMARK(SearchWithoutHitByPlainStream)->Unit(benchmark::kMillisecond);

// What the machine's memory gives: the same bytes, from one place to another.
void CopyOfTheTrackFile(benchmark::State& state) {
  const SearchBench bench;
  const std::string bytes = ReadWholeFile(bench.folder.path() + "\\Records.rec");
  std::string copy(bytes.size(), ' ');
  for (auto _ : state) {
    std::memcpy(copy.data(), bytes.data(), bytes.size());
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(bytes.size()));
}
BENCHMARK(CopyOfTheTrackFile)->Unit(benchmark::kMillisecond);

// One key, which no album fits: all of them are looked at.
void SuggestionsForOneKey(benchmark::State& state) {
  SearchBench bench;
  const auto mode = static_cast<SearchMode>(state.range(0));
  for (auto _ : state) bench.search().suggestions().Show(mode, "ZZ");
}
BENCHMARK(SuggestionsForOneKey)
    ->Arg(static_cast<int>(SearchMode::kArtist))
    ->Arg(static_cast<int>(SearchMode::kAlbum))
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sonotik
