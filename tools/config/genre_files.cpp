#include "tools/config/genre_files.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <string_view>
#include <system_error>

#include "files/files.h"
#include "files/line_format.h"
#include "files/paths.h"
#include "files/runtime_failure.h"
#include "text/text.h"
#include "tools/config/catalogue_files.h"

namespace sonotik {
namespace {

constexpr std::string_view kEnding = ".cvr";
// The jukebox makes this one itself, by opening it.
constexpr std::string_view kAllGenres = "ALL GENRES.cvr";

bool Holds(const std::vector<std::string>& names, std::string_view name) {
  return std::any_of(names.begin(), names.end(),
                     [name](const std::string& one) { return EqualsIgnoringCase(one, name); });
}

// The list decides what is deleted, so a line that isn't plainly a covers index doesn't count.
bool IsGenreFile(std::string_view name) {
  return name.size() > kEnding.size() && name[0] != '.' &&
         name.find_first_of("/\\") == std::string_view::npos &&
         EqualsIgnoringCase(name.substr(name.size() - kEnding.size()), kEnding) &&
         !EqualsIgnoringCase(name, kAllGenres);
}

}  // namespace

GenreFiles::GenreFiles(const std::string& folder) : folder_(folder + "\\genres\\") {
  if (!FileExists(folder_ + "genres.lst")) return;
  LineReader lines(ReadWholeFile(folder_ + "genres.lst"));
  while (!lines.AtEnd()) {
    std::string name = lines.Next();
    if (IsGenreFile(name)) former_.push_back(std::move(name));
  }
}

void GenreFiles::CarryOver(const std::vector<AlbumRecord>& albums, GenreIndex& genres) const {
  if (albums.empty()) return;
  std::map<std::string, const AlbumRecord*> by_path;
  for (const AlbumRecord& album : albums) by_path[album.Trimmed(AlbumRecord::kPath)] = &album;
  for (const std::string& name : former_) {
    for (const AlbumRecord& former : ReadAlbums(folder_ + name)) {
      const auto album = by_path.find(former.Trimmed(AlbumRecord::kPath));
      if (album == by_path.end()) continue;
      genres.Add(name.substr(0, name.size() - kEnding.size()), *album->second);
    }
  }
}

int GenreFiles::Stage(const std::vector<GenreAlbums>& genres, StagedFiles& staged,
                      std::vector<Problem>& problems) {
  if (!genres.empty() && !FolderExists(folder_)) {
    std::error_code error;
    std::filesystem::create_directory(NativePath(folder_), error);
    if (error) throw RuntimeFailure("cannot create " + folder_ + ": " + error.message());
  }
  for (const GenreAlbums& genre : genres) {
    const std::string name = genre.file_stem + std::string(kEnding);
    if (!IsGenreFile(name)) {
      problems.push_back({name, "this name is the jukebox's own; the genre gets no file"});
      continue;
    }
    if (!StageAlbums(folder_ + name, genre.albums, staged)) {
      problems.push_back({name, TooManyAlbums()});
    }
    written_.push_back(name);
  }
  return static_cast<int>(written_.size());
}

void GenreFiles::BeforeCommit() const {
  std::vector<std::string> names = written_;
  for (const std::string& name : former_) {
    if (!Holds(names, name)) names.push_back(name);
  }
  WriteList(names);
}

void GenreFiles::AfterCommit() const {
  for (const std::string& name : former_) {
    if (!Holds(written_, name)) DeleteFileIfThere(folder_ + name);
  }
  WriteList(written_);
}

void GenreFiles::WriteList(const std::vector<std::string>& names) const {
  if (!FolderExists(folder_)) return;
  LineWriter lines;
  for (const std::string& name : names) lines.Text(name);
  ReplaceFile(folder_ + "genres.lst", lines.text());
}

}  // namespace sonotik
