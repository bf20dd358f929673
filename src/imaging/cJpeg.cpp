#include "imaging/cJpeg.h"

#include <algorithm>
#include <utility>

#include "files/files.h"
#include "files/runtime_failure.h"
#include "imaging/cImage.h"
#include "imaging/jpeg_entropy.h"
#include "imaging/jpeg_transform.h"

namespace sonotik {
namespace {

constexpr int kMostSide = 65535;
constexpr size_t kMostSegment = 65533;
// A scan of several components may not interleave more blocks than this.
constexpr size_t kMostInterleaved = 10;
constexpr char kEncoder[] = "Sonotik";

constexpr char kStartOfImage = '\xD8';
constexpr char kEndOfImage = '\xD9';
constexpr char kApp0 = '\xE0';
constexpr char kCommentMarker = '\xFE';
constexpr char kDefineQuantization = '\xDB';
constexpr char kStartOfFrame = '\xC0';
constexpr char kDefineHuffman = '\xC4';
constexpr char kStartOfScan = '\xDA';

size_t Quotient(size_t dividend, size_t divisor) { return (dividend + divisor - 1) / divisor; }

char Byte(size_t value) { return static_cast<char>(value & 255); }

std::string Word(size_t value) { return {Byte(value >> 8), Byte(value)}; }

std::string Segment(char marker, const std::string& content) {
  return std::string{'\xFF', marker} + Word(content.size() + 2) + content;
}

std::string QuantizationContent(size_t number, const QuantizationTable& table) {
  std::string content(1, Byte(number));
  for (const uint8_t place : kZigzag) content += Byte(table.entries()[place]);
  return content;
}

std::string HuffmanContent() {
  std::string content;
  for (size_t number = 0; number < 2; ++number) {
    for (const size_t kind : {0U, 1U}) {
      const HuffmanTable& table = (kind == 0 ? kDcTables : kAcTables)[number];
      content += Byte(kind << 4 | number);
      content.append(table.counts.begin(), table.counts.end());
      content.append(table.symbols.begin(), table.symbols.end());
    }
  }
  return content;
}

}  // namespace

void cJpeg::SetQuality(int32_t quality) {
  if (quality >= 1 && quality <= 100) quality_ = quality;
}

void cJpeg::SetSamplingFrequencies(int h1, int v1, int h2, int v2, int h3, int v3) {
  for (const int value : {h1, v1, h2, v2, h3, v3}) {
    if (value < 1 || value > 4) throw RuntimeFailure("Invalid Sampling Value");
  }
  const auto sampling = [](int across, int down) {
    return Sampling{static_cast<size_t>(across), static_cast<size_t>(down)};
  };
  sampling_ = {sampling(h1, v1), sampling(h2, v2), sampling(h3, v3)};
}

void cJpeg::SetComment(std::string comment) {
  if (comment.size() > 65535) throw RuntimeFailure("Illegal Comment Length");
  comment_ = std::move(comment);
}

bool cJpeg::SampleHDC(const PixelView& dc, int width, int height, int x, int y) {
  picture_ = Picture();
  if (!dc.sound() || width <= 0 || height <= 0 || width > kMostSide || height > kMostSide ||
      int64_t{width} * height > kMostImagePixels) {
    return false;
  }
  Picture made;
  made.width = static_cast<size_t>(width);
  made.height = static_cast<size_t>(height);
  made.quantization = {Scaled(kLuminanceBase, quality_), Scaled(kChrominanceBase, quality_)};
  for (const Sampling& s : sampling_) {
    made.most = {std::max(made.most.across, s.across), std::max(made.most.down, s.down)};
  }
  for (size_t i = 0; i < kComponents; ++i) {
    Component& c = made.components[i];
    c.sampling = sampling_[i];
    c.tables = i == 0 ? 0 : 1;
    c.height = Quotient(made.height * c.sampling.down, made.most.down);
    c.blocks_wide =
        Quotient(Quotient(made.width * c.sampling.across, made.most.across), kBlockSide);
    c.blocks_high = Quotient(c.height, kBlockSide);
    c.coefficients.resize(c.blocks_wide * c.blocks_high * kBlockSize);
  }
  const size_t strip_height = kBlockSide * made.most.down;
  const size_t unit_width = kBlockSide * made.most.across;
  ColorStrip strip(Quotient(made.width, unit_width) * unit_width, strip_height);
  for (size_t first = 0; first < made.height; first += strip_height) {
    for (size_t row = 0; row < strip_height; ++row) {
      // Below its last row the picture repeats it.
      const size_t from = std::min(first + row, made.height - 1);
      strip.Take(dc, x, y + static_cast<int64_t>(from), made.width, row);
    }
    TransformStrip(strip, first / strip_height, made);
  }
  picture_ = std::move(made);
  return true;
}

void cJpeg::TransformStrip(const ColorStrip& strip, size_t number, Picture& picture) {
  for (size_t i = 0; i < kComponents; ++i) {
    Component& c = picture.components[i];
    const FoldedTable table = Fold(picture.quantization[c.tables]);
    const Plane* samples = &strip.plane(i);
    Plane cells;
    const size_t first = number * c.sampling.down;
    if (c.sampling.across != picture.most.across || c.sampling.down != picture.most.down) {
      const size_t rows = c.sampling.down * kBlockSide;
      cells = Plane(c.blocks_wide * kBlockSide, rows);
      Subsample(*samples, {c.sampling.across, picture.most.across},
                {c.sampling.down, picture.most.down}, std::min(rows, c.height - first * kBlockSide),
                cells);
      samples = &cells;
    }
    const size_t end = std::min(first + c.sampling.down, c.blocks_high);
    for (size_t row = first; row < end; ++row) {
      int16_t* to = c.coefficients.data() + row * c.blocks_wide * kBlockSize;
      for (size_t x = 0; x < c.blocks_wide; ++x, to += kBlockSize) {
        TransformBlock(samples->Row((row - first) * kBlockSide) + x * kBlockSide, samples->width,
                       table, to);
      }
    }
  }
}

void cJpeg::WriteScan(const Picture& picture, size_t first, size_t count, std::string& out) {
  std::string head(1, Byte(count));
  for (size_t i = first; i < first + count; ++i) {
    const size_t tables = picture.components[i].tables;
    head += {Byte(i + 1), Byte(tables << 4 | tables)};
  }
  out += Segment(kStartOfScan, head + std::string{0, 63, 0});

  static const std::array<HuffmanCodes, 2> dc = {HuffmanCodes(kDcTables[0]),
                                                 HuffmanCodes(kDcTables[1])};
  static const std::array<HuffmanCodes, 2> ac = {HuffmanCodes(kAcTables[0]),
                                                 HuffmanCodes(kAcTables[1])};
  // A component that is alone in its scan comes block by block.
  const bool alone = count == 1;
  const Component& only = picture.components[first];
  const size_t units_wide =
      alone ? only.blocks_wide : Quotient(picture.width, kBlockSide * picture.most.across);
  const size_t units_high =
      alone ? only.blocks_high : Quotient(picture.height, kBlockSide * picture.most.down);
  std::array<int, kComponents> last_dc{};
  std::array<int16_t, kBlockSize> filler{};
  ScanWriter writer(out);
  for (size_t unit = 0; unit < units_wide * units_high; ++unit) {
    for (size_t i = first; i < first + count; ++i) {
      const Component& c = picture.components[i];
      const Sampling unit_blocks = alone ? Sampling{} : c.sampling;
      const size_t top = unit / units_wide * unit_blocks.down;
      const size_t left = unit % units_wide * unit_blocks.across;
      for (size_t y = top; y < top + unit_blocks.down; ++y) {
        for (size_t x = left; x < left + unit_blocks.across; ++x) {
          const int16_t* block = c.coefficients.data() + (y * c.blocks_wide + x) * kBlockSize;
          if (x >= c.blocks_wide || y >= c.blocks_high) {
            // A unit reaches beyond the picture's last block. Nothing changes there any more.
            filler[0] = static_cast<int16_t>(last_dc[i]);
            block = filler.data();
          }
          writer.WriteBlock(block, last_dc[i], dc[c.tables], ac[c.tables]);
        }
      }
    }
  }
  writer.Finish();
}

std::string cJpeg::FileBytes() const {
  if (picture_.width == 0) throw RuntimeFailure("no picture was sampled");
  std::string out{'\xFF', kStartOfImage};
  // Version 1.02, square pixels, no thumbnail.
  out += Segment(kApp0, {'J', 'F', 'I', 'F', 0, 1, 2, 0, 0, 1, 0, 1, 0, 0});
  if (!comment_.empty()) out += Segment(kCommentMarker, comment_.substr(0, kMostSegment));
  out += Segment(kCommentMarker, kEncoder);
  for (size_t i = 0; i < picture_.quantization.size(); ++i) {
    out += Segment(kDefineQuantization, QuantizationContent(i, picture_.quantization[i]));
  }
  std::string frame =
      '\x08' + Word(picture_.height) + Word(picture_.width) + Byte(picture_.components.size());
  size_t interleaved = 0;
  for (size_t i = 0; i < kComponents; ++i) {
    const Component& c = picture_.components[i];
    frame += {Byte(i + 1), Byte(c.sampling.across << 4 | c.sampling.down), Byte(c.tables)};
    interleaved += c.sampling.across * c.sampling.down;
  }
  out += Segment(kStartOfFrame, frame);
  out += Segment(kDefineHuffman, HuffmanContent());
  if (interleaved <= kMostInterleaved) {
    WriteScan(picture_, 0, kComponents, out);
  } else {
    for (size_t i = 0; i < kComponents; ++i) WriteScan(picture_, i, 1, out);
  }
  out += {'\xFF', kEndOfImage};
  return out;
}

void cJpeg::SaveFile(const std::string& path) const { ReplaceFile(path, FileBytes()); }

}  // namespace sonotik
