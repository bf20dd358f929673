// The pictures of a track's rating: three thumbs, as many of them bright as were given.
#include <QDir>
#include <QImage>
#include <QPainterPath>
#include <stdexcept>

#include "tools/skins/gif_writer.h"
#include "tools/skins/screens.h"

namespace sonotik::skins {
namespace {

constexpr int kThumbs = 3;
constexpr int kThumb = 110;  // pixels a side
constexpr int kWidth = kThumbs * kThumb, kHeight = kThumb;
// On any skin's ground, dark or light.
const QColor kUp(0xFF, 0xB8, 0x4D), kDown(0xFF, 0x6F, 0x61), kNone(0x8A, 0x90, 0xA8);

struct Picture {
  const char* name;
  int rating;
};
constexpr Picture kPictures[] = {{"3thumbsdown", -3}, {"2thumbsdown", -2}, {"1thumbdown", -1},
                                 {"notrated", 0},     {"1thumbup", 1},     {"2thumbsup", 2},
                                 {"3thumbsup", 3}};

// On a field of 24 by 24.
QPainterPath Thumb() {
  QPainterPath hand;
  hand.addRoundedRect(3, 11, 4, 9.5, 1, 1);
  hand.moveTo(8.5, 11.5);
  hand.cubicTo(10.5, 9.5, 11.8, 7.5, 12, 4.6);
  hand.cubicTo(12.3, 3, 14.9, 3.2, 15, 6);
  hand.cubicTo(15, 7.2, 14.6, 8.4, 14.2, 9.5);
  hand.lineTo(19.3, 9.5);
  hand.cubicTo(21.4, 9.5, 21.6, 11.2, 21.2, 12.4);
  hand.lineTo(19.4, 18.8);
  hand.cubicTo(19, 20.1, 18.3, 20.5, 17.3, 20.5);
  hand.lineTo(11, 20.5);
  hand.cubicTo(9.8, 20.5, 9.2, 20, 8.5, 19.5);
  hand.closeSubpath();
  return hand;
}

QImage Drawn(int rating) {
  QImage image(kWidth, kHeight, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  const QColor bright = rating < 0 ? kDown : kUp;
  for (int i = 0; i < kThumbs; ++i) {
    painter.resetTransform();
    painter.translate(kThumb * i + kThumb / 2.0, kThumb / 2.0);
    painter.scale(kThumb / 25.0, (rating < 0 ? -1 : 1) * kThumb / 25.0);
    painter.translate(-12, -12);
    const bool given = i < std::abs(rating);
    // A GIF's edges are sharp: what is half covered is either.
    painter.setPen(QPen(given ? bright : kNone, given ? 0.8 : 1.2));
    painter.setBrush(given ? QBrush(bright) : QBrush(Qt::NoBrush));
    painter.drawPath(Thumb());
  }
  return image;
}

}  // namespace

void DrawThumbs(const QString& folder) {
  if (!QDir().mkpath(folder)) throw std::runtime_error("cannot make " + folder.toStdString());
  for (const Picture& picture : kPictures) {
    const QImage image = Drawn(picture.rating);
    const std::vector<QColor> colors = {kNone, picture.rating < 0 ? kDown : kUp};
    std::vector<uint8_t> pixels;
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < kWidth; ++x) {
        const QRgb pixel = image.pixel(x, y);
        const bool none = (pixel & 0xFFFFFF) == (kNone.rgb() & 0xFFFFFF);
        pixels.push_back(qAlpha(pixel) < 128 ? GifWriter::kTransparent : none ? 1 : 2);
      }
    }
    GifWriter gif(kWidth, kHeight, colors);
    gif.AddFrame(pixels, 100);
    gif.Save(folder + "/" + picture.name + ".gif");
  }
}

}  // namespace sonotik::skins
