// Makes the demo jukebox's media in a folder: FOLDER/music, FOLDER/videos and FOLDER/karaoke; and
// what its guests have played so far, with the charts, and what it shows and plays when it is
// alone.
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLockFile>
#include <QLoggingCategory>
#include <QSaveFile>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "tools/demo/albums.h"
#include "tools/demo/alone.h"
#include "tools/demo/karaoke.h"
#include "tools/demo/media.h"
#include "tools/demo/popular.h"
#include "tools/demo/shelves.h"
#include "tools/demo/video.h"

namespace sonotik::demo {
namespace {

// To be raised whenever the media come out differently.
constexpr char kStamp[] = "sonotik demo media 1\n";

uint64_t SeedOf(const QString& text) {
  uint64_t hash = 14695981039346656037ULL;  // FNV-1a
  for (const char byte : text.toUtf8()) {
    hash = (hash ^ static_cast<uint8_t>(byte)) * 1099511628211ULL;
  }
  return hash;
}

void MakeFolder(const QString& path) {
  if (!QDir().mkpath(path)) throw DemoFailure("cannot make the folder " + path);
}

QByteArray CoverJpeg(const Album& album, int size) {
  QImage image = PaintCover(album.cover, album.artist, album.title, SeedOf(album.title));
  if (size != kCoverSize) {
    image = image.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  }
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, "JPEG", 82)) throw DemoFailure("Qt cannot write JPEG pictures here");
  return buffer.data();
}

void MakeTrack(const Album& album, int number, const QString& folder) {
  const Track& track = album.tracks[number];
  const QString title = track.title;
  const Style& style = track.style != nullptr ? *track.style : *album.style;
  const QString artist = ArtistOf(album, static_cast<size_t>(number));
  const char* composer = track.artist != nullptr ? track.artist : album.composer;
  const SongTags tags{title, artist, album.title, album.genre, composer, album.year, number + 1};
  const QString file = folder + "/" + FileOf(album, static_cast<size_t>(number));
  const uint64_t seed = SeedOf(QString(album.title) + title);
  const Piece piece{seed, track.bars, track.key, number, 1 + ((seed >> 8) % 9 - 4.0) / 100};
  if (album.format == Format::kVideo) {
    EncodeVideo(album, track, piece, file);
    return;
  }
  if (album.format == Format::kKaraoke) {
    const KaraokeSong song = MakeKaraoke(album);
    EncodeMp3(song.sound, tags, album.mp3, {}, file);
    WriteFile(folder + "/" + title + ".cdg", song.graphics);
    return;
  }
  const Recording recording = Play(style, Compose(style, piece), seed);
  switch (album.format) {
    case Format::kWma:
      EncodeWma(recording, tags, file);
      break;
    case Format::kM4a:
      EncodeM4a(recording, tags, file);
      break;
    case Format::kWav:
      EncodeWav(recording, tags, file);
      break;
    default:
      EncodeMp3(recording, tags, album.mp3, CoverJpeg(album, 200), file);
  }
}

// Does the jobs on all processors, in their order. The first failure stops the rest and is thrown.
void DoAll(const std::vector<std::function<void()>>& jobs) {
  std::atomic<size_t> next = 0;
  std::exception_ptr failure;
  std::mutex mutex;
  const auto work = [&] {
    for (size_t i = next++; i < jobs.size(); i = next++) {
      try {
        jobs[i]();
      } catch (...) {
        const std::lock_guard<std::mutex> lock(mutex);
        if (!failure) failure = std::current_exception();
        next = jobs.size();
      }
    }
  };
  std::vector<std::thread> workers;
  for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i) {
    workers.emplace_back(work);
  }
  for (std::thread& worker : workers) worker.join();
  if (failure) std::rethrow_exception(failure);
}

// Makes all albums in `part`, and puts each in its place in `root` when all are done.
void MakeMedia(const QString& root, const QString& part) {
  std::mutex mutex;
  std::vector<std::function<void()>> jobs;
  std::vector<size_t> left;
  const std::vector<Album>& albums = Albums();
  for (const Album& album : albums) left.push_back(album.tracks.size());
  const auto add = [&](size_t index, int number) {
    jobs.emplace_back([&, index, number] {
      const Album& album = albums[index];
      MakeTrack(album, number, part + "/" + FolderOf(album));
      const std::lock_guard<std::mutex> lock(mutex);
      if (--left[index] == 0) std::printf("  %s\n", qUtf8Printable(FolderOf(album)));
      std::fflush(stdout);
    });
  };
  for (size_t i = 0; i < albums.size(); ++i) {
    const QString folder = part + "/" + FolderOf(albums[i]);
    MakeFolder(folder);
    WriteFile(folder + "/Cover.jpg", CoverJpeg(albums[i], kCoverSize));
    for (size_t track = 0; track < albums[i].tracks.size(); ++track) {
      add(i, static_cast<int>(track));
    }
  }
  // The long jobs stand last in the list and would leave a processor idle at the end.
  std::reverse(jobs.begin(), jobs.end());
  DoAll(jobs);
  for (const Album& album : albums) {
    const QString place = root + "/" + FolderOf(album);
    MakeFolder(root + "/" + ShelfOf(album.format));
    if (!QDir(place).removeRecursively() || !QDir().rename(part + "/" + FolderOf(album), place)) {
      throw DemoFailure("cannot put the album in its place: " + place);
    }
  }
}

void MakeAllMedia(const QString& root, const QString& stamp) {
  const QString part = root + "/.media.part";
  std::printf("Making the demo media in %s\n", qUtf8Printable(root));
  std::fflush(stdout);
  // What an interrupted run left behind.
  if (!QDir(part).removeRecursively()) throw DemoFailure("cannot clear " + part);
  MakeMedia(root, part);
  QDir(part).removeRecursively();
  QSaveFile done(stamp);
  if (!done.open(QIODevice::WriteOnly) || done.write(kStamp) < 0 || !done.commit()) {
    throw DemoFailure("cannot write " + stamp);
  }
}

void Run(const QString& root) {
  MakeFolder(root);
  QLockFile lock(root + "/.media.lock");
  lock.setStaleLockTime(0);  // a run may take its time; only a dead one gives its lock away
  if (!lock.lock()) throw DemoFailure("cannot write in " + root);
  const QString stamp = root + "/media.stamp";
  if (QFile::exists(stamp) && ReadFile(stamp) == kStamp) {
    std::printf("The demo media are already in %s\n", qUtf8Printable(root));
  } else {
    MakeAllMedia(root, stamp);
  }
  MakePopular(root, QDate::currentDate());
  MakeAlone(root, QDate::currentDate());
}

}  // namespace
}  // namespace sonotik::demo

int main(int argc, char** argv) {
  // It paints, but shows nothing, and so runs on machines without a screen.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QLoggingCategory::setFilterRules("default.warning=false");  // of Qt's own, about missing desktops
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 2) {
    std::fprintf(stderr, "usage: sonotik-demo FOLDER\n");
    return 2;
  }
  try {
    sonotik::demo::Run(QDir(arguments[1]).absolutePath());
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "sonotik-demo: %s\n", failure.what());
    return 1;
  }
}
