#include "widgets/gif_decoder.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>
#include <string>
#include <utility>

#include "text/text.h"

namespace sonotik {
namespace {

constexpr int kExtension = 33;
constexpr int kImage = 44;
constexpr int kGraphicControl = 249;
constexpr int kApplication = 255;

// Ends the read wherever it stands.
struct EndOfFile : std::runtime_error {
  EndOfFile() : std::runtime_error("ReadGifFile: End of File") {}
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}

  size_t place() const { return place_; }
  std::string_view Take(size_t count) {
    if (count > bytes_.size() - place_) throw EndOfFile();
    place_ += count;
    return bytes_.substr(place_ - count, count);
  }
  int Byte() { return static_cast<unsigned char>(Take(1)[0]); }
  int Word() {
    const int low = Byte();
    return low | Byte() << 8;
  }
  std::string_view SubBlock() { return Take(static_cast<size_t>(Byte())); }
  void SkipSubBlocks() {
    while (!SubBlock().empty()) continue;
  }
  std::vector<Color> ColorTable(int flags) {
    const std::string_view table = Take(3 * (size_t{2} << (flags & 7)));
    std::vector<Color> colors(table.size() / 3);
    for (size_t i = 0; i < colors.size(); ++i) {
      const auto part = [&](size_t k) { return static_cast<unsigned char>(table[3 * i + k]); };
      colors[i] = Rgb(part(0), part(1), part(2));
    }
    return colors;
  }

 private:
  std::string_view bytes_;
  size_t place_ = 0;
};

struct NoColorTable {};

void ReadExtension(Reader& reader, GifFile& gif, GifFrame& next) {
  const int label = reader.Byte();
  const std::string_view first = reader.SubBlock();
  if (first.empty()) return;
  if (label == kGraphicControl && first.size() >= 4) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(first[i]); };
    int disposal = byte(0) >> 2 & 7;
    // There is nothing before the first frame to go back to.
    if (disposal > 3 || (disposal == 3 && gif.frames.empty())) disposal = 0;
    next.disposal = static_cast<GifDisposal>(disposal);
    next.delay_ms = (byte(1) | byte(2) << 8) * 10;
    next.transparent = byte(0) & 1;
    next.transparent_index = byte(3);
  }
  if (label == kApplication && EqualsIgnoringCase(first, "NETSCAPE2.0")) {
    const std::string_view loop = reader.SubBlock();
    if (loop.empty()) return;
    if (loop.size() == 3) {
      gif.loops = static_cast<unsigned char>(loop[1]) | static_cast<unsigned char>(loop[2]) << 8;
    }
  }
  reader.SkipSubBlocks();
}

void ReadImage(Reader& reader, GifFile& gif, GifFrame frame) {
  frame.left = reader.Word();
  frame.top = reader.Word();
  frame.width = reader.Word();
  frame.height = reader.Word();
  const int flags = reader.Byte();
  frame.interlaced = flags & 64;
  if (flags & 128) {
    gif.color_tables.push_back(reader.ColorTable(flags));
    frame.color_table = gif.color_tables.size() - 1;
  } else if (gif.color_tables[0].empty()) {
    throw NoColorTable();
  }
  frame.data = reader.place();
  reader.Byte();
  reader.SkipSubBlocks();
  frame.data_length = reader.place() - 1 - frame.data;
  if (frame.data_length >= 3) gif.frames.push_back(frame);
}

void ReadBlocks(Reader& reader, GifFile& gif) {
  reader.Take(6);
  reader.Take(4);  // the screen's size is not the picture's
  const int flags = reader.Byte();
  reader.Take(2);
  gif.color_tables.emplace_back();
  if (flags & 128) gif.color_tables[0] = reader.ColorTable(flags);
  GifFrame next;
  for (;;) {
    const int introducer = reader.Byte();
    if (introducer == kExtension) {
      ReadExtension(reader, gif, next);
    } else if (introducer == kImage) {
      ReadImage(reader, gif, std::exchange(next, GifFrame()));
    } else if (introducer != 0) {
      // Whatever is unknown ends the read, the trailer as well.
      return;
    }
  }
}

// The codes of a frame, out of its sub-blocks.
std::string Payload(std::string_view data) {
  std::string payload;
  payload.reserve(data.size());
  for (size_t at = 1; at < data.size();) {
    const size_t length = static_cast<unsigned char>(data[at]);
    payload += data.substr(at + 1, length);
    at += 1 + length;
  }
  return payload;
}

