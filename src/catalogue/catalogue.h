// The catalogue's files and the shared buffers that their records are read into.
#ifndef SONOTIK_CATALOGUE_CATALOGUE_H_
#define SONOTIK_CATALOGUE_CATALOGUE_H_

#include <array>
#include <cstdint>
#include <string>

#include "catalogue/records.h"
#include "files/record_file.h"

namespace sonotik {

// Which covers index the pages show. Exactly one is in force.
enum class CatalogueSource { kRecords, kVideos, kKaraoke, kNew, kGenre };

// The kind of media in view, for searches, charts and prices. It is not the source: some tabs
// change one and leave the other.
enum MediaKind : int { kAudio = 0, kVideo = 1, kKaraoke = 2, kNewSongs = 4 };

// Where the guest stands in the catalogue.
struct CatalogueCursor {
  CatalogueSource source = CatalogueSource::kRecords;
  int media_kind = kAudio;
  std::string genre_file;  // a name in the genres folder, ".cvr" included

  // Number of the first record of the page, kept for each source for the whole run.
  int position() const { return positions_[static_cast<size_t>(source)]; }
  // Throws RuntimeFailure outside 16 bits: a position never wraps.
  void SetPosition(long position) { SetPosition(source, position); }
  void SetPosition(CatalogueSource of, long position);

 private:
  std::array<int, 5> positions_{1, 0, 0, 0, 0};  // by source
};

class Catalogue {
 public:
  explicit Catalogue(const std::string& app_path) : app_path_(app_path) {}

  // The covers index of the cursor's source, and the track file of a media kind.
  std::string AlbumFileFor(const CatalogueCursor& cursor) const;
  std::string TrackFileFor(int media_kind) const;
  // True if any of the three track files is there: one is enough to start.
  bool HasTrackFile() const;

  // Reads record n into the shared buffer. The buffer keeps the last record read: callers look at
  // it at once, and a record past the end of its file leaves it untouched.
  const AlbumRecord& ReadAlbumRecord(RecordFile& file, int64_t n);
  const TrackRecord& ReadTrackRecord(RecordFile& file, int64_t n);
  const HistoryRecord& ReadHistoryRecord(RecordFile& file, int64_t n);
  // The count of records of the file that was read last, whichever that was; 0 before the first.
  int64_t record_count() const { return record_count_; }

 private:
  const std::string& app_path_;
  AlbumRecord album_;
  TrackRecord track_;
  HistoryRecord history_;
  int64_t record_count_ = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_CATALOGUE_H_
