// Writes an ID3v2.3 tag in front of an MP3, in the place of the tag that is there. Counterpart of
// clsID3V230Reader, whose sizes it shares. Layouts: the ID3v2.3.0 document of id3.org.
#ifndef SONOTIK_TAGS_CLSID3V230WRITER_H_
#define SONOTIK_TAGS_CLSID3V230WRITER_H_

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace sonotik {

class clsID3V230Writer {
 public:
  // Texts are bytes of Latin-1. An empty one writes no frame. URL and the Graphic properties may
  // hold several entries joined by "|"; those of the latter belong together by their places.
  std::string SubTitle;
  std::string Language;     // three letters, else comment and lyrics say "eng"
  std::string Graphic;      // paths of picture files; one that is missing writes no frame
  std::string GraphicType;  // what they show: "Front Cover"
  std::string GraphicTitle;
  std::string Lyrics;
  std::string SyncLyrics;  // "[mm:ss]text" a line, CR LF between them
  std::string Composer;
  std::string OriginalArtist;
  std::string Copyright;
  std::string URL;
  std::string EncodedBy;
  std::string SongTitle;
  std::string artist;
  std::string album;
  std::string Year;
  std::string Comment;
  std::string Track;
  std::string Genre;

  // `yield` gives pending events a turn between the blocks of a copy; it may be left out.
  explicit clsID3V230Writer(std::function<void()> yield = {}) : yield_(std::move(yield)) {}

  // Takes the tag off the front of a file, whatever its version; a footer stays. Both methods are
  // quiet: a failure ends them, and the file stays with its old tag or without any, but keeps its
  // sound. A tag that claims more than its file has is left standing.
  void RemoveID3V230Tag(std::string_view path) const;
  // With all properties empty this just removes the tag.
  void WriteID3V230Tag(std::string_view path) const;

  // The number of a kind of picture, whatever the case of its name; 0 if there is none such.
  static uint8_t GetGraphicType(std::string_view name);

 private:
  std::function<void()> yield_;
};

}  // namespace sonotik

#endif  // SONOTIK_TAGS_CLSID3V230WRITER_H_
