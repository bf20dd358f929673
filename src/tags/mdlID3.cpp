#include "tags/mdlID3.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "files/runtime_failure.h"
#include "tags/id3v1.h"
#include "tags/media_file.h"
#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {
namespace {

constexpr int64_t kHeaderSize = 10;

// Header flags (ID3v2.4 3.1) and the flags of a frame's second flag byte.
constexpr int kExtendedHeader = 0x40;
constexpr int kFooterPresent = 0x10;
constexpr int kUpdate = 0x40;
constexpr int kV3Group = 0x20;
constexpr int kV3Unreadable = 0xC0;  // compressed, encrypted
constexpr int kV4Group = 0x40;
constexpr int kV4Unreadable = 0x0C;  // compressed, encrypted
constexpr int kV4Unsync = 0x02;
constexpr int kV4DataLength = 0x01;

struct TextFrame {
  std::string_view id;
  std::string TagRecord::*member;
};

constexpr TextFrame kTextFrames[] = {
    {"TPE1", &TagRecord::artist},
    {"TP1", &TagRecord::artist},
    {"TALB", &TagRecord::album},
    {"TAL", &TagRecord::album},
    {"TIT2", &TagRecord::title},
    {"TT2", &TagRecord::title},
    {"TRCK", &TagRecord::track},
    {"TRK", &TagRecord::track},
    {"TYER", &TagRecord::year},
    {"TYE", &TagRecord::year},
    {"COMM", &TagRecord::comment},
    {"COM ", &TagRecord::comment},
    {"COM", &TagRecord::comment},
    {"TENC", &TagRecord::encoded_by},
    {"TEN", &TagRecord::encoded_by},
    {"WXXX", &TagRecord::url},
    {"WXX", &TagRecord::url},
    {"TCOP", &TagRecord::copyright},
    {"TCR", &TagRecord::copyright},
    {"TOPE", &TagRecord::original_artist},
    {"TOA", &TagRecord::original_artist},
    {"TCOM", &TagRecord::composer},
    {"TCM", &TagRecord::composer},
};

// The body of a tag where it lies: in the file, or in memory where unsynchronisation had to be
// undone over the whole of it. `length` is what the header claims (less what was undone); the bytes
// themselves may be fewer, and the missing ones are zeros.
struct TagBody {
  ByteSource& source;
  int64_t start;
  int64_t length;
  int64_t footer;
  int version;
  bool unsync;

