#include "tools/config/catalogue_builder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>

#include "files/files.h"
#include "files/paths.h"
#include "files/runtime_failure.h"
#include "tools/config/album_builder.h"
#include "tools/config/album_reader.h"
#include "tools/config/catalogue_files.h"
#include "tools/config/genre_files.h"

namespace sonotik {
namespace fs = std::filesystem;
namespace {

// Thrown where the operator's wish to stop is noticed, caught in BuildCatalogue.
struct Stopped {};

// Keeps a second builder out of the folder. The jukebox's own lock isn't used, for it may run on
// while its catalogue is replaced.
class BuilderLock {
 public:
  explicit BuilderLock(const fs::path& folder)
      : fd_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (fd_ >= 0 && ::flock(fd_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
      ::close(fd_);
      throw RuntimeFailure("another builder is at work in " + folder.string());
    }
  }
  ~BuilderLock() {
    if (fd_ >= 0) ::close(fd_);
  }
  BuilderLock(const BuilderLock&) = delete;
  BuilderLock& operator=(const BuilderLock&) = delete;

 private:
  int fd_;
};

// Absolute, and without a closing separator.
fs::path PlainPath(const fs::path& path) {
  const fs::path plain = fs::absolute(path).lexically_normal();
  return plain.has_filename() || plain == plain.root_path() ? plain : plain.parent_path();
}

template <typename T>
void Append(std::vector<T>& to, const std::vector<T>& from) {
  to.insert(to.end(), from.begin(), from.end());
}

class Builder {
 public:
  Builder(const BuildRequest& request, const BuildHooks& hooks, const fs::path& app)
      : request_(request),
        hooks_(hooks),
        app_(ProgramPath(app)),
        today_(DateText(request.today)),
        reader_(request.ffprobe, hooks.stop_asked) {}

  void Run() {
    for (const auto& [kind, folders] : request_.folders) Look(kind, folders);
    progress_.phase = BuildProgress::Phase::kReading;
    progress_.done = 0;
    for (KindWork& work : work_) progress_.total += work.files;
    for (KindWork& work : work_) Read(work);
    progress_.phase = BuildProgress::Phase::kWriting;
    Write();
  }

  BuildReport TakeReport() {
    Append(report_.problems, reader_.problems());
    report_.sidecars = reader_.sidecars();
    return std::move(report_);
  }

 private:
  struct KindWork {
    CatalogueKind kind{};
    MediaScan scan;
    long files = 0;
    Catalogue catalogue;
    KindReport report{};
  };

  void Tell() {
    if (hooks_.stop_asked()) throw Stopped{};
    hooks_.progress(progress_);
  }

  void Look(CatalogueKind kind, const std::vector<fs::path>& folders) {
    std::vector<fs::path> plain(folders.size());
    std::transform(folders.begin(), folders.end(), plain.begin(), PlainPath);
    const long before = progress_.done;
    progress_.kind = kind;
    KindWork work;
    work.kind = work.report.kind = kind;
    work.scan = ScanMedia(plain, kind, [&](long files) {
      progress_.done = before + files;
      Tell();
    });
    for (const MediaFolder& folder : work.scan.folders) {
      work.files += static_cast<long>(folder.files.size());
    }
    progress_.done = before + work.files;
    Append(report_.problems, work.scan.problems);
    work_.push_back(std::move(work));
  }

  void Read(KindWork& work) {
    progress_.kind = work.kind;
    const FormerCatalogue former(ReadCatalogue(app_, work.kind));
    for (const MediaFolder& folder : work.scan.folders) {
      const Album album = reader_.Read(folder, [this] {
        Tell();
        ++progress_.done;
      });
      if (!album.tracks.empty()) Enter(album, former, work);
    }
    std::vector<std::string> unreachable;
    for (const fs::path& folder : work.scan.unreachable) {
      unreachable.push_back(ProgramPath(folder));
    }
    const Catalogue kept = former.Below(unreachable, work.catalogue);
    work.report.kept_tracks = kept.tracks.size();
    Append(work.catalogue.tracks, kept.tracks);
    Append(work.catalogue.albums, kept.albums);
    if (work.kind == CatalogueKind::kAudio) kept_audio_ = kept.albums;
  }

