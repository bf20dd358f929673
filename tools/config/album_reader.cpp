#include "tools/config/album_reader.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>

#include "files/paths.h"
#include "files/runtime_failure.h"
#include "text/dates.h"
#include "tools/config/sidecar.h"
#include "tools/config/staged_files.h"

namespace sonotik {
namespace {

bool LacksSidecar(const MediaFile& file) { return file.sidecar.empty() && !HasOwnTag(file.name); }

bool IsWritable(const std::filesystem::path& folder) {
  return ::faccessat(AT_FDCWD, folder.c_str(), W_OK, AT_EACCESS) == 0;
}

// On screen a file stands under the names in its sidecar, so it does in the catalogue too.
void TakeSidecarNames(const std::filesystem::path& sidecar, TrackInfo& info) {
  TrackInfo shown;
  if (!ReadSidecar(sidecar, shown)) return;
  for (const auto name :
       {&TrackInfo::artist, &TrackInfo::title, &TrackInfo::album, &TrackInfo::genre}) {
    if (!(shown.*name).empty()) info.*name = shown.*name;
  }
}

}  // namespace

Album AlbumReader::Read(const MediaFolder& folder, const std::function<void()>& at_file) {
  const auto lacking = std::count_if(folder.files.begin(), folder.files.end(), LacksSidecar);
  const bool write_sidecars = lacking > 0 && IsWritable(folder.path);
  if (lacking > 0 && !write_sidecars) {
    problems_.push_back({folder.path.string(),
                         "the folder is not writable; files in it that stay "
                         "without a sidecar: " +
                             std::to_string(lacking)});
  }
  std::vector<TrackInfo> tracks;
  std::vector<std::filesystem::path> want_sidecar;  // one a track, empty if it wants none
  for (const MediaFile& file : folder.files) {
    at_file();
    const std::filesystem::path path = folder.path / file.name;
    const bool wants = write_sidecars && LacksSidecar(file);
    try {
      tracks.push_back(ReadFile(folder, file, wants));
      want_sidecar.push_back(wants ? path : std::filesystem::path());
    } catch (const RuntimeFailure& failure) {
      problems_.push_back({path.string(), failure.what()});
    }
  }
  std::string folder_path = ProgramPath(folder.path);
  if (!folder_path.ends_with('\\')) folder_path += '\\';
  Album album = MakeAlbum(folder_path, std::move(tracks));
  WriteSidecars(album, want_sidecar);
  return album;
}

TrackInfo AlbumReader::ReadFile(const MediaFolder& folder, const MediaFile& file,
                                bool wants_sidecar) {
  const std::filesystem::path path = folder.path / file.name;
  TrackInfo info;
  info.path = ProgramPath(path);
  const std::string doubt = ReadTrackInfo(path, info);
  if (!doubt.empty()) problems_.push_back({path.string(), doubt});
  if (!file.sidecar.empty() && !HasOwnTag(path)) {
    TakeSidecarNames(folder.path / file.sidecar, info);
  }
  if (wants_sidecar && info.running_time.empty() && !probe_.missing()) {
    const auto seconds = probe_.Seconds(path, stop_asked_);
    if (seconds) info.running_time = MinutesSeconds(*seconds);
    if (probe_.missing()) {
      problems_.push_back({"ffprobe",
                           "it is not installed; the sidecars of films stay without a "
                           "running time"});
    }
  }
  return info;
}

void AlbumReader::WriteSidecars(const Album& album,
                                const std::vector<std::filesystem::path>& media_files) {
  StagedFiles staged;
  int count = 0;
  for (size_t i = 0; i < media_files.size(); ++i) {
    if (media_files[i].empty()) continue;
    try {
      if (StageSidecar(media_files[i], album.tracks[i], staged)) ++count;
    } catch (const RuntimeFailure& failure) {
      problems_.push_back({media_files[i].string(), std::string("no sidecar: ") + failure.what()});
    }
  }
  // A running time whose search was cut short is no reason to do without it for ever.
  if (stop_asked_()) return;
  try {
    staged.Commit();
    sidecars_ += count;
  } catch (const RuntimeFailure& failure) {
    problems_.push_back({album.path, std::string("no sidecars: ") + failure.what()});
  }
}

}  // namespace sonotik
