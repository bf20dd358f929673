// From tracks to the records of the catalogue. Nothing here touches a disk.
#ifndef SONOTIK_TOOLS_CONFIG_ALBUM_BUILDER_H_
#define SONOTIK_TOOLS_CONFIG_ALBUM_BUILDER_H_

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "catalogue/records.h"
#include "text/dates.h"
#include "tools/config/track_info.h"

namespace sonotik {

struct Album {
  std::string path;  // with a closing "\"
  std::string artist;
  std::string title;
  std::string genre;
  std::vector<TrackInfo> tracks;
};

// The tracks of one folder as an album. What a track doesn't tell is made up from the names of its
// file and folder and from the other tracks.
Album MakeAlbum(const std::string& path, std::vector<TrackInfo> tracks);

AlbumRecord MakeRecord(const Album& album, const std::string& date);
TrackRecord MakeRecord(const TrackInfo& track, int16_t rating, const std::string& date);

// The order of the pages: by artist, all albums of one together and the case of letters ignored,
// then by title and path.
void SortForPages(std::vector<AlbumRecord>& albums);

// An album counts as new for 30 days. One whose date can't be read doesn't.
bool IsNew(const AlbumRecord& album, const Date& today);

// The albums of one genre, and the name of its file without the ending.
struct GenreAlbums {
  std::string file_stem;
  std::vector<AlbumRecord> albums;
};
class GenreIndex {
 public:
  // Genres that differ by case only are one, spelled as the first. No file, no genre.
  void Add(const std::string& genre, const AlbumRecord& album);
  // By name, each with its albums in the order of the pages.
  std::vector<GenreAlbums> Sorted() const;

 private:
  std::map<std::string, GenreAlbums> genres_;  // by the name in upper case
};

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_ALBUM_BUILDER_H_
