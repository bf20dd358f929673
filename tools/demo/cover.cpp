#include "tools/demo/cover.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QStringList>
#include <algorithm>

namespace sonotik::demo {
namespace {

QFont FontOf(Face face, bool bold) {
  static const char* kFamilies[] = {"DejaVu Sans", "DejaVu Serif", "DejaVu Sans Mono"};
  QFont font(kFamilies[static_cast<int>(face)]);
  font.setPixelSize(100);  // outlines are scaled from this size
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setLetterSpacing(QFont::AbsoluteSpacing, bold ? -2 : 0);
  return font;
}

// How far 100-unit outlines of these lines can be scaled to fit the box.
double ScaleFor(const QStringList& lines, const QFontMetricsF& metrics, const QRectF& box,
                double leading) {
  double width = 1;
  for (const QString& line : lines) width = std::max(width, metrics.horizontalAdvance(line));
  const double height = metrics.capHeight() + leading * static_cast<double>(lines.size() - 1);
  return std::min(box.width() / width, box.height() / height);
}

// Print on board is never quite even; a little grain keeps flat colours from looking like a slide.
void AddGrain(QImage& image, Random& random) {
  for (int y = 0; y < image.height(); ++y) {
    auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const int grain = random.Below(9) - 4;
      const auto shift = [&](int value) { return std::clamp(value + grain, 0, 255); };
      pixels[x] = qRgb(shift(qRed(pixels[x])), shift(qGreen(pixels[x])), shift(qBlue(pixels[x])));
    }
  }
}

}  // namespace

void DrawFitted(QPainter& painter, const QString& text, Face face, bool bold, const QRectF& box,
                Qt::Alignment align, const QColor& colour) {
  const QFont font = FontOf(face, bold);
  const QFontMetricsF metrics(font);
  const double leading = 92;
  QStringList best{text}, broken;
  double narrowest = 1e9;
  for (qsizetype at = text.indexOf(' '); at > 0; at = text.indexOf(' ', at + 1)) {
    const QString first = text.left(at), second = text.mid(at + 1);
    const double width =
        std::max(metrics.horizontalAdvance(first), metrics.horizontalAdvance(second));
    if (width < narrowest) {
      narrowest = width;
      broken = {first, second};
    }
  }
  double scale = ScaleFor(best, metrics, box, leading);
  if (!broken.isEmpty() && ScaleFor(broken, metrics, box, leading) > scale * 1.1) {
    best = broken;
    scale = ScaleFor(best, metrics, box, leading);
  }
  const double height =
      (metrics.capHeight() + leading * static_cast<double>(best.size() - 1)) * scale;
  double y = align & Qt::AlignBottom    ? box.bottom() - height
             : align & Qt::AlignVCenter ? box.center().y() - height / 2
                                        : box.top();
  y += metrics.capHeight() * scale;
  for (const QString& line : best) {
    QPainterPath path;
    path.addText(0, 0, font, line);
    const double width = metrics.horizontalAdvance(line) * scale;
    const double x = align & Qt::AlignRight     ? box.right() - width
                     : align & Qt::AlignHCenter ? box.center().x() - width / 2
                                                : box.left();
    painter.save();
    painter.translate(x, y);
    painter.scale(scale, scale);
    painter.fillPath(path, colour);
    painter.restore();
    y += leading * scale;
  }
}

QImage PaintCover(const Cover& cover, const QString& artist, const QString& title, uint64_t seed) {
  QImage image(kCoverSize, kCoverSize, QImage::Format_RGB32);
  image.fill(cover.colours[0]);
  Random random(seed);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.save();
  cover.motif(painter, cover.colours, random);
  painter.restore();
  const auto set = [&](const TextBox& place, const QString& text, bool bold) {
    DrawFitted(painter, place.capitals ? text.toUpper() : text, cover.face, bold, place.box,
               place.align, cover.colours[place.colour]);
  };
  set(cover.title, title, true);
  set(cover.artist, artist, true);
  painter.end();
  AddGrain(image, random);
  return image;
}

}  // namespace sonotik::demo
