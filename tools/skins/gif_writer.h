// Writes GIF89a: frames of palette indexes, index 0 being transparent, played for ever.
#ifndef SONOTIK_TOOLS_SKINS_GIF_WRITER_H_
#define SONOTIK_TOOLS_SKINS_GIF_WRITER_H_

#include <QByteArray>
#include <QColor>
#include <QString>
#include <cstdint>
#include <vector>

namespace sonotik::skins {

class GifWriter {
 public:
  static constexpr uint8_t kTransparent = 0;

  // Colours from index 1, 255 at most.
  GifWriter(int width, int height, const std::vector<QColor>& colors);
  // `delay` in hundredths of a second. The former frame goes before.
  void AddFrame(const std::vector<uint8_t>& pixels, int delay);
  // Throws std::runtime_error if the file can't be written.
  void Save(const QString& path);

 private:
  void Word(int value);
  void AddBlocks(const QByteArray& data);
  QByteArray Compressed(const std::vector<uint8_t>& pixels) const;

  int width_, height_;
  int bits_;  // of an index
  QByteArray bytes_;
};

}  // namespace sonotik::skins

#endif  // SONOTIK_TOOLS_SKINS_GIF_WRITER_H_
