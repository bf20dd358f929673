// The ID3v2.3 tag of a file as an object, with its lyrics and pictures. It reads version 2.3 alone
// and no unsynchronised tag. Layouts: the ID3v2.3.0 document of id3.org.
#ifndef SONOTIK_TAGS_CLSID3V230READER_H_
#define SONOTIK_TAGS_CLSID3V230READER_H_

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "tags/byte_source.h"

namespace sonotik {

// Several frames of a kind are joined by "|" in Unknown, URL and the Graphic properties.
struct ID3V230Properties {
  std::string Unknown;  // frames of all other kinds, as id "=" text
  std::string SubTitle;
  std::string Language;
  int64_t CRCValue = 0;
  bool CRC = false;
  bool ExtendedHeader = false;
  bool ExperimentalTag = false;
  std::string GraphicTitle;
  std::string GraphicSize;      // of the frames, their heads not counted, in decimal
  std::string GraphicStartPos;  // offsets of the frames in the file, from 0, in decimal
  std::string GraphicExtended;  // what the pictures show: "Front Cover"
  std::string SyncLyrics;       // "[mm:ss]" before each line
  std::string Lyrics;
  std::string Composer;
  std::string OriginalArtist;
  std::string Copyright;
  std::string URL;  // with a description: description "->" URL
  std::string EncodedBy;
  bool TagPresent = false;
  std::string SongTitle;
  std::string artist;
  std::string album;
  std::string Year;
  std::string Comment;
  uint8_t Track = 0;
  uint8_t Tracks = 0;
  std::string Genre;
};

class clsID3V230Reader : public ID3V230Properties {
 public:
  // `message` shows a text to the user; `yield` gives pending events a turn between frames and
  // blocks of a picture. Both may be left out.
  explicit clsID3V230Reader(std::function<void(const std::string&)> message = {},
                            std::function<void()> yield = {})
      : message_(std::move(message)), yield_(std::move(yield)) {}

  // Empties all properties and fills them, or with `check_only` just TagPresent. A failure on the
  // way ends it quietly: what is set stays, and TagPresent is false. A file that can't be opened
  // leaves all as it is.
  //
  // The bytes of a text are taken as they stand but for the first, the encoding, which isn't looked
  // at. A text of more than 512 bytes reads as empty.
  void ReadID3V230Tag(ByteSource& file, bool check_only);
  void ReadID3V230Tag(std::string_view path, bool check_only);

  // Writes the picture of the frame at `start_pos` (GraphicStartPos) with `size` bytes
  // (GraphicSize) beside the file, under the file's name, the first number from 0 that is free, and
  // its kind: "song.mp30.jpg". Gives that name and, if asked, the kind as the frame tells it
  // ("jpeg") and the title. Empty if there is no such file or the picture can't be written.
  std::string ExtractGraphic(std::string_view path, int64_t start_pos, int64_t size,
                             std::string* kind = nullptr, std::string* title = nullptr) const;

 private:
  void ReadFrames(ByteSource& file, int64_t at, int64_t end);
  void StoreText(std::string_view id, const std::string& text);
  void StoreTrack(std::string_view text);
  void StoreGraphic(ByteSource& file, int64_t at, int64_t size);

  std::function<void(const std::string&)> message_;
  std::function<void()> yield_;
};

// A size as the class readers and the writer weigh it: shifts of 21, 14, 7 and 0 bits, and no bit
// masked.
int64_t WeighedSize(std::span<const uint8_t, 4> bytes);

// True for the frames whose sizes are plain here; all others have theirs weighed. Version 2.3 knows
// no such difference. It is meant: reader and writer agree on it.
bool HasPlainSize(std::string_view id);

}  // namespace sonotik

#endif  // SONOTIK_TAGS_CLSID3V230READER_H_
