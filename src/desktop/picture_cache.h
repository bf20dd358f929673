// Pictures from files, decoded at the size at which they show.
#ifndef SONOTIK_DESKTOP_PICTURE_CACHE_H_
#define SONOTIK_DESKTOP_PICTURE_CACHE_H_

#include <QImage>
#include <cstdint>
#include <list>
#include <map>
#include <string>
#include <tuple>

#include "widgets/canvas.h"
#include "widgets/picture_source.h"

namespace sonotik {

// Keeps what was decoded, the least used going first, as long as file, size and time of change are
// the same.
class PictureCache : public PictureSource {
 public:
  explicit PictureCache(int64_t most_bytes = int64_t{96} << 20) : most_bytes_(most_bytes) {}

  // The picture for a place of this many pixels: filling it for kStretch, kCover and kReflection,
  // within it for kContain. A null image for a file that can't be decoded.
  const QImage& Get(const std::string& path, QSize size, PictureFit fit);

  // What controls ask of a picture; kept by them, not here.
  std::optional<Rect> SizeOf(const std::string& path) override;
  std::optional<PixelSurface> Pixels(const std::string& path, int most_side) override;
  std::optional<std::string> Bytes(const std::string& path) override;

  int64_t bytes() const { return bytes_; }
  int decodes() const { return decodes_; }

 private:
  using Key = std::tuple<std::string, int, int, PictureFit>;
  struct Entry {
    QImage image;
    int64_t file_size = 0;
    int64_t changed = 0;
    std::list<Key>::iterator use;
  };

  void Forget(const std::map<Key, Entry>::iterator& entry);

  int64_t most_bytes_;
  int64_t bytes_ = 0;
  int decodes_ = 0;
  std::map<Key, Entry> entries_;
  std::list<Key> uses_;  // the least used first
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_PICTURE_CACHE_H_
