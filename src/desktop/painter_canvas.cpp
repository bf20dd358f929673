#include "desktop/painter_canvas.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPolygonF>
#include <cmath>

#include "desktop/text_decoding.h"

namespace sonotik {
namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr double kMostPixels = 4096;   // of a picture's longer side
constexpr double kLeastLetters = 0.7;  // of a text that doesn't fit its place
// A picture that can't be decoded.
constexpr Color kPlate = Rgb(48, 52, 70);

QColor ColorOf(Color color, int alpha = 255) {
  color = ShownColor(color);
  return QColor(static_cast<int>(color & 255), static_cast<int>(color >> 8 & 255),
                static_cast<int>(color >> 16 & 255), alpha);
}

QBrush BrushOf(const Brush& brush) {
  const QColor from = ColorOf(brush.from, brush.from_alpha);
  const QColor to = ColorOf(brush.to, brush.to_alpha);
  if (from == to) return from;
  QLinearGradient gradient(brush.start.x, brush.start.y, brush.end.x, brush.end.y);
  gradient.setColorAt(0, from);
  gradient.setColorAt(1, to);
  return gradient;
}

QPolygonF PolygonOf(std::span<const Point> corners) {
  QPolygonF polygon;
  polygon.reserve(static_cast<qsizetype>(corners.size()));
  for (const Point& corner : corners) polygon << QPointF(corner.x, corner.y);
  return polygon;
}

QRectF RectOf(const Rect& rect) { return {rect.left, rect.top, rect.width, rect.height}; }

QFont FontOf(const Font& font) {
  QFont made(Decode(font.family));
  made.setPixelSize(std::max(1, static_cast<int>(std::lround(font.points * kPixelsPerPoint))));
  made.setBold(font.bold);
  return made;
}

// A text as it can be shown in a place.
struct FittedText {
  QFont font;
  QString text;
};

bool Fits(const FittedText& fitted, const QSizeF& room, int flags) {
  const QFontMetricsF metrics(fitted.font);
  const QRectF needed = metrics.boundingRect(QRectF(0, 0, room.width(), 1e6), flags, fitted.text);
  // A place may be as low as its letters: what hangs below the last line has air to hang into.
  return needed.width() <= room.width() + 1 && needed.height() - metrics.descent() <= room.height();
}

FittedText Fit(FittedText fitted, const QSizeF& room, int flags) {
  const int least = static_cast<int>(std::ceil(fitted.font.pixelSize() * kLeastLetters));
  bool fits = Fits(fitted, room, flags);
  while (!fits && fitted.font.pixelSize() > least) {
    fitted.font.setPixelSize(fitted.font.pixelSize() - 1);
    fits = Fits(fitted, room, flags);
  }
  if ((flags & Qt::TextWordWrap) == 0 && !fitted.text.contains(QLatin1Char('\n'))) {
    fitted.text = QFontMetricsF(fitted.font).elidedText(fitted.text, Qt::ElideRight, room.width());
    return fitted;
  }
  // The toolkit shortens single lines only.
  while (!fits && fitted.text.size() > 2) {
    fitted.text = fitted.text.left((fitted.text.size() - 1) * 9 / 10) + QChar(0x2026);
    fits = Fits(fitted, room, flags);
  }
  return fitted;
}

int FlagsOf(const TextStyle& style) {
  const int align = style.align == Align::kLeft    ? Qt::AlignLeft
                    : style.align == Align::kRight ? Qt::AlignRight
                                                   : Qt::AlignHCenter;
  return align | Qt::AlignVCenter | (style.wrap ? Qt::TextWordWrap : 0);
}

}  // namespace

PainterCanvas::PainterCanvas(QPainter& painter, PictureCache& pictures, const Rect& visible,
                             double scale)
    : painter_(painter), pictures_(pictures), scale_(scale), visible_{visible} {
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setRenderHint(QPainter::SmoothPixmapTransform);
}

