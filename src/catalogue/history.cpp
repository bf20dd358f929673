#include "catalogue/history.h"

#include "files/files.h"
#include "files/paths.h"

namespace sonotik {
namespace {

void Put(HistoryRecord& record, RecordField field, std::string_view text) {
  PutField(record.bytes, field.offset, field.width, text);
}

}  // namespace

void History::AddToHistory(const std::string& path, const std::string& file_name) {
  const DateTime now = clock_.Now();
  // A sidecar's name stands for its media file.
  const std::string played = WithoutTagMark(path);
  HistoryRecord record;
  Put(record, HistoryRecord::kArtist, fields_.txtArtist);
  Put(record, HistoryRecord::kTrack, fields_.txtTitle);
  Put(record, HistoryRecord::kAlbum, fields_.txtAlbum);
  Put(record, HistoryRecord::kPath, played);
  Put(record, HistoryRecord::kPlayedOn, DateText(now.date));
  Put(record, HistoryRecord::kPlayedAt, TimeText(now));
  AppendRecord(app_path_ + "\\" + file_name, record.bytes);
  most_played_.Count(played, fields_);
  on_added();
}

void History::LoadMostPlayed() {
  const std::string path = app_path_ + "\\" + kUserHistory;
  if (!FileExists(path)) return;
  RecordFile file(path, HistoryRecord::kSize);
  // A record that can't be read ends the list; those before it count.
  const struct Sorted {
    MostPlayed& list;
    ~Sorted() { list.Sort(); }
  } sorted{most_played_};
  for (int64_t n = 1; n <= file.count(); ++n) {
    const HistoryRecord& record = catalogue_.ReadHistoryRecord(file, n);
    fields_.txtArtist = record.Trimmed(HistoryRecord::kArtist);
    fields_.txtTitle = record.Trimmed(HistoryRecord::kTrack);
    fields_.txtAlbum = record.Trimmed(HistoryRecord::kAlbum);
    const std::string named = WithoutTagMark(record.Field(HistoryRecord::kPath));
    const std::string played(TrimBlanks(named));
    if (!played.empty()) most_played_.CountUnsorted(played, fields_);
  }
}

}  // namespace sonotik