  void Enter(const Album& album, const FormerCatalogue& former, KindWork& work) {
    const AlbumRecord record = MakeRecord(album, former.AlbumDate(album.path, today_));
    work.report.new_albums += former.HasAlbum(album.path) ? 0 : 1;
    work.catalogue.albums.push_back(record);
    if (work.kind == CatalogueKind::kAudio) genres_.Add(album.genre, record);
    for (const TrackInfo& track : album.tracks) {
      work.report.new_tracks += former.HasTrack(track.path) ? 0 : 1;
      work.catalogue.tracks.push_back(
          MakeRecord(track, former.Rating(track.path), former.TrackDate(track.path, today_)));
    }
  }

  void Write() {
    StagedFiles staged;
    GenreFiles genre_files(app_);
    bool genres_written = false;
    std::vector<AlbumRecord> all_albums;
    for (const CatalogueKind kind : kCatalogueKinds) {
      if (request_.folders.contains(kind)) continue;
      Append(all_albums, ReadAlbums(AlbumPath(app_, kind)));
    }
    for (KindWork& work : work_) {
      work.report.albums = work.catalogue.albums.size();
      work.report.tracks = work.catalogue.tracks.size();
      // With no catalogue at all the jukebox asks for one, which an empty one would hide.
      if (work.catalogue.tracks.empty() && !CatalogueExists(app_, work.kind)) continue;
      Tell();
      if (!StageCatalogue(app_, work.kind, work.catalogue, staged)) {
        TooMany(AlbumPath(app_, work.kind));
      }
      work.report.written = true;
      Append(all_albums, work.catalogue.albums);
      if (work.kind != CatalogueKind::kAudio) continue;
      genre_files.CarryOver(kept_audio_, genres_);
      report_.genres = genre_files.Stage(genres_.Sorted(), staged, report_.problems);
      genres_written = true;
    }
    for (const KindWork& work : work_) report_.kinds.push_back(work.report);
    if (!report_.AnyWritten()) return;
    if (!StageNewAlbums(app_, all_albums, request_.today, staged)) TooMany(app_ + "\\new.cvr");
    Tell();
    // From here on all are whole, and it ends sooner if it isn't stopped.
    if (genres_written) genre_files.BeforeCommit();
    staged.Commit();
    if (genres_written) genre_files.AfterCommit();
  }

  void TooMany(const std::string& path) {
    report_.problems.push_back({NativePath(path).string(), TooManyAlbums()});
  }

  const BuildRequest& request_;
  const BuildHooks& hooks_;
  const std::string app_;
  const std::string today_;
  AlbumReader reader_;
  BuildProgress progress_;
  std::vector<KindWork> work_;
  GenreIndex genres_;
  std::vector<AlbumRecord> kept_audio_;
  BuildReport report_;
};

}  // namespace

bool BuildReport::AnyWritten() const {
  return std::any_of(kinds.begin(), kinds.end(),
                     [](const KindReport& kind) { return kind.written; });
}

BuildReport BuildCatalogue(const BuildRequest& request, const BuildHooks& hooks) {
  const fs::path app = PlainPath(request.app);
  std::error_code error;
  if (!fs::is_directory(app, error)) throw RuntimeFailure("there is no folder " + app.string());
  if (app.native().find('\\') != std::string::npos) {
    throw RuntimeFailure("the folder's path holds a backslash: " + app.string());
  }
  // Better told now than after an hour of reading.
  if (::faccessat(AT_FDCWD, app.c_str(), W_OK, AT_EACCESS) != 0) {
    throw RuntimeFailure("cannot write into " + app.string() + ": " + std::strerror(errno));
  }
  const BuilderLock lock(app);
  Builder builder(request, hooks, app);
  try {
    builder.Run();
  } catch (const Stopped&) {
    BuildReport report = builder.TakeReport();
    report.stopped = true;
    for (KindReport& kind : report.kinds) kind.written = false;
    return report;
  }
  return builder.TakeReport();
}

}  // namespace sonotik
