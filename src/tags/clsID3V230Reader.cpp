#include "tags/clsID3V230Reader.h"

#include <stdexcept>
#include <vector>

#include "files/files.h"
#include "files/runtime_failure.h"
#include "tags/copy_blocks.h"
#include "tags/mdlID3.h"
#include "tags/media_file.h"
#include "tags/picture_frame.h"
#include "tags/synced_lyrics.h"
#include "tags/tag_record.h"
#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {
namespace {

constexpr int64_t kHeaderSize = 10;
constexpr int kUnsynchronisation = 0x80;
constexpr int kExtendedHeader = 0x40;
constexpr int kExperimental = 0x20;
constexpr int kUnreadable = 0xC0;  // compressed, encrypted
constexpr int64_t kLongestText = 512;
// An extended header of this size ends with a checksum.
constexpr int32_t kSizeWithChecksum = 10;

constexpr std::string_view kNulMark = "{::}";

struct TextFrame {
  std::string_view id;
  std::string ID3V230Properties::*member;
};
constexpr TextFrame kTextFrames[] = {
    {"TIT2", &ID3V230Properties::SongTitle}, {"TPE1", &ID3V230Properties::artist},
    {"TALB", &ID3V230Properties::album},     {"TYER", &ID3V230Properties::Year},
    {"TCON", &ID3V230Properties::Genre},     {"TENC", &ID3V230Properties::EncodedBy},
    {"TCOM", &ID3V230Properties::Composer},  {"TOPE", &ID3V230Properties::OriginalArtist},
    {"TCOP", &ID3V230Properties::Copyright}, {"TIT3", &ID3V230Properties::SubTitle},
    {"TLAN", &ID3V230Properties::Language}};

// NULs are written as a mark first, so that the mark itself parts a text too.
std::vector<std::string> SplitAtNuls(const std::string& text) {
  const std::string marked = ReplaceAll(text, std::string_view("\0", 1), kNulMark);
  std::vector<std::string> pieces;
  for (size_t from = 0;;) {
    const size_t mark = marked.find(kNulMark, from);
    pieces.push_back(marked.substr(from, mark - from));
    if (mark == marked.npos) return pieces;
    from = mark + kNulMark.size();
  }
}

void Join(std::string& list, std::string_view entry, std::string_view separator) {
  if (!list.empty()) list += separator;
  list += entry;
}

}  // namespace

int64_t WeighedSize(std::span<const uint8_t, 4> bytes) {
  return (int64_t{bytes[0]} << 21) + (int64_t{bytes[1]} << 14) + (int64_t{bytes[2]} << 7) +
         bytes[3];
}

bool HasPlainSize(std::string_view id) { return id == "USLT" || id == "SYLT" || id == "APIC"; }

void clsID3V230Reader::ReadID3V230Tag(ByteSource& file, bool check_only) {
  static_cast<ID3V230Properties&>(*this) = {};
  const auto header = file.Read<kHeaderSize>(0);
  if (!BeginsWith(header, "ID3") || header[3] != 3) return;
  if (check_only) {
    TagPresent = true;
    return;
  }
  const int flags = header[5];
  if (flags & kUnsynchronisation) {
    if (message_) {
      message_(
          "This ID3 Tag is Unsyncronized.  This application is not equipped to read this kind of "
          "ID3 Tag.");
    }
    return;
  }
  ExperimentalTag = flags & kExperimental;
  ExtendedHeader = flags & kExtendedHeader;
  int64_t at = kHeaderSize;
  if (ExtendedHeader) {
    CRC = BigEndian(file.Read<4>(at)) == kSizeWithChecksum;
    at += 10;
    if (CRC) {
      CRCValue = BigEndian(file.Read<4>(at));
      at += 4;
    }
  }
  try {
    ReadFrames(file, at, kHeaderSize + WeighedSize(std::span(header).subspan<6, 4>()));
    TagPresent = true;
  } catch (const RuntimeFailure&) {
    // The tag counts as absent; what was read of it stays in its properties.
  }
}

