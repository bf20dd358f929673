#include "tools/skins/gif_writer.h"

#include <QFile>
#include <map>
#include <stdexcept>

namespace sonotik::skins {
namespace {

constexpr int kMostCodes = 4096;

// Codes of changing length, the lowest bit first.
class BitWriter {
 public:
  void Write(int code, int bits) {
    hold_ |= static_cast<uint32_t>(code) << held_;
    held_ += bits;
    while (held_ >= 8) {
      bytes_.append(static_cast<char>(hold_ & 255));
      hold_ >>= 8;
      held_ -= 8;
    }
  }
  QByteArray Finish() {
    if (held_ > 0) bytes_.append(static_cast<char>(hold_ & 255));
    return bytes_;
  }

 private:
  QByteArray bytes_;
  uint32_t hold_ = 0;
  int held_ = 0;
};

}  // namespace

GifWriter::GifWriter(int width, int height, const std::vector<QColor>& colors)
    : width_(width), height_(height), bits_(2) {
  while ((size_t{1} << bits_) < colors.size() + 1) ++bits_;
  bytes_ = "GIF89a";
  Word(width);
  Word(height);
  bytes_.append(static_cast<char>(0xF0 | (bits_ - 1)));
  bytes_.append(2, '\0');
  bytes_.append(3, '\0');
  for (size_t i = 1; i < size_t{1} << bits_; ++i) {
    const QColor color = i <= colors.size() ? colors[i - 1] : QColor(0, 0, 0);
    for (const int part : {color.red(), color.green(), color.blue()}) {
      bytes_.append(static_cast<char>(part));
    }
  }
  bytes_.append("\x21\xFF\x0BNETSCAPE2.0\x03\x01\x00\x00\x00", 19);
}

void GifWriter::Word(int value) {
  bytes_.append(static_cast<char>(value & 255));
  bytes_.append(static_cast<char>(value >> 8));
}

void GifWriter::AddFrame(const std::vector<uint8_t>& pixels, int delay) {
  // Cleared behind itself, and with a transparent index.
  bytes_.append("\x21\xF9\x04\x09", 4);
  Word(delay);
  bytes_.append(2, '\0');
  bytes_.append('\x2C');
  Word(0);
  Word(0);
  Word(width_);
  Word(height_);
  bytes_.append('\0');
  bytes_.append(static_cast<char>(bits_));
  AddBlocks(Compressed(pixels));
}

QByteArray GifWriter::Compressed(const std::vector<uint8_t>& pixels) const {
  const int clear = 1 << bits_, end = clear + 1;
  BitWriter out;
  std::map<std::pair<int, int>, int> table;  // a code and the index behind it
  int bits = bits_ + 1, next = end + 1;
  out.Write(clear, bits);
  int code = pixels.front();
  for (size_t i = 1; i < pixels.size(); ++i) {
    const auto known = table.find({code, pixels[i]});
    if (known != table.end()) {
      code = known->second;
      continue;
    }
    out.Write(code, bits);
    if (next < kMostCodes) {
      if (next == 1 << bits) ++bits;
      table[{code, pixels[i]}] = next++;
    } else {
      out.Write(clear, bits);
      table.clear();
      bits = bits_ + 1;
      next = end + 1;
    }
    code = pixels[i];
  }
  out.Write(code, bits);
  if (next == 1 << bits && bits < 12) ++bits;
  out.Write(end, bits);
  return out.Finish();
}

void GifWriter::AddBlocks(const QByteArray& data) {
  for (qsizetype at = 0; at < data.size(); at += 255) {
    const QByteArray block = data.mid(at, 255);
    bytes_.append(static_cast<char>(block.size()));
    bytes_.append(block);
  }
  bytes_.append('\0');
}

void GifWriter::Save(const QString& path) {
  QFile file(path);
  const QByteArray whole = bytes_ + '\x3B';
  if (!file.open(QIODevice::WriteOnly) || file.write(whole) != whole.size() || !file.flush()) {
    throw std::runtime_error("cannot write " + path.toStdString());
  }
}

}  // namespace sonotik::skins