void PainterCanvas::Push(const Rect& place) {
  painter_.save();
  painter_.setClipRect(RectOf(place), Qt::IntersectClip);
  painter_.translate(place.left, place.top);
  visible_.push_back(visible_.back().Intersected(place).MovedBy(-place.left, -place.top));
}

void PainterCanvas::Pop() {
  painter_.restore();
  visible_.pop_back();
}

void PainterCanvas::Fill(const Rect& rect, const QBrush& brush, float radius) {
  if (radius <= 0) return painter_.fillRect(RectOf(rect), brush);
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(brush);
  painter_.drawRoundedRect(RectOf(rect), radius, radius);
}

void PainterCanvas::FillRect(const Rect& rect, Color color, float radius) {
  Fill(rect, ColorOf(color), radius);
}

void PainterCanvas::FillGradient(const Rect& rect, Color top, Color bottom, float radius) {
  QLinearGradient gradient(0, rect.top, 0, rect.bottom());
  gradient.setColorAt(0, ColorOf(top));
  gradient.setColorAt(1, ColorOf(bottom));
  Fill(rect, gradient, radius);
}

void PainterCanvas::DrawRect(const Rect& rect, Color color, float width, float radius) {
  painter_.setBrush(Qt::NoBrush);
  painter_.setPen(QPen(ColorOf(color), width));
  painter_.drawRoundedRect(RectOf(rect.Inset(width / 2)), radius, radius);
}

void PainterCanvas::FillPolygon(std::span<const Point> corners, const Brush& brush) {
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(BrushOf(brush));
  painter_.drawPolygon(PolygonOf(corners));
}

void PainterCanvas::DrawPolygon(std::span<const Point> corners, const Brush& brush, float width) {
  painter_.setBrush(Qt::NoBrush);
  painter_.setPen(QPen(BrushOf(brush), width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  painter_.drawPolygon(PolygonOf(corners));
}

void PainterCanvas::DrawPicture(const std::string& path, const Rect& rect, PictureFit fit) {
  // A skin may give a place of any size: no more is decoded than a screen can show.
  const double longest = std::max(rect.width, rect.height) * scale_;
  const double scale = longest > kMostPixels ? scale_ * kMostPixels / longest : scale_;
  const QSize pixels(static_cast<int>(std::lround(rect.width * scale)),
                     static_cast<int>(std::lround(rect.height * scale)));
  if (pixels.isEmpty()) return;
  const QImage& image = pictures_.Get(path, pixels, fit);
  if (image.isNull()) return FillRect(rect, kPlate, 0);
  // Centred: a picture that is contained may be smaller than its place.
  const double width = image.width() / scale;
  const double height = image.height() / scale;
  painter_.drawImage(QRectF(rect.left + (rect.width - width) / 2,
                            rect.top + (rect.height - height) / 2, width, height),
                     image);
}

void PainterCanvas::DrawPixels(const PixelSurface& pixels, const Rect& rect) {
  const QImage image(pixels.bytes.data(), pixels.width, pixels.height, pixels.stride,
                     pixels.has_alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
  painter_.drawImage(RectOf(rect), image);
}

void PainterCanvas::DrawText(const std::string& text, const Rect& rect, const TextStyle& style) {
  const int flags = FlagsOf(style);
  const FittedText fitted = Fit({FontOf(style.font), Decode(text)}, RectOf(rect).size(), flags);
  painter_.setFont(fitted.font);
  painter_.setPen(ColorOf(style.color));
  painter_.drawText(RectOf(rect), flags, fitted.text);
}

Rect PainterCanvas::MeasureText(const std::string& text, const TextStyle& style, float width) {
  const QRectF bounds = QFontMetricsF(FontOf(style.font))
                            .boundingRect(QRectF(0, 0, width, 1e6), FlagsOf(style), Decode(text));
  return {0, 0, static_cast<float>(bounds.width()), static_cast<float>(bounds.height())};
}

}  // namespace sonotik
