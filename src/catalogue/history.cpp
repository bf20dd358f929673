#include "catalogue/history.h"

#include <algorithm>
#include <unordered_map>

#include "catalogue/records.h"
#include "files/files.h"
#include "files/paths.h"
#include "files/record_file.h"
#include "text/numbers.h"

namespace sonotik {
namespace {

std::string OneMore(const std::string& played) {
  const long value = static_cast<long>(LeadingNumber(played));
  return value < 9 ? "0" + std::to_string(value + 1) : std::to_string(value + 1);
}

bool StandsBefore(const MostPlayed::Row& a, const MostPlayed::Row& b) {
  return a.played != b.played ? a.played > b.played : a.order < b.order;
}

MostPlayed::Row NewRow(const std::string& path, const TagFields& names, size_t order) {
  return {path, names.txtArtist, names.txtTitle, names.txtAlbum, "01", static_cast<int64_t>(order)};
}

void Put(HistoryRecord& record, RecordField field, std::string_view text) {
  PutField(record.bytes, field.offset, field.width, text);
}

}  // namespace

void MostPlayed::Count(const std::string& path, const TagFields& names) {
  const auto known =
      std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) { return row.path == path; });
  Row row = known == rows_.end() ? NewRow(path, names, rows_.size()) : std::move(*known);
  if (known != rows_.end()) {
    row.played = OneMore(row.played);
    rows_.erase(known);
  }
  rows_.insert(std::upper_bound(rows_.begin(), rows_.end(), row, StandsBefore), std::move(row));
}

void MostPlayed::CountAll(
    const std::function<
        void(const std::function<void(const std::string& path, const TagFields& names)>&)>& feed) {
  std::unordered_map<std::string, size_t> places;
  for (size_t i = 0; i < rows_.size(); ++i) places[rows_[i].path] = i;
  feed([&](const std::string& path, const TagFields& names) {
    const auto [place, is_new] = places.try_emplace(path, rows_.size());
    if (is_new) {
      rows_.push_back(NewRow(path, names, rows_.size()));
    } else {
      rows_[place->second].played = OneMore(rows_[place->second].played);
    }
  });
  std::sort(rows_.begin(), rows_.end(), StandsBefore);
}

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
}

void History::LoadMostPlayed() {
  const std::string path = app_path_ + "\\" + kUserHistory;
  if (!FileExists(path)) return;
  RecordFile file(path, HistoryRecord::kSize);
  HistoryRecord record;
  most_played_.CountAll([&](const auto& count) {
    for (int64_t n = 1; n <= file.count(); ++n) {
      file.Read(n, record.bytes);
      fields_.txtArtist = record.Trimmed(HistoryRecord::kArtist);
      fields_.txtTitle = record.Trimmed(HistoryRecord::kTrack);
      fields_.txtAlbum = record.Trimmed(HistoryRecord::kAlbum);
      const std::string played =
          std::string(TrimBlanks(WithoutTagMark(record.Field(HistoryRecord::kPath))));
      if (!played.empty()) count(played, fields_);
    }
  });
}

}  // namespace sonotik
