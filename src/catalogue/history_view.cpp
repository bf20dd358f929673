#include "catalogue/history_view.h"

#include "catalogue/history.h"
#include "files/files.h"
#include "files/paths.h"
#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {

HistoryView::HistoryView(const std::string& app_path, Catalogue& catalogue,
                         const CoverFinder& covers, PlayOptions& play_options,
                         TrackList& track_list, Form1& form)
    : app_path_(app_path),
      catalogue_(catalogue),
      covers_(covers),
      play_options_(play_options),
      track_list_(track_list),
      form1_(form),
      screen_(form.history) {}

void HistoryView::history_show2() {
  int row = 0;
  const std::string path = app_path_ + "\\" + kUserHistory;
  if (FileExists(path)) {
    RecordFile file(path, HistoryRecord::kSize);
    const int64_t count = file.count();
    if (history_top_ == 0 || history_top_ > count) history_top_ = count;
    for (; row < kHistoryRows && history_top_ - row >= 1; ++row) {
      // The first row is number 0 while the newest play is in it; that is meant.
      FillRow(row, catalogue_.ReadHistoryRecord(file, history_top_ - row),
              row + (count - history_top_));
    }
  }
  for (; row < kHistoryRows; ++row) {
    screen_.rows[static_cast<size_t>(row)].text.SetCaption("");
    screen_.rows[static_cast<size_t>(row)].cover.SetPicture("");
  }
  // Without a log this is the count of whatever file was read last; that is meant.
  screen_.total.SetCaption("Total Song(s) in History " +
                           NumberCaption(static_cast<long>(catalogue_.record_count())));
}

void HistoryView::FillRow(int row, const HistoryRecord& record, int64_t number) {
  HistoryRow& items = screen_.rows[static_cast<size_t>(row)];
  // A folder that is gone has no first image either, and so gets the skin's picture as well.
  items.cover.SetPicture(covers_.FindCoverPicture(FolderOf(record.Field(HistoryRecord::kPath))));
  // The fields as they stand, blanks included. Artist and track come doubled from the tag, the
  // album does not.
  const std::string album = DoubleAmpersands(record.Field(HistoryRecord::kAlbum));
  std::string text = std::to_string(number);
  const struct {
    const char* label;
    std::string_view value;
  } lines[] = {{"\nArtist: ", record.Field(HistoryRecord::kArtist)},
               {"\nTrack: ", record.Field(HistoryRecord::kTrack)},
               {"\nAlbum: ", album},
               {"\nPlayed At: ", record.Field(HistoryRecord::kPlayedAt)},
               {"\nPlayed on: ", record.Field(HistoryRecord::kPlayedOn)}};
  for (const auto& line : lines) text.append(line.label).append(line.value);
  items.text.SetCaption(text);
}

void HistoryView::Step(HistoryStep step) {
  switch (step) {
    case HistoryStep::kPrevious:
      if (history_top_ > 0) --history_top_;
      break;
    case HistoryStep::kNext:
      ++history_top_;
      break;
    case HistoryStep::kPageUp:
      // Above the oldest page this is 0, which is the newest; that is meant.
      history_top_ = history_top_ > 8 ? history_top_ - kHistoryRows : 0;
      break;
    case HistoryStep::kPageDown:
      history_top_ += kHistoryRows;
      break;
  }
  history_show2();
}

std::string HistoryView::PathOfRecord(int64_t number) {
  RecordFile file(app_path_ + "\\" + kUserHistory, HistoryRecord::kSize);
  return catalogue_.ReadHistoryRecord(file, number).Trimmed(HistoryRecord::kPath);
}

void HistoryView::history_play(int64_t history_path) {
  const std::string path = PathOfRecord(history_path);
  // Of a damaged log: nobody shall pay for a track without a file.
  if (path.empty()) return;
  play_options_.show_play_options(path, screen::kHistory);
  play_options_.Reveal();
}

bool HistoryView::Filled(int row) const {
  return !screen_.rows[static_cast<size_t>(row)].text.caption().empty();
}

void HistoryView::ChooseTexts(int row) {
  if (Filled(row)) history_play(history_top_ - row);
}

void HistoryView::ChooseCover(int row) {
  if (!Filled(row)) return;
  const std::string folder = FolderOf(PathOfRecord(history_top_ - row));
  if (folder.empty()) return;
  form1_.HideAllScreens();
  track_list_.Open(folder);
}

}  // namespace sonotik
