#include "catalogue/song_facts.h"

#include "catalogue/records.h"
#include "files/files.h"
#include "files/record_file.h"

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
    rows_.push_back(std::move(row));
  }
  log_.LogMilestone("Songfacts Loaded");
}

}  // namespace sonotik
