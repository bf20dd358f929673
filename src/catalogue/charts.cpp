#include "catalogue/charts.h"

#include <algorithm>
#include <vector>

#include "files/files.h"
#include "files/paths.h"
#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {

static_assert(kChartLines == kChartRows);

Charts::Charts(const std::string& app_path, Machine& machine, const Settings& settings,
               Catalogue& catalogue, const CatalogueCursor& cursor, const CoverFinder& covers,
               SearchResults& results, Form1& form)
    : app_path_(app_path),
      machine_(machine),
      settings_(settings),
      catalogue_(catalogue),
      cursor_(cursor),
      covers_(covers),
      results_(results),
      form1_(form),
      screen_(form.decades) {}

void Charts::load_history_chart2(const std::string& chart_path) {
  // The last entry isn't the charts' and stays.
  for (SearchResults::List* list : {&results_.paths, &results_.artists}) {
    std::fill(list->begin(), list->end() - 1, "");
  }
  const std::string resolved = ResolvedChartPath(chart_path);
  if (FileExists(resolved)) return LoadResolved(resolved);
  if (FileExists(chart_path)) return LoadPlain(chart_path);
  // The covers of the chart before stay.
  for (ChartRow& row : screen_.rows) {
    row.play_now.SetVisible(false);
    row.add_queue.SetVisible(false);
    row.artist.SetCaption("CHART NOT FOUND");
    row.track.SetCaption("CHART NOT FOUND");
  }
}

void Charts::ClearRows() {
  // So that a chart that ends too early leaves nothing of the one before.
  for (ChartRow& row : screen_.rows) {
    row.play_now.SetVisible(false);
    row.add_queue.SetVisible(false);
    row.artist.SetCaption("");
    row.track.SetCaption("");
    row.cover.SetPicture("");
  }
}

void Charts::LoadResolved(const std::string& path) {
  FieldReader reader(ReadWholeFile(path));
  ClearRows();
  for (int row = 0; row < kChartRows; ++row) {
    const ChartLine line = ReadChartLine(reader, ChartKind::kResolved);
    results_.paths[static_cast<size_t>(row)] = line.path;
    ShowLine(row, line);
    SetUpRow(row);
  }
}

void Charts::LoadPlain(const std::string& path) {
  const struct PanelHidden {
    Panel& panel;
    bool shown;
    explicit PanelHidden(Panel& chart) : panel(chart), shown(chart.visible()) {
      panel.SetVisible(false);
    }
    // Not while the program starts: the album pages are what it begins with.
    ~PanelHidden() { panel.SetVisible(shown); }
  } hidden(screen_.panel);
  ScanProgress progress(machine_, form1_.searching);
  FieldReader reader(ReadWholeFile(path));
  ClearRows();
  std::array<ChartLine, kChartLines> lines;
  for (int row = 0; row < kChartRows; ++row) {
    ChartLine& line = lines[static_cast<size_t>(row)];
    line = ReadChartLine(reader, ChartKind::kPlain);
    ShowLine(row, line);
  }
  FindTracks(lines, progress);
  for (int row = 0; row < kChartRows; ++row) SetUpRow(row);
}

void Charts::ShowLine(int row, const ChartLine& line) {
  ChartRow& items = screen_.rows[static_cast<size_t>(row)];
  items.artist.SetCaption("(" + NumberCaption(row + 1) + ") " + DoubleAmpersands(line.artist));
  items.track.SetCaption(DoubleAmpersands(line.track));
  // One picture for all rows: the last of them that is there shows.
  const std::string picture = app_path_ + "\\history\\images\\" + line.picture;
  if (!FileExists(picture)) return;
  screen_.chart_picture.LoadAnimatedGIF_File(picture);
  screen_.chart_picture.SetAction(GifAction::kPlay);
}

void Charts::FindTracks(const std::array<ChartLine, kChartLines>& lines, ScanProgress& progress) {
  // The songs that are new have no track file of their own.
  if (cursor_.media_kind < kAudio || cursor_.media_kind > kKaraoke) return;
  struct Wanted {
    ChartKey key;
    std::string* path;
  };
  std::vector<Wanted> wanted;
  for (size_t i = 0; i < lines.size(); ++i) {
    wanted.push_back({ChartKey(lines[i]), &results_.paths[i]});
  }
  RecordFile file(catalogue_.TrackFileFor(cursor_.media_kind), TrackRecord::kSize);
  progress.SetCount(file.count(), kChartLines);
  for (int64_t n = 1; n <= file.count() && !wanted.empty(); ++n) {
    const TrackRecord& record = catalogue_.ReadTrackRecord(file, n);
    const std::string artist = UpperCase(TrimBlanks(record.Field(TrackRecord::kArtist)));
    const std::string track = UpperCase(TrimBlanks(record.Field(TrackRecord::kTrack)));
    for (const Wanted& entry : wanted) {
      if (entry.key.Fits(artist, track)) *entry.path = record.Trimmed(TrackRecord::kPath);
    }
    // The first record that fits wins.
    std::erase_if(wanted, [](const Wanted& entry) { return !entry.path->empty(); });
    progress.Done(n);
  }
}

void Charts::SetUpRow(int row) {
  ChartRow& items = screen_.rows[static_cast<size_t>(row)];
  const std::string path = PathOfRow(row);
  items.play_now.SetVisible(!path.empty());
  items.add_queue.SetVisible(!path.empty() && settings_.add_to_queue);
  items.cover.SetPicture(path.empty() ? covers_.NotFoundPicture()
                                      : covers_.FindCoverPicture(FolderOf(path)));
}

std::string Charts::PathOfRow(int row) const {
  return std::string(TrimBlanks(results_.paths[static_cast<size_t>(row)]));
}

}  // namespace sonotik
