#include "tools/demo/shelves.h"

namespace sonotik::demo {

QString ShelfOf(Format format) {
  return format == Format::kVideo ? "videos" : format == Format::kKaraoke ? "karaoke" : "music";
}

QString FolderOf(const Album& album) {
  return ShelfOf(album.format) + "/" + album.artist + " - " + album.title;
}

QString FileOf(const Album& album, size_t track) {
  const QString title = album.tracks[track].title;
  // A karaoke song has its graphics beside it, under the same name.
  if (album.format == Format::kKaraoke) return title + ".mp3";
  static constexpr const char* kExtensions[] = {".mp3", ".wma", ".m4a", ".wav", ".mpg"};
  return QString("%1 - %2").arg(track + 1, 2, 10, QChar('0')).arg(title) +
         kExtensions[static_cast<size_t>(album.format)];
}

QString ArtistOf(const Album& album, size_t track) {
  const char* own = album.tracks[track].artist;
  return own != nullptr ? own : album.artist;
}

}  // namespace sonotik::demo
