// Special lists: files of songs or albums that the house lays in the folder "lists".
#include <algorithm>

#include "catalogue/scan_progress.h"
#include "catalogue/search.h"
#include "files/files.h"
#include "files/line_format.h"
#include "text/text.h"

namespace sonotik {
namespace {

// What the bar of a special list counts to.
constexpr int kListEntries = 500;
constexpr size_t kFirstKey = 8;
constexpr size_t kSecondKey = 5;

// What a line's song or album is known by. The charts cut their keys at other places.
struct ListKeys {
  explicit ListKeys(std::string_view line) {
    const size_t comma = std::min(line.find(','), line.size());
    name = Key(line.substr(0, comma), kFirstKey);
    artist = Key(line.substr(std::min(comma + 1, line.size())), kSecondKey);
  }
  static std::string Key(std::string_view text, size_t most) {
    return UpperCase(TrimBlanks(text)).substr(0, most);
  }

  std::string name;
  std::string artist;
};

// From 1; 0 if it isn't there.
size_t PositionOf(std::string_view key, std::string_view field) {
  return UpperCase(TrimBlanks(field)).find(key) + 1;
}

// What a list is of; its first field.
enum class ListKind { kAlbums, kTracks, kVideos };

bool Fits(ListKind kind, const ListKeys& keys, std::string_view record) {
  if (kind == ListKind::kAlbums) {
    return PositionOf(keys.name, FieldOf(record, AlbumRecord::kAlbum)) != 0 &&
           PositionOf(keys.artist, FieldOf(record, AlbumRecord::kArtist)) != 0;
  }
  // The places bit by bit, so two that share none (1 and 2) are no hit; that is meant.
  return (PositionOf(keys.name, FieldOf(record, TrackRecord::kTrack)) &
          PositionOf(keys.artist, FieldOf(record, TrackRecord::kArtist))) != 0;
}

// The number of the first record that fits; 0 if none does.
int64_t FindFirst(RecordFile& file, ListKind kind, const ListKeys& keys) {
  for (int64_t n = 1; n <= file.whole_records(); ++n) {
    if (Fits(kind, keys, file.View(n))) return n;
  }
  return 0;
}

}  // namespace

void Search::ShowList(size_t button) {
  search_clear();
  results_.ClearFrom(0);
  screen_.list_panel.SetVisible(false);
  form1_.ShowScreen(screen::kSearchResults);
  ScanProgress progress(machine_, form1_.searching);
  progress.SetCount(kListEntries);
  if (!list_files[button].empty()) search_show();
}

void Search::chart_show(const std::string& chart_path) {
  if (!FileExists(chart_path)) {
    for (ChartRow& row : form1_.decades.rows) {
      row.play_now.SetVisible(false);
      row.add_queue.SetVisible(false);
      row.artist.SetCaption("FILE NOT FOUND");
      row.track.SetCaption("FILE NOT FOUND");
    }
    return;
  }
  FieldReader list(ReadWholeFile(chart_path));
  const auto kind = static_cast<ListKind>(list.Int16());
  const bool albums = kind == ListKind::kAlbums;
  RecordFile file(albums ? catalogue_.AlbumFileFor(CatalogueCursor())
                         : catalogue_.TrackFileFor(kind == ListKind::kVideos ? kVideo : kAudio),
                  albums ? AlbumRecord::kSize : TrackRecord::kSize);
  ScanProgress progress(machine_, form1_.searching);
  progress.SetCount(kListEntries);
  size_t line = 0;
  for (; line < kResultEntries && !list.AtEnd(); ++line) {
    const int64_t n = FindFirst(file, kind, ListKeys(list.WholeLine()));
    progress.Done(static_cast<int64_t>(line));
    if (n == 0) continue;
    if (albums) {
      StoreAlbum(line, catalogue_.ReadAlbumRecord(file, n));
    } else {
      StoreTrack(line, catalogue_.ReadTrackRecord(file, n));
    }
  }
  ShowHeading(static_cast<long>(line), "Albums");
}

void Search::StoreAlbum(size_t entry, const AlbumRecord& record) {
  results_.paths[entry] = record.Field(AlbumRecord::kPath);
  results_.artists[entry] = record.Trimmed(AlbumRecord::kArtist);
  results_.albums[entry] = record.Trimmed(AlbumRecord::kAlbum);
}

}  // namespace sonotik
