// What lies behind the path of a picture, for the controls that look into it: a button that is cut
// out of its picture, a slider as large as its track, an animation.
#ifndef SONOTIK_WIDGETS_PICTURE_SOURCE_H_
#define SONOTIK_WIDGETS_PICTURE_SOURCE_H_

#include <optional>
#include <string>

#include "widgets/canvas.h"

namespace sonotik {

class PictureSource {
 public:
  virtual ~PictureSource() = default;
  // The picture's own size in pixels, looked up in its head; nothing if it is no picture.
  virtual std::optional<Rect> SizeOf(const std::string& path) = 0;
  // Its pixels with their alpha. A picture that is longer than `most_side` comes scaled down to
  // that, its ratio kept; nothing if it can't be decoded.
  virtual std::optional<PixelSurface> Pixels(const std::string& path, int most_side) = 0;
  // The file as it is; nothing if it can't be read.
  virtual std::optional<std::string> Bytes(const std::string& path) = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_PICTURE_SOURCE_H_
