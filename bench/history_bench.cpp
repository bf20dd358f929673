// What the log of plays and a chart cost.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <unordered_map>

#include "catalogue_maker.h"
#include "files/files.h"
#include "shell/jukebox.h"
#include "support/test_machine.h"

namespace sonotik {
namespace {

// A history of this many plays of 20,000 tracks, some of them often: the 99 of one sinks to 100.
class HistoryBench {
 public:
  explicit HistoryBench(int plays) {
    std::string bytes;
    std::mt19937 random(11);
    for (int i = 0; i < plays; ++i) {
      const unsigned track = i % 4 == 0 ? random() % 200 : static_cast<unsigned>(i - i / 4) % 20000;
      const std::string number = std::to_string(track);
      HistoryRecord record;
      const auto put = [&](RecordField field, const std::string& text) {
        PutField(record.bytes, field.offset, field.width, text);
      };
      put(HistoryRecord::kArtist, "Artist " + number);
      put(HistoryRecord::kTrack, "Track " + number);
      put(HistoryRecord::kAlbum, "Album " + number);
      put(HistoryRecord::kPath, "\\media\\music\\Artist - Album\\" + number + ".mp3");
      bytes.append(record.bytes.data(), record.bytes.size());
    }
    folder.Write(kUserHistory, bytes);
  }
  History Open() { return History(path, machine.clock, catalogue, fields); }

  TempFolder folder;
  std::string path = folder.path();
  TestMachine machine;
  Catalogue catalogue{path};
  TagFields fields;
};

void LoadHistory(benchmark::State& state) {
  HistoryBench bench(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    History history = bench.Open();
    history.LoadMostPlayed();
    benchmark::DoNotOptimize(history.most_played().count());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(LoadHistory)->Arg(4000)->Arg(50000)->Arg(100000)->Arg(200000)->Unit(benchmark::kMillisecond);

// The floor: the same bytes, read in blocks and not looked at.
void ReadAsManyBytes(benchmark::State& state) {
  const HistoryBench bench(200000);
  std::vector<char> block(65536);
  for (auto _ : state) {
    std::ifstream file(bench.folder.native() / kUserHistory, std::ios::binary);
    while (file.read(block.data(), static_cast<std::streamsize>(block.size()))) {
    }
  }
}
BENCHMARK(ReadAsManyBytes)->Unit(benchmark::kMillisecond);

// The plain way: the table sorted behind each record. It is also what the other has to agree with.
void LoadHistorySortedAfterEach(benchmark::State& state) {
  HistoryBench bench(static_cast<int>(state.range(0)));
  History history = bench.Open();
  history.LoadMostPlayed();
  for (auto _ : state) {
    std::vector<std::unique_ptr<MostPlayed::Row>> rows;
    std::unordered_map<std::string, MostPlayed::Row*> by_path;
    RecordFile file(bench.path + "\\" + kUserHistory, HistoryRecord::kSize);
    HistoryRecord record;
    for (int64_t n = 1; n <= file.count(); ++n) {
      file.Read(n, record.bytes);
      const std::string path = record.Trimmed(HistoryRecord::kPath);
      MostPlayed::Row*& row = by_path[path];
      if (row == nullptr) {
        rows.push_back(std::make_unique<MostPlayed::Row>());
        row = rows.back().get();
        row->path = path;
        row->played = "01";
      } else {
        const int played = std::stoi(row->played) + 1;
        row->played = (played < 10 ? "0" : "") + std::to_string(played);
      }
      std::stable_sort(rows.begin(), rows.end(),
                       [](const auto& a, const auto& b) { return a->played > b->played; });
    }
    for (int i = 0; i < history.most_played().count(); ++i) {
      if (rows[static_cast<size_t>(i)]->path != history.most_played().row(i).path) {
        state.SkipWithError("the two tables differ");
      }
    }
  }
}
BENCHMARK(LoadHistorySortedAfterEach)->Arg(2000)->Arg(4000)->Unit(benchmark::kMillisecond);

void CountOnePlay(benchmark::State& state) {
  HistoryBench bench(40000);
  History history = bench.Open();
  history.LoadMostPlayed();
  MostPlayed list = history.most_played();
  std::mt19937 random(3);
  for (auto _ : state) {
    state.PauseTiming();
    const std::string path =
        list.row(static_cast<int>(random() % static_cast<unsigned>(list.count()))).path;
    state.ResumeTiming();
    list.Count(path, bench.fields);
  }
  state.counters["rows"] = list.count();
}
BENCHMARK(CountOnePlay)->Unit(benchmark::kMicrosecond);

// The same with its record in the log.
void AddOnePlay(benchmark::State& state) {
  HistoryBench bench(40000);
  History history = bench.Open();
  history.LoadMostPlayed();
  int n = 0;
  for (auto _ : state) {
    history.AddToHistory(
        "\\media\\music\\Artist - Album\\" + std::to_string(n = (n + 7919) % 20000) + ".mp3",
        kUserHistory);
  }
}
BENCHMARK(AddOnePlay)->Unit(benchmark::kMicrosecond);

// A chart that finds none of its songs in 100,000 tracks.
void ScanForAChart(benchmark::State& state) {
  const TempFolder folder;
  MakeJukebox(folder, 12, 12, 0);
  std::string bytes;
  for (int i = 0; i < 100000; ++i) {
    TrackRecord record;
    const std::string number = std::to_string(i);
    PutField(record.bytes, TrackRecord::kPath.offset, TrackRecord::kPath.width,
             "\\music\\" + number + ".mp3");
    PutField(record.bytes, TrackRecord::kArtist.offset, TrackRecord::kArtist.width,
             "Some Artist or Other " + number);
    PutField(record.bytes, TrackRecord::kTrack.offset, TrackRecord::kTrack.width,
             "A Song about " + number + " Things");
    bytes.append(record.bytes.data(), record.bytes.size());
  }
  folder.Write("Records.rec", bytes);
  std::string chart;
  for (int i = 0; i < kChartLines; ++i) {
    chart += "\"Somebody Else " + std::to_string(i) + "\",\"Another Song " + std::to_string(i) +
             "\",\"\"\r\n";
  }
  folder.Write("chart.txt", chart);
  TestMachine machine;
  Jukebox jukebox(folder.path(), machine.machine);
  jukebox.Start();
  for (auto _ : state) jukebox.house.charts.load_history_chart2(folder.path() + "\\chart.txt");
}
BENCHMARK(ScanForAChart)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sonotik
