#include "catalogue/catalogue.h"

#include <limits>

#include "files/files.h"
#include "files/runtime_failure.h"

namespace sonotik {

void CatalogueCursor::SetPosition(CatalogueSource of, long position) {
  using Limits = std::numeric_limits<int16_t>;
  if (position < Limits::min() || position > Limits::max()) {
    throw RuntimeFailure("there is no page at record " + std::to_string(position));
  }
  positions_[static_cast<size_t>(of)] = static_cast<int>(position);
}

std::string Catalogue::AlbumFileFor(const CatalogueCursor& cursor) const {
  switch (cursor.source) {
    case CatalogueSource::kVideos:
      return app_path_ + "\\videos.cvr";
    case CatalogueSource::kKaraoke:
      return app_path_ + "\\karaoke.cvr";
    case CatalogueSource::kNew:
      return app_path_ + "\\new.cvr";
    case CatalogueSource::kGenre:
      return app_path_ + "\\genres\\" + cursor.genre_file;
    case CatalogueSource::kRecords:
      break;
  }
  // Written by some as "records": whatever the case, it is one file.
  return app_path_ + "\\Records.cvr";
}

std::string Catalogue::TrackFileFor(int media_kind) const {
  return app_path_ + (media_kind == kVideo     ? "\\videos.rec"
                      : media_kind == kKaraoke ? "\\karaoke.rec"
                                               : "\\Records.rec");
}

bool Catalogue::HasTrackFile() const {
  // By being there alone: an empty one, made by an earlier look at it, counts as well.
  return FileExists(TrackFileFor(kAudio)) || FileExists(TrackFileFor(kVideo)) ||
         FileExists(TrackFileFor(kKaraoke));
}

const AlbumRecord& Catalogue::ReadAlbumRecord(RecordFile& file, int64_t n) {
  record_count_ = file.count();
  file.Read(n, album_.bytes);
  return album_;
}

const TrackRecord& Catalogue::ReadTrackRecord(RecordFile& file, int64_t n) {
  record_count_ = file.count();
  file.Read(n, track_.bytes);
  return track_;
}

const HistoryRecord& Catalogue::ReadHistoryRecord(RecordFile& file, int64_t n) {
  record_count_ = file.count();
  file.Read(n, history_.bytes);
  return history_;
}

}  // namespace sonotik
