// Reading the tags and running times of MP3s with a cover each, beside an independent library and
// beside the least that any reader has to do.
#include <benchmark/benchmark.h>
#include <taglib/mpegfile.h>
#include <taglib/tag.h>

#include <fstream>
#include <string>
#include <vector>

#include "fuzz/tag_bytes.h"
#include "support/temp_folder.h"
#include "tags/tag_reader.h"

namespace sonotik {
namespace {

constexpr int kFiles = 5000;
constexpr size_t kCover = 40 * 1024;

// An album's worth of texts, the cover behind them and forty frames of sound.
std::string Mp3(int number) {
  const std::string cover = Bytes("\0image/jpeg\0\3\0") + std::string(kCover, '\x5A');
  const std::string title = "Track " + std::to_string(number);
  std::string sound;
  for (int i = 0; i < 40; ++i) sound += "\xFF\xFB\x90\x64" + std::string(413, '\x11');
  return Tag(3, 0,
             Frame3("TIT2", Latin(title)) + Frame3("TPE1", Latin("Band")) + Frame3("APIC", cover) +
                 Frame3("TALB", Latin("Album")) + Frame3("TYER", Latin("1999")) +
                 Frame3("TCON", Latin("(17)")) + Zeros(1000)) +
         sound;
}

// Written once; reading every file once before makes them warm.
const std::vector<std::string>& Names() {
  static const TempFolder folder;
  static const std::vector<std::string> names = [] {
    std::vector<std::string> made;
    for (int i = 0; i < kFiles; ++i) {
      const std::string name = "track" + std::to_string(i) + ".mp3";
      folder.Write(name, Mp3(i));
      folder.Read(name);
      made.push_back((folder.native() / name).string());
    }
    return made;
  }();
  return names;
}

void Readtag(benchmark::State& state) {
  std::vector<std::string> paths;
  for (const std::string& name : Names()) paths.push_back(ProgramPath(name));
  TagFields fields;
  TagReader reader(fields, [] { return false; });
  for (auto _ : state) {
    for (const std::string& path : paths) reader.Readtag(path);
    if (fields.txtAlbum != "Album" || fields.txtmp3time != "0:01") state.SkipWithError("misread");
  }
  state.SetItemsProcessed(state.iterations() * kFiles);
}
BENCHMARK(Readtag)->Unit(benchmark::kMillisecond);

void TagLibWithProperties(benchmark::State& state) {
  const auto& names = Names();
  for (auto _ : state) {
    for (const std::string& name : names) {
      const TagLib::MPEG::File file(name.c_str());
      benchmark::DoNotOptimize(file.tag()->title());
      benchmark::DoNotOptimize(file.tag()->artist());
      benchmark::DoNotOptimize(file.tag()->album());
      benchmark::DoNotOptimize(file.tag()->year());
      benchmark::DoNotOptimize(file.tag()->genre());
      benchmark::DoNotOptimize(file.audioProperties()->lengthInSeconds());
    }
  }
  state.SetItemsProcessed(state.iterations() * kFiles);
}
BENCHMARK(TagLibWithProperties)->Unit(benchmark::kMillisecond);

void OpenAndReadFourKilobytes(benchmark::State& state) {
  const auto& names = Names();
  char block[4096];
  for (auto _ : state) {
    for (const std::string& name : names) {
      std::filebuf file;
      file.pubsetbuf(nullptr, 0);
      file.open(name, std::ios::in | std::ios::binary);
      benchmark::DoNotOptimize(file.sgetn(block, sizeof block));
    }
  }
  state.SetItemsProcessed(state.iterations() * kFiles);
}
BENCHMARK(OpenAndReadFourKilobytes)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sonotik

BENCHMARK_MAIN();
