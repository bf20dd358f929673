#include "catalogue/search.h"

#include "catalogue/field_finder.h"
#include "catalogue/scan_progress.h"
#include "files/paths.h"
#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {
namespace {

// In the file's order and no more, however many there are; that is meant.
constexpr int kMostResults = 99;
constexpr RecordField FieldOf(SearchMode mode) {
  switch (mode) {
    case SearchMode::kArtist:
      return TrackRecord::kArtist;
    case SearchMode::kAlbum:
      return TrackRecord::kAlbum;
    case SearchMode::kTrack:
      break;
  }
  return TrackRecord::kTrack;
}

}  // namespace

Search::Search(Machine& machine, const Settings& settings, Catalogue& catalogue,
               const CatalogueCursor& cursor, const CoverFinder& covers, SearchResults& results,
               Form1& form)
    : machine_(machine),
      settings_(settings),
      catalogue_(catalogue),
      cursor_(cursor),
      covers_(covers),
      results_(results),
      form1_(form),
      screen_(form.search_results),
      suggestions_(catalogue, cursor, form.search) {}

void Search::SetSearchText(const std::string& text) {
  if (text == search_text_) return;
  search_text_ = text;
  form1_.search.entry.SetCaption(DoubleAmpersands(text));
  suggestions_.Show(mode_, text);
}

void Search::Reset() {
  ToFirstPage();
  search_text_.clear();
  form1_.search.entry.SetCaption("");
  suggestions_.Clear();
}

void Search::search(SearchMode mode) {
  ScanProgress progress(machine_, form1_.searching);
  results_.ClearFrom(0);
  result_count_ = 0;
  chosen_ = -1;
  ShowHeading(result_count_, "Songs");
  // The songs that are new have no track file of their own, so nothing is found until a tab is
  // chosen; that is meant.
  if (cursor_.media_kind < kAudio || cursor_.media_kind > kKaraoke) return;
  const FieldFinder finder(search_text_);
  const RecordField field = FieldOf(mode);
  RecordFile file(catalogue_.TrackFileFor(cursor_.media_kind), TrackRecord::kSize);
  const int64_t count = file.count();
  progress.SetCount(count);
  for (int64_t n = 1; n <= count && result_count_ < kMostResults; ++n) {
    const TrackRecord& record = catalogue_.ReadTrackRecord(file, n);
    on_record();
    if (finder.IsIn(record.Field(field))) {
      StoreTrack(static_cast<size_t>(result_count_++), record);
    }
    progress.Done(n);
  }
  ShowHeading(result_count_, "Songs");
}

void Search::StoreTrack(size_t entry, const TrackRecord& record) {
  results_.paths[entry] = record.Field(TrackRecord::kPath);
  results_.artists[entry] = record.Trimmed(TrackRecord::kArtist);
  results_.tracks[entry] = record.Trimmed(TrackRecord::kTrack);
  results_.albums[entry] = record.Trimmed(TrackRecord::kAlbum);
}

void Search::ShowHeading(long count, const char* what) {
  screen_.heading.SetCaption(NumberCaption(count) + " " + what + " Found, Matching (" +
                             DoubleAmpersands(search_text_) + ")");
}

void Search::search_show() {
  for (int row = 0; row < kResultRows; ++row) ShowRow(row);
}

void Search::ShowRow(int row) {
  ResultRow& items = screen_.rows[static_cast<size_t>(row)];
  const int entry = result_top_ + row;
  std::string path;
  if (entry < kMostResults) {
    const auto at = static_cast<size_t>(entry);
    items.artist.SetCaption(DoubleAmpersands(results_.artists[at]));
    items.track.SetCaption(DoubleAmpersands(results_.tracks[at]));
    items.number.SetCaption(NumberCaption(entry + 1));
    path = TrimBlanks(results_.paths[at]);
  }
  for (Label* label : {&items.number, &items.artist, &items.track, &items.blank}) {
    label->SetVisible(!path.empty());
    label->SetHighlighted(entry == chosen_);
  }
  if (path.empty()) return items.cover.SetPicture("");
  // A track's folder; an album is one by itself.
  if (path.find('.') != std::string::npos) path = FolderOf(path);
  if (path.ends_with('\\')) path.pop_back();
  results_.folders[static_cast<size_t>(entry)] = path;
  items.cover.SetPicture(covers_.FindCoverPicture(path));
}

void Search::ShowCommands() {
  const auto show = [this](ResultCommand command, bool visible) {
    screen_.commands[static_cast<size_t>(command)].SetVisible(visible);
  };
  const bool chosen = chosen_ >= 0;
  show(ResultCommand::kNewSearch, true);
  show(ResultCommand::kAddAllToQueue, result_count_ > 0 && settings_.add_all_to_queue);
  show(ResultCommand::kPlayNow, chosen && settings_.play_it_now);
  show(ResultCommand::kPlayNext, chosen && settings_.play_next);
  show(ResultCommand::kAddToQueue, chosen && settings_.add_to_queue);
  screen_.list_panel.SetVisible(result_count_ == 0 && screen_.lists[0].visible());
}

void Search::search_clear() {
  for (lvButtons_H& command : screen_.commands) command.SetVisible(false);
  results_.ClearFrom(1);
  chosen_ = -1;
}

void Search::StepPage(int direction) {
  if (direction < 0 && result_top_ >= 1) {
    result_top_ -= kResultRows;
  } else if (direction > 0 && result_top_ < result_count_ - kResultRows) {
    result_top_ += kResultRows;
  } else {
    return;
  }
  search_show();
}

bool Search::ChooseRow(int row) {
  const int entry = result_top_ + row;
  if (entry >= result_count_) return false;
  chosen_ = entry;
  search_show();
  ShowCommands();
  return true;
}

std::string Search::ChosenPath() const {
  if (chosen_ < 0) return "";
  return std::string(TrimBlanks(results_.paths[static_cast<size_t>(chosen_)]));
}

}  // namespace sonotik
