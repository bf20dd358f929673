#include "desktop/drawn_pixels.h"

#include <QImage>
#include <QPainter>

#include "desktop/painter_canvas.h"

namespace sonotik {

PixelSurface DrawnPixels(const Panel& panel, PictureCache& pictures) {
  const Rect size{0, 0, panel.place().width, panel.place().height};
  QImage image(static_cast<int>(size.width), static_cast<int>(size.height), QImage::Format_RGB32);
  QPainter painter(&image);
  PainterCanvas canvas(painter, pictures, size, 1);
  panel.Paint(canvas);
  painter.end();
  return {image.width(),
          image.height(),
          static_cast<int>(image.bytesPerLine()),
          {image.constBits(), image.constBits() + image.sizeInBytes()}};
}

}  // namespace sonotik