  template <size_t kCount>
  std::array<uint8_t, kCount> At(int64_t position) const {
    std::array<uint8_t, kCount> got{};
    const auto within = std::clamp<int64_t>(length - position, 0, kCount);
    source.ReadInto(start + position, std::span(got).first(static_cast<size_t>(within)));
    return got;
  }
};

std::span<const uint8_t> Behind(std::span<const uint8_t> bytes, size_t count) {
  return bytes.subspan(std::min(count, bytes.size()));
}

// Comments and user URLs: a description, its end and the value. The skipped length leaves a byte
// order mark out of account, so that a value behind a marked description begins with the mark of
// its own; that is meant.
std::string TextBehindDescription(std::span<const uint8_t> bytes, size_t start) {
  const int encoding = bytes[0];
  const size_t description = DecodeBytes(Behind(bytes, start), encoding, true).size();
  const bool narrow = encoding == 0 || encoding == 3;
  const size_t skipped = start + (narrow ? description + 1 : 2 * description + 2);
  return DecodeBytes(Behind(bytes, skipped), encoding, true);
}

std::string FrameValue(const TagBody& body, std::string_view id, int64_t position, int64_t size,
                       int flags) {
  const bool v3 = body.version == 3;
  const bool v4 = body.version == 4;
  if ((v3 && flags & kV3Unreadable) || (v4 && flags & kV4Unreadable)) return "";
  auto bytes = body.source.ReadAtMost(body.start + position, size);
  std::span<uint8_t> data = bytes;
  if (v4 && (flags & kV4Unsync || body.unsync)) data = data.first(data.size() - RemoveUnsync(data));
  size_t preceding = 0;
  if (v3 && flags & kV3Group) preceding = 1;
  if (v4) preceding = (flags & kV4Group ? 1 : 0) + (flags & kV4DataLength ? 4 : 0);
  return FrameText(Behind(data, preceding), id);
}

bool IsGenre(std::string_view id) { return id == "TCON" || id == "TCO"; }

std::string TagRecord::*TextMember(std::string_view id) {
  for (const TextFrame& frame : kTextFrames) {
    if (frame.id == id) return frame.member;
  }
  return nullptr;
}

// What no field takes isn't read: a cover stays on the disk.
bool IsWanted(std::string_view id) {
  return id == "TDRC" || id == "SEEK" || IsGenre(id) || TextMember(id);
}

// An empty value replaces an earlier one too.
void StoreValue(TagRecord& record, std::string_view id, const std::string& value) {
  if (id == "TDRC") {
    record.year = value.substr(0, 4);
  } else if (IsGenre(id)) {
    record.genre = ParseGenreRef(value);
  } else if (const auto member = TextMember(id)) {
    record.*member = value;
  }
}

// Gives the distance from the end of the tag to the next one, where a SEEK frame tells it.
std::optional<int64_t> WalkFrames(const TagBody& body, int64_t position, TagRecord& record) {
  std::optional<int64_t> seek;
  const bool old = body.version == 2;
  const int64_t end = body.length - body.footer;
  const int64_t head_size = old ? 6 : kHeaderSize;
  while (position <= end - head_size) {
    const auto head = body.At<kHeaderSize>(position);
    const std::string_view id(reinterpret_cast<const char*>(head.data()), old ? 3 : 4);
    if (id.find_first_not_of('\0') == id.npos) break;
    position += head_size;

    const auto size_field = std::span(head).subspan<4, 4>();
    int64_t size = old ? BigEndian(std::span(head).subspan(3, 3))
                       : ReadSizeField(size_field, body.version == 4);
    if (position > end - size) break;
    // Some taggers write the sizes of version 2.4 plain: then no id stands where the next is due.
    if (!old && position + size + 4 <= end && !IsFrameIdAhead(body.At<4>(position + size))) {
      size = ReadSizeField(size_field, false);
      if (position > end - size) break;
    }

    if (IsWanted(id)) {
      const std::string value = FrameValue(body, id, position, size, old ? 0 : head[9]);
      if (id != "SEEK") {
        StoreValue(record, id, value);
      } else if (!value.empty()) {
        seek = std::stoll(value);
      }
    }
    position += size;
  }
  return seek;
}

}  // namespace

int32_t ReadSizeField(std::span<const uint8_t, 4> bytes, bool synchsafe) {
  if (synchsafe && std::all_of(bytes.begin(), bytes.end(), [](uint8_t b) { return b < 128; })) {
    return bytes[0] << 21 | bytes[1] << 14 | bytes[2] << 7 | bytes[3];
  }
  if (bytes[0] >= 128) throw RuntimeFailure("a size in an ID3 tag overflows");
  return static_cast<int32_t>(BigEndian(bytes));
}

std::string FrameText(std::span<const uint8_t> bytes, std::string_view id) {
  if (bytes.empty()) return "";
  if (id.starts_with('T')) return DecodeBytes(bytes.subspan(1), bytes[0], true);
  if (id == "COMM" || id == "COM " || id == "COM") return TextBehindDescription(bytes, 4);
  if (id == "WXXX" || id == "WXX") return TextBehindDescription(bytes, 1);
  if (id == "SEEK" && bytes.size() >= 4) {
    return std::to_string(ReadSizeField(bytes.first<4>(), false));
  }
  return "";
}

bool IsFrameIdAhead(std::span<const uint8_t, 4> bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](uint8_t b) {
    return (b >= 'A' && b <= 'Z') || (b >= '0' && b <= '9') || b == 0;
  });
}

