// The catalogue's files as a whole: what a former run has written, and what a new one writes.
#ifndef SONOTIK_TOOLS_CONFIG_CATALOGUE_FILES_H_
#define SONOTIK_TOOLS_CONFIG_CATALOGUE_FILES_H_

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/records.h"
#include "text/dates.h"
#include "tools/config/media_scan.h"
#include "tools/config/staged_files.h"

namespace sonotik {

inline constexpr CatalogueKind kCatalogueKinds[] = {CatalogueKind::kAudio, CatalogueKind::kVideo,
                                                    CatalogueKind::kKaraoke};

// The kind in a word for the operator: "audio", "video", "karaoke".
std::string_view KindName(CatalogueKind kind);

// A page's position is a signed 16-bit number, so no covers index may hold more.
inline constexpr size_t kMostAlbums = 32767;
// What the operator reads of an index that would.
std::string TooManyAlbums();

struct Catalogue {
  std::vector<TrackRecord> tracks;
  std::vector<AlbumRecord> albums;
};

// `folder`, here and below, is the jukebox's own, as a program path. All throw RuntimeFailure for a
// file that is there and can't be read, or one that can't be written.

// The covers index of a kind.
std::string AlbumPath(const std::string& folder, CatalogueKind kind);

bool CatalogueExists(const std::string& folder, CatalogueKind kind);
// Empty where there is none.
Catalogue ReadCatalogue(const std::string& folder, CatalogueKind kind);
std::vector<AlbumRecord> ReadAlbums(const std::string& path);

// Adds a covers index of the albums, or of as many as it may hold; false if not all went in.
bool StageAlbums(const std::string& path, const std::vector<AlbumRecord>& albums,
                 StagedFiles& staged);
// Adds both files of a kind, the albums in the order of the pages; false as above.
bool StageCatalogue(const std::string& folder, CatalogueKind kind, Catalogue& catalogue,
                    StagedFiles& staged);
// Adds new.cvr: of all albums of the cabinet, those that are new.
bool StageNewAlbums(const std::string& folder, const std::vector<AlbumRecord>& albums,
                    const Date& today, StagedFiles& staged);

// What a former catalogue hands on to the next one: dates, ratings, and all that lies in folders
// which can't be looked into at the moment.
class FormerCatalogue {
 public:
  explicit FormerCatalogue(Catalogue catalogue);

  // The date in the record of the same path; `otherwise` if there is none, or none that the pages
  // could read.
  std::string TrackDate(const std::string& path, const std::string& otherwise) const;
  std::string AlbumDate(const std::string& path, const std::string& otherwise) const;
  int16_t Rating(const std::string& path) const;
  bool HasTrack(const std::string& path) const { return TrackOf(path) != nullptr; }
  bool HasAlbum(const std::string& path) const { return AlbumOf(path) != nullptr; }

  // The records below these folders (program paths), less those that `present` holds already.
  Catalogue Below(const std::vector<std::string>& folders, const Catalogue& present) const;

 private:
  const TrackRecord* TrackOf(const std::string& path) const;
  const AlbumRecord* AlbumOf(const std::string& path) const;

  Catalogue catalogue_;
  std::map<std::string, size_t> track_at_;
  std::map<std::string, size_t> album_at_;
};

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_CATALOGUE_FILES_H_
