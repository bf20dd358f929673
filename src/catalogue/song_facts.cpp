#include "catalogue/song_facts.h"

#include "catalogue/records.h"
#include "files/files.h"
#include "files/record_file.h"
#include "text/text.h"

namespace sonotik {

void FactTable::load_facts() {
  const std::string path = app_path_ + "\\songfacts.dat";
  if (!FileExists(path)) {
    log_.LogMilestone("***SONGFACTS NOTLOADED***");
    return;
  }
  RecordFile file(path, SongFactRecord::kSize);
  SongFactRecord record;
  for (int64_t n = 1; n <= file.count(); ++n) {
    file.Read(n, record.bytes);
    SongFacts row{
        record.Trimmed(SongFactRecord::kArtist), record.Trimmed(SongFactRecord::kTrack), {}};
    for (size_t i = 0; i < row.facts.size(); ++i) {
      row.facts[i] = record.Trimmed(SongFactRecord::kFacts[i]);
    }
    rows_of_[UpperCase(row.artist)].push_back(rows_.size());
    rows_.push_back(std::move(row));
  }
  log_.LogMilestone("Songfacts Loaded");
}

const std::vector<size_t>& FactTable::RowsOf(const std::string& artist) const {
  static const std::vector<size_t> kNone;
  const auto found = rows_of_.find(UpperCase(artist));
  return found == rows_of_.end() ? kNone : found->second;
}

}  // namespace sonotik
