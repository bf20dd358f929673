#include "tags/mdlID3.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "files/runtime_failure.h"
#include "tags/id3v1.h"
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

// The body of a tag. `length` is what the header claims (less what unsynchronisation added); the
// bytes themselves may be fewer, and the missing ones are zeros.
struct TagBody {
  std::vector<uint8_t> bytes;
  int64_t length = 0;
  int64_t footer = 0;
  int version = 0;
  bool unsync = false;

  template <size_t kCount>
  std::array<uint8_t, kCount> At(int64_t position) const {
    std::array<uint8_t, kCount> got{};
    for (size_t i = 0; i < kCount; ++i) {
      const size_t index = static_cast<size_t>(position) + i;
      if (index < bytes.size()) got[i] = bytes[index];
    }
    return got;
  }

  std::span<uint8_t> Data(int64_t position, int64_t size) {
    const int64_t there = static_cast<int64_t>(bytes.size());
    const int64_t from = std::min(position, there);
    return std::span(bytes).subspan(static_cast<size_t>(from),
                                    static_cast<size_t>(std::min(size, there - from)));
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

std::string FrameValue(TagBody& body, std::string_view id, int64_t position, int64_t size,
                       int flags) {
  std::span<uint8_t> data = body.Data(position, size);
  size_t preceding = 0;
  if (body.version == 3) {
    if (flags & kV3Unreadable) return "";
    preceding = flags & kV3Group ? 1 : 0;
  } else if (body.version == 4) {
    if (flags & kV4Unreadable) return "";
    if (flags & kV4Unsync || body.unsync) data = data.first(data.size() - RemoveUnsync(data));
    preceding = (flags & kV4Group ? 1 : 0) + (flags & kV4DataLength ? 4 : 0);
  }
  return FrameText(Behind(data, preceding), id);
}

// An empty value replaces an earlier one too.
void StoreValue(TagRecord& record, std::string_view id, const std::string& value) {
  if (id == "TDRC") {
    record.year = value.substr(0, 4);
  } else if (id == "TCON" || id == "TCO") {
    record.genre = ParseGenreRef(value);
  } else {
    for (const TextFrame& frame : kTextFrames) {
      if (frame.id == id) record.*frame.member = value;
    }
  }
}

// Gives the distance from the end of the tag to the next one, where a SEEK frame tells it.
std::optional<int64_t> WalkFrames(TagBody& body, int64_t position, TagRecord& record) {
  std::optional<int64_t> seek;
  const bool old = body.version == 2;
  const int64_t end = body.length - body.footer;
  const int64_t head_size = old ? 6 : kHeaderSize;
  while (position <= end - head_size) {
    const auto head = body.At<kHeaderSize>(position);
    const std::string id(head.begin(), head.begin() + (old ? 3 : 4));
    if (id.find_first_not_of('\0') == std::string::npos) break;
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

    const std::string value = FrameValue(body, id, position, size, old ? 0 : head[9]);
    position += size;
    if (id == "SEEK") {
      if (!value.empty()) seek = std::stoll(value);
    } else {
      StoreValue(record, id, value);
    }
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
  const auto number = ParseNumber(reference);
  if (number && !TrimBlanks(reference).empty()) {
    return GenreName(static_cast<int>(RoundHalfEven(std::clamp(*number, -1.0, 256.0))));
  }
  if (reference == "RX") return "Remix";
  if (reference == "CR") return "Cover";
  return std::string(text);
}

int64_t ParseID3v2Block(MediaFile& file, int64_t offset, TagRecord& record) {
  const auto header = file.Read(offset, kHeaderSize);
  TagBody body;
  body.version = header[3];
  if (body.version < 2 || body.version > 4) return -1;
  const int flags = header[5];
  body.unsync = flags >= 128;
  body.footer = body.version == 4 && flags & kFooterPresent ? kHeaderSize : 0;
  body.length = ReadSizeField(std::span(header).subspan<6, 4>(), true) + body.footer;
  if (body.length == 0) throw RuntimeFailure("an ID3 tag of size 0");

  const int64_t data = offset + kHeaderSize;
  const int64_t there = std::max<int64_t>(0, file.size() - data);
  body.bytes = file.Read(data, std::min(body.length, there));
  if (body.unsync && body.version < 4) {
    const size_t removed = RemoveUnsync(body.bytes);
    body.bytes.resize(body.bytes.size() - removed);
    body.length -= static_cast<int64_t>(removed);
  }

  int64_t start = 0;
  bool update = false;
  if (body.version > 2 && flags & kExtendedHeader) {
    start = ReadSizeField(body.At<4>(0), body.version == 4);
    if (body.version == 3) start += 4;
    update = body.version == 4 && body.At<1>(5)[0] & kUpdate;
  }
  if (!update) ClearTagRecord(record);
  const auto seek = WalkFrames(body, start, record);
  return seek ? *seek + data + body.length : -1;
}

bool ReadID3v2Tag(std::string_view path, TagRecord& record) {
  MediaFile file(path);
  if (!file.open()) return false;
  bool found = false;
  for (int64_t at = 0; at >= 0 && BeginsWith(file.Read(at, 3), "ID3");) {
    at = ParseID3v2Block(file, at, record);
    found = true;
  }
  if (found) return true;

  const int64_t end = file.size() - (HasID3v1Tag(file) ? kID3v1Size : 0);
  if (end < kHeaderSize) return false;
  const auto footer = file.Read(end - kHeaderSize, kHeaderSize);
  if (!BeginsWith(footer, "3DI")) return false;
  const int64_t size = ReadSizeField(std::span(footer).subspan<6, 4>(), true);
  const int64_t start = end - kHeaderSize - size - kHeaderSize;
  if (start < 0) return false;
  ParseID3v2Block(file, start, record);
  return true;
}

int64_t ID3v2DataStart(MediaFile& file, int64_t offset) {
  const auto header = file.Read(offset, kHeaderSize);
  if (!BeginsWith(header, "ID3")) return 0;
  const bool footer = header[3] >= 4 && header[5] & kFooterPresent;
  return ReadSizeField(std::span(header).subspan<6, 4>(), true) + kHeaderSize +
         (footer ? kHeaderSize : 0);
}

}  // namespace sonotik
