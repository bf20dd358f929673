#include "tools/config/catalogue_files.h"

#include <algorithm>
#include <set>

#include "files/files.h"
#include "files/paths.h"
#include "files/record_file.h"
#include "text/text.h"
#include "tools/config/album_builder.h"

namespace sonotik {
namespace {

struct KindFiles {
  std::string_view name;
  std::string_view files;
};
constexpr KindFiles kKinds[] = {
    {"audio", "\\Records"}, {"video", "\\videos"}, {"karaoke", "\\karaoke"}};

const KindFiles& FilesOf(CatalogueKind kind) { return kKinds[static_cast<size_t>(kind)]; }

std::string TrackPath(const std::string& folder, CatalogueKind kind) {
  return folder + std::string(FilesOf(kind).files) + ".rec";
}

// Opening a file of records makes one where there is none, so look first.
template <typename Record>
std::vector<Record> ReadRecords(const std::string& path) {
  std::vector<Record> records;
  if (!FileExists(path)) return records;
  RecordFile file(path, Record::kSize);
  records.resize(static_cast<size_t>(file.whole_records()));
  for (size_t i = 0; i < records.size(); ++i) {
    file.Read(static_cast<int64_t>(i) + 1, records[i].bytes);
  }
  return records;
}

template <typename Record>
std::string Bytes(const std::vector<Record>& records, size_t most) {
  std::string bytes;
  const size_t count = std::min(records.size(), most);
  bytes.reserve(count * Record::kSize);
  for (size_t i = 0; i < count; ++i) bytes.append(records[i].bytes.data(), Record::kSize);
  return bytes;
}

// A record may name a track by its sidecar.
template <typename Record>
std::string KeyOf(const Record& record) {
  return WithoutTagMark(record.Trimmed(Record::kPath));
}

template <typename Record>
std::map<std::string, size_t> ByPath(const std::vector<Record>& records) {
  std::map<std::string, size_t> at;
  for (size_t i = 0; i < records.size(); ++i) at.emplace(KeyOf(records[i]), i);
  return at;
}

template <typename Record>
const Record* Find(const std::vector<Record>& records, const std::map<std::string, size_t>& at,
                   const std::string& path) {
  const auto found = at.find(WithoutTagMark(path));
  return found == at.end() ? nullptr : &records[found->second];
}

std::string ReadableDate(std::string_view date, const std::string& otherwise) {
  return ParseDate(date) ? std::string(TrimBlanks(date)) : otherwise;
}

bool LiesBelow(const std::string& path, const std::vector<std::string>& folders) {
  return std::any_of(folders.begin(), folders.end(), [&path](const std::string& folder) {
    return path.starts_with(folder.ends_with('\\') ? folder : folder + "\\");
  });
}

template <typename Record>
std::vector<Record> RecordsBelow(const std::vector<std::string>& folders,
                                 const std::vector<Record>& former,
                                 const std::vector<Record>& present) {
  std::vector<Record> records;
  if (folders.empty()) return records;
  const auto present_at = ByPath(present);
  for (const Record& record : former) {
    if (LiesBelow(record.Trimmed(Record::kPath), folders) && !present_at.contains(KeyOf(record))) {
      records.push_back(record);
    }
  }
  return records;
}

}  // namespace

std::string_view KindName(CatalogueKind kind) { return FilesOf(kind).name; }

std::string TooManyAlbums() {
  return "more albums than the pages can hold; the first " + std::to_string(kMostAlbums) +
         " are kept";
}

std::string AlbumPath(const std::string& folder, CatalogueKind kind) {
  return folder + std::string(FilesOf(kind).files) + ".cvr";
}

bool CatalogueExists(const std::string& folder, CatalogueKind kind) {
  return FileExists(TrackPath(folder, kind)) || FileExists(AlbumPath(folder, kind));
}

Catalogue ReadCatalogue(const std::string& folder, CatalogueKind kind) {
  return {ReadRecords<TrackRecord>(TrackPath(folder, kind)), ReadAlbums(AlbumPath(folder, kind))};
}

std::vector<AlbumRecord> ReadAlbums(const std::string& path) {
  return ReadRecords<AlbumRecord>(path);
}

bool StageAlbums(const std::string& path, const std::vector<AlbumRecord>& albums,
                 StagedFiles& staged) {
  staged.Add(NativePath(path), Bytes(albums, kMostAlbums));
  return albums.size() <= kMostAlbums;
}

bool StageCatalogue(const std::string& folder, CatalogueKind kind, Catalogue& catalogue,
                    StagedFiles& staged) {
  SortForPages(catalogue.albums);
  staged.Add(NativePath(TrackPath(folder, kind)), Bytes(catalogue.tracks, catalogue.tracks.size()));
  return StageAlbums(AlbumPath(folder, kind), catalogue.albums, staged);
}

bool StageNewAlbums(const std::string& folder, const std::vector<AlbumRecord>& albums,
                    const Date& today, StagedFiles& staged) {
  std::vector<AlbumRecord> fresh;
  std::set<std::string> paths;  // a folder may be an album of two kinds
  for (const AlbumRecord& album : albums) {
    if (IsNew(album, today) && paths.insert(KeyOf(album)).second) fresh.push_back(album);
  }
  SortForPages(fresh);
  return StageAlbums(folder + "\\new.cvr", fresh, staged);
}

FormerCatalogue::FormerCatalogue(Catalogue catalogue)
    : catalogue_(std::move(catalogue)),
      track_at_(ByPath(catalogue_.tracks)),
      album_at_(ByPath(catalogue_.albums)) {}

const TrackRecord* FormerCatalogue::TrackOf(const std::string& path) const {
  return Find(catalogue_.tracks, track_at_, path);
}

const AlbumRecord* FormerCatalogue::AlbumOf(const std::string& path) const {
  return Find(catalogue_.albums, album_at_, path);
}

std::string FormerCatalogue::TrackDate(const std::string& path,
                                       const std::string& otherwise) const {
  const TrackRecord* record = TrackOf(path);
  return record == nullptr ? otherwise
                           : ReadableDate(record->Field(TrackRecord::kDateAdded), otherwise);
}

std::string FormerCatalogue::AlbumDate(const std::string& path,
                                       const std::string& otherwise) const {
  const AlbumRecord* record = AlbumOf(path);
  return record == nullptr ? otherwise : ReadableDate(record->Field(AlbumRecord::kDate), otherwise);
}

int16_t FormerCatalogue::Rating(const std::string& path) const {
  const TrackRecord* record = TrackOf(path);
  if (record == nullptr) return 0;
  const std::string_view bytes = record->Field(TrackRecord::kRating);
  return static_cast<int16_t>(static_cast<unsigned char>(bytes[0]) |
                              static_cast<unsigned char>(bytes[1]) << 8);
}

Catalogue FormerCatalogue::Below(const std::vector<std::string>& folders,
                                 const Catalogue& present) const {
  return {RecordsBelow(folders, catalogue_.tracks, present.tracks),
          RecordsBelow(folders, catalogue_.albums, present.albums)};
}

}  // namespace sonotik
