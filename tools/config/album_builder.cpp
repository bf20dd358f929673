#include "tools/config/album_builder.h"

#include <algorithm>
#include <tuple>

#include "files/paths.h"
#include "files/record_file.h"
#include "text/text.h"
#include "tools/config/names.h"

namespace sonotik {
namespace {

constexpr long kNewForDays = 30;

// Texts that differ by case only count as one, spelled as the first; of two as common the earlier.
// Empty if there is none.
std::string MostCommon(const std::vector<TrackInfo>& tracks, std::string TrackInfo::*member) {
  std::map<std::string, int> counts;
  for (const TrackInfo& track : tracks) {
    if (!(track.*member).empty()) ++counts[UpperCase(track.*member)];
  }
  int most = 0;
  std::string best;
  for (const TrackInfo& track : tracks) {
    const auto count = counts.find(UpperCase(track.*member));
    if (count == counts.end() || count->second <= most) continue;
    most = count->second;
    best = track.*member;
  }
  return best;
}

// A track without a name doesn't make a compilation of an album that has one.
std::string CommonArtist(const std::vector<TrackInfo>& tracks) {
  std::string common = kUnknownArtist;
  for (const TrackInfo& track : tracks) {
    if (track.artist == kUnknownArtist) continue;
    if (common == kUnknownArtist) common = track.artist;
    if (!EqualsIgnoringCase(common, track.artist)) return kVariousArtists;
  }
  return common;
}

template <typename Record>
void Put(Record& record, RecordField field, std::string_view text) {
  PutField(record.bytes, field.offset, field.width, CutText(CleanText(text), field.width));
}

// A path is what the disk calls it, so it is not to be changed; one that is too long never gets
// here.
template <typename Record>
void PutPath(Record& record, const std::string& path) {
  PutField(record.bytes, Record::kPath.offset, Record::kPath.width, path);
}

}  // namespace

Album MakeAlbum(const std::string& path, std::vector<TrackInfo> tracks) {
  const std::string folder_name = NameOf(std::string_view(path).substr(0, path.size() - 1));
  const FolderNames from_folder = NamesFromFolder(folder_name);
  for (TrackInfo& track : tracks) {
    if (track.title.empty()) track.title = TitleFromFileName(NameOf(track.path));
    if (track.artist.empty()) track.artist = from_folder.artist;
    if (track.artist.empty()) track.artist = kUnknownArtist;
  }
  Album album{path, CommonArtist(tracks), MostCommon(tracks, &TrackInfo::album),
              MostCommon(tracks, &TrackInfo::genre), std::move(tracks)};
  if (album.title.empty()) {
    // "Best of 1990 - 1999" by somebody else is a title and no pair of names.
    album.title = EqualsIgnoringCase(from_folder.artist, album.artist) ? from_folder.album
                                                                       : CleanText(folder_name);
  }
  for (TrackInfo& track : album.tracks) {
    if (track.album.empty()) track.album = album.title;
  }
  return album;
}

AlbumRecord MakeRecord(const Album& album, const std::string& date) {
  AlbumRecord record;
  PutPath(record, album.path);
  Put(record, AlbumRecord::kArtist, album.artist);
  Put(record, AlbumRecord::kAlbum, album.title);
  Put(record, AlbumRecord::kDate, date);
  return record;
}

TrackRecord MakeRecord(const TrackInfo& track, int16_t rating, const std::string& date) {
  TrackRecord record;
  PutPath(record, track.path);
  Put(record, TrackRecord::kArtist, track.artist);
  Put(record, TrackRecord::kTrack, track.title);
  Put(record, TrackRecord::kAlbum, track.album);
  const auto bits = static_cast<uint16_t>(rating);
  record.bytes[TrackRecord::kRating.offset] = static_cast<char>(bits & 0xFF);
  record.bytes[TrackRecord::kRating.offset + 1] = static_cast<char>(bits >> 8);
  Put(record, TrackRecord::kDateAdded, date);
  return record;
}

void SortForPages(std::vector<AlbumRecord>& albums) {
  using Key = std::tuple<std::string, std::string, std::string, size_t>;
  std::vector<Key> keys;
  for (const AlbumRecord& album : albums) {
    keys.emplace_back(UpperCase(album.Trimmed(AlbumRecord::kArtist)),
                      UpperCase(album.Trimmed(AlbumRecord::kAlbum)),
                      album.Trimmed(AlbumRecord::kPath), keys.size());
  }
  std::sort(keys.begin(), keys.end());
  std::vector<AlbumRecord> sorted;
  for (const Key& key : keys) sorted.push_back(albums[std::get<size_t>(key)]);
  albums = std::move(sorted);
}

bool IsNew(const AlbumRecord& album, const Date& today) {
  const auto date = ParseDate(album.Field(AlbumRecord::kDate));
  return date && DaysBetween(*date, today) <= kNewForDays;
}

void GenreIndex::Add(const std::string& genre, const AlbumRecord& album) {
  const std::string stem = GenreFileStem(genre);
  if (stem.empty()) return;
  GenreAlbums& entry = genres_[UpperCase(stem)];
  if (entry.albums.empty()) entry.file_stem = stem;
  entry.albums.push_back(album);
}

std::vector<GenreAlbums> GenreIndex::Sorted() const {
  std::vector<GenreAlbums> sorted;
  for (const auto& [key, genre] : genres_) {
    sorted.push_back(genre);
    SortForPages(sorted.back().albums);
  }
  return sorted;
}

}  // namespace sonotik