size_t RemoveUnsync(std::span<uint8_t> bytes) {
  size_t kept = 0;
  for (size_t i = 0; i < bytes.size(); ++i) {
    const uint8_t byte = bytes[i];
    bytes[kept++] = byte;
    const bool stuffed = byte == 0xFF && i + 2 < bytes.size() && bytes[i + 1] == 0;
    if (stuffed) ++i;
  }
  return bytes.size() - kept;
}

std::string ParseGenreRef(std::string_view text) {
  const size_t open = text.find('(');
  const size_t close = text.find(')');
  const bool bracketed = open != std::string_view::npos && close != std::string_view::npos;
  if (!bracketed || close <= open + 1) return std::string(text);
  const std::string_view reference = text.substr(open + 1, close - open - 1);
  if (const auto number = TagNumber(reference)) {
    return GenreName(static_cast<int>(RoundHalfEven(std::clamp(*number, -1.0, 256.0))));
  }
  if (reference == "RX") return "Remix";
  if (reference == "CR") return "Cover";
  return std::string(text);
}

int64_t ParseID3v2Block(ByteSource& file, int64_t offset, TagRecord& record) {
  const auto header = file.Read<kHeaderSize>(offset);
  const int version = header[3];
  if (version < 2 || version > 4) return -1;
  const int flags = header[5];
  const bool unsync = flags >= 128;
  const int64_t footer = version == 4 && flags & kFooterPresent ? kHeaderSize : 0;
  int64_t length = ReadSizeField(std::span(header).subspan<6, 4>(), true) + footer;
  if (length == 0) throw RuntimeFailure("an ID3 tag of size 0");

  const int64_t data = offset + kHeaderSize;
  const bool whole = unsync && version < 4;
  std::vector<uint8_t> undone;
  if (whole) {
    undone = file.ReadAtMost(data, length);
    const size_t removed = RemoveUnsync(undone);
    undone.resize(undone.size() - removed);
    length -= static_cast<int64_t>(removed);
  }
  MemorySource memory(undone);
  const TagBody body = whole ? TagBody{memory, 0, length, footer, version, unsync}
                             : TagBody{file, data, length, footer, version, unsync};

  int64_t start = 0;
  bool update = false;
  if (version > 2 && flags & kExtendedHeader) {
    start = ReadSizeField(body.At<4>(0), version == 4);
    if (version == 3) start += 4;
    update = version == 4 && body.At<1>(5)[0] & kUpdate;
  }
  if (!update) ClearTagRecord(record);
  const auto seek = WalkFrames(body, start, record);
  return seek ? *seek + data + length : -1;
}

bool ReadID3v2Tag(ByteSource& file, TagRecord& record) {
  bool found = false;
  for (int64_t at = 0; at >= 0 && BeginsWith(file.Read<3>(at), "ID3");) {
    at = ParseID3v2Block(file, at, record);
    found = true;
  }
  if (found) return true;

  const int64_t end = file.size() - (HasID3v1Tag(file) ? kID3v1Size : 0);
  if (end < kHeaderSize) return false;
  const auto footer = file.Read<kHeaderSize>(end - kHeaderSize);
  if (!BeginsWith(footer, "3DI")) return false;
  const int64_t size = ReadSizeField(std::span(footer).subspan<6, 4>(), true);
  const int64_t start = end - kHeaderSize - size - kHeaderSize;
  if (start < 0) return false;
  ParseID3v2Block(file, start, record);
  return true;
}

bool ReadID3v2Tag(std::string_view path, TagRecord& record) {
  MediaFile file(path);
  return ReadID3v2Tag(file, record);
}

int64_t ID3v2DataStart(ByteSource& file, int64_t offset) {
  const auto header = file.Read<kHeaderSize>(offset);
  if (!BeginsWith(header, "ID3")) return 0;
  const bool footer = header[3] >= 4 && header[5] & kFooterPresent;
  return ReadSizeField(std::span(header).subspan<6, 4>(), true) + kHeaderSize +
         (footer ? kHeaderSize : 0);
}

}  // namespace sonotik