void clsID3V230Reader::ReadFrames(ByteSource& file, int64_t at, int64_t end) {
  while (at < end) {
    if (yield_) yield_();
    const auto head = file.Read<kHeaderSize>(at);
    const std::string id(head.begin(), head.begin() + 4);
    if (id.find_first_not_of('\0') == id.npos) return;
    const auto size_field = std::span(head).subspan<4, 4>();
    const int64_t size =
        HasPlainSize(id) ? ReadSizeField(size_field, false) : WeighedSize(size_field);
    if (head[9] & kUnreadable) {
      // Nothing here undoes compression or encryption.
    } else if (id == "APIC") {
      StoreGraphic(file, at, size);
    } else {
      std::string text;
      if (size <= kLongestText) {
        const auto bytes = file.ReadAtMost(at + kHeaderSize + 1, size - 1);
        text.assign(bytes.begin(), bytes.end());
      }
      StoreText(id, text);
    }
    at += kHeaderSize + size;
  }
}

void clsID3V230Reader::StoreText(std::string_view id, const std::string& text) {
  for (const TextFrame& frame : kTextFrames) {
    if (frame.id != id) continue;
    this->*frame.member = text;
    return;
  }
  if (id == "TRCK") return StoreTrack(text);
  if (id == "SYLT") {
    SyncLyrics += LinesOfLyrics(text);
    return;
  }
  if (id != "COMM" && id != "WXXX" && id != "USLT") {
    Join(Unknown, std::string(id) + "=" + ReplaceAll(text, std::string_view("\0", 1), " "), "|");
    return;
  }
  const auto pieces = SplitAtNuls(text);
  // A text without a second piece has nothing to say.
  if (pieces.size() < 2) return;
  if (id == "COMM") {
    Comment = pieces[1];
  } else if (id == "USLT") {
    Join(Lyrics, pieces[1], "\r\n");
  } else {
    Join(URL, pieces[0].empty() ? pieces[1] : pieces[0] + "->" + pieces[1], "|");
  }
}

void clsID3V230Reader::StoreTrack(std::string_view text) {
  const auto store = [](uint8_t& property, std::string_view digits) {
    const auto number = TagNumber(digits);
    if (!number) return;
    const double rounded = RoundHalfEven(*number);
    // What doesn't fit a byte leaves the property standing.
    if (rounded >= 0 && rounded <= 255) property = static_cast<uint8_t>(rounded);
  };
  const size_t slash = text.find('/');
  store(Track, text.substr(0, slash));
  if (slash != text.npos) store(Tracks, text.substr(slash + 1));
}

// One entry a frame in each of the four lists.
void clsID3V230Reader::StoreGraphic(ByteSource& file, int64_t at, int64_t size) {
  const auto head = ReadPictureHead(file, at + kHeaderSize, size);
  if (!head) return;
  const std::string separator = GraphicStartPos.empty() ? "" : "|";
  GraphicTitle += separator + head->title;
  GraphicExtended += separator + PictureTypeName(head->type);
  GraphicSize += separator + std::to_string(size);
  GraphicStartPos += separator + std::to_string(at);
}

void clsID3V230Reader::ReadID3V230Tag(std::string_view path, bool check_only) {
  MediaFile file(path);
  if (file.open()) ReadID3V230Tag(file, check_only);
}

std::string clsID3V230Reader::ExtractGraphic(std::string_view path, int64_t start_pos, int64_t size,
                                             std::string* kind, std::string* title) const {
  MediaFile file(path);
  if (!file.open()) return "";
  const int64_t from = start_pos + kHeaderSize;
  const auto head = ReadPictureHead(file, from, size);
  if (!head) return "";
  if (kind) *kind = head->kind;
  if (title) *title = head->title;
  // A kind is part of a file's name, and no tag may choose the folder.
  if (head->kind.find_first_of("/\\") != head->kind.npos) return "";

  const std::string ending = "." + (head->kind == "jpeg" ? "jpg" : head->kind);
  int number = 0;
  std::string name;
  do {
    name = std::string(path) + std::to_string(number++) + ending;
  } while (FileExists(name));
  try {
    WriteBeside(std::string(path) + ".pic", name, [&](std::ostream& picture) {
      CopyBlocks(file, from + static_cast<int64_t>(head->length), from + size, picture, yield_);
    });
  } catch (const std::runtime_error&) {
    return "";
  }
  return name;
}

}  // namespace sonotik