constexpr int kMostCodes = 4096;
constexpr int kMostCodeBits = 12;

// LZW as GIF has it. Each string of the table but the single colours stands in what was already
// put out, so the table holds places in it.
size_t Decompress(std::string_view codes, int code_size, std::vector<uint8_t>& out) {
  std::array<uint32_t, kMostCodes> starts;
  std::array<uint16_t, kMostCodes> lengths;
  const uint32_t clear = 1U << code_size;
  const uint32_t end = clear + 1;
  uint32_t next = clear + 2;
  int width = code_size + 1;
  uint64_t bits = 0;
  int held = 0;
  size_t place = 0;
  size_t done = 0;
  size_t former_start = 0;
  size_t former_length = 0;  // 0 behind a clear code
  while (done < out.size()) {
    for (; held <= 56 && place < codes.size(); held += 8) {
      bits |= uint64_t{static_cast<unsigned char>(codes[place++])} << held;
    }
    if (held < width) break;
    const auto code = static_cast<uint32_t>(bits & ((1U << width) - 1));
    bits >>= width;
    held -= width;
    if (code == end) break;
    if (code == clear) {
      next = clear + 2;
      width = code_size + 1;
      former_length = 0;
      continue;
    }
    if (former_length > 0 && next < kMostCodes) {
      starts[next] = static_cast<uint32_t>(former_start);
      lengths[next] = static_cast<uint16_t>(former_length + 1);
      ++next;
      if (next == 1U << width && width < kMostCodeBits) ++width;
    }
    former_start = done;
    if (code < clear) {
      out[done++] = static_cast<uint8_t>(code);
      former_length = 1;
      continue;
    }
    if (code >= next) break;
    former_length = lengths[code];
    const size_t count = std::min(former_length, out.size() - done);
    const uint8_t* const from = &out[starts[code]];
    // Forward byte by byte: the newest string runs into its own copy.
    for (size_t i = 0; i < count; ++i) out[done + i] = from[i];
    done += count;
  }
  return done;
}

}  // namespace

std::optional<GifFile> ReadGif(std::string_view bytes) {
  const std::string signature = LowerCase(bytes.substr(0, 6));
  if (signature != "gif89a" && signature != "gif87a") return std::nullopt;
  GifFile gif;
  try {
    Reader reader(bytes);
    ReadBlocks(reader, gif);
  } catch (const EndOfFile&) {
    // What came whole stays.
  } catch (const NoColorTable&) {
    return std::nullopt;
  }
  for (const GifFrame& frame : gif.frames) {
    gif.width = std::max(gif.width, frame.left + frame.width);
    gif.height = std::max(gif.height, frame.top + frame.height);
  }
  if (gif.frames.empty() || int64_t{gif.width} * gif.height > kMostGifPixels) return std::nullopt;
  return gif;
}

std::vector<uint8_t> DecodeGifFrame(std::string_view bytes, const GifFrame& frame) {
  const std::string_view data = bytes.substr(frame.data, frame.data_length);
  const int code_size = static_cast<unsigned char>(data[0]);
  if (code_size < 2 || code_size > 8) return {};
  const std::string codes = Payload(data);
  // A code is at most one colour longer than the one before it.
  const uint64_t count = codes.size() * 8 / (static_cast<uint64_t>(code_size) + 1);
  const uint64_t most = count * std::min<uint64_t>(count, kMostCodes);
  const uint64_t wanted = static_cast<uint64_t>(frame.width) * static_cast<uint64_t>(frame.height);
  std::vector<uint8_t> indexes(std::min(most, wanted));
  indexes.resize(Decompress(codes, code_size, indexes));
  return indexes;
}

int GifRow(const GifFrame& frame, int nth) {
  if (!frame.interlaced) return nth;
  struct Pass {
    int first, step;
  };
  for (const Pass& pass : {Pass{0, 8}, Pass{4, 8}, Pass{2, 4}, Pass{1, 2}}) {
    const int rows = (frame.height - pass.first + pass.step - 1) / pass.step;
    if (nth < rows) return pass.first + nth * pass.step;
    nth -= std::max(rows, 0);
  }
  return frame.height - 1;
}

}  // namespace sonotik
