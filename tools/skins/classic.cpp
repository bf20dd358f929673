// Classic: an old cabinet at 1024 x 768. Walnut, chrome, lamp light, and title strips of cream
// paper with a red rule, as they were typed for the machines of the fifties.
#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>

#include "tools/skins/design.h"

namespace sonotik::skins {
namespace {

const QColor kCream(250, 241, 216);
const QColor kPaper(244, 231, 196);
const QColor kPaperInk(44, 26, 16);
const QColor kPaperSoft(112, 82, 56);
const QColor kRed(158, 30, 34);
const QColor kLamp(255, 190, 92);
const QColor kBrown(58, 30, 16);

QColor Alpha(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

QColor Between(const QColor& a, const QColor& b, double share) {
  const auto mix = [share](int x, int y) { return static_cast<int>(x + (y - x) * share); };
  return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()));
}

QLinearGradient Down(const QRectF& r, std::initializer_list<QColor> colors) {
  QLinearGradient gradient(r.topLeft(), r.bottomLeft());
  double at = 0;
  for (const QColor& color : colors) {
    gradient.setColorAt(at, color);
    at = std::min(1.0, at + 1.0 / static_cast<double>(colors.size() - 1));
  }
  return gradient;
}

// As polished metal mirrors a room: bright sky, a dark horizon, and the floor.
QLinearGradient Chrome(const QRectF& r) {
  QLinearGradient gradient(r.topLeft(), r.bottomLeft());
  gradient.setColorAt(0, QColor(255, 255, 255));
  gradient.setColorAt(0.42, QColor(196, 200, 206));
  gradient.setColorAt(0.52, QColor(98, 100, 106));
  gradient.setColorAt(0.62, QColor(150, 152, 156));
  gradient.setColorAt(1, QColor(228, 226, 220));
  return gradient;
}

double Hash(int x, int y) {
  uint32_t h = static_cast<uint32_t>(x) * 374761393U + static_cast<uint32_t>(y) * 668265263U;
  h = (h ^ h >> 13) * 1274126177U;
  return static_cast<double>((h ^ h >> 16) & 0xFFFF) / 65535;
}

double Noise(double x, double y) {
  const int ix = static_cast<int>(std::floor(x)), iy = static_cast<int>(std::floor(y));
  const auto smooth = [](double t) { return t * t * (3 - 2 * t); };
  const double fx = smooth(x - ix), fy = smooth(y - iy);
  const double top = Hash(ix, iy) + (Hash(ix + 1, iy) - Hash(ix, iy)) * fx;
  const double bottom = Hash(ix, iy + 1) + (Hash(ix + 1, iy + 1) - Hash(ix, iy + 1)) * fx;
  return top + (bottom - top) * fy;
}

// Boards of walnut, their grain along the width.
QImage Wood(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  constexpr int kBoard = 256;
  for (int y = 0; y < height; ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    const int board = y / kBoard;
    for (int x = 0; x < width; ++x) {
      const double along = x / 420.0 + board * 17.3;
      const double across = y / 30.0 + board * 5.7;
      const double bend = 2.2 * Noise(along * 1.3, across * 0.35) + 0.5 * Noise(along * 4, across);
      const double ring = 0.5 + 0.5 * std::sin((across * 0.8 + bend * 2.6) * 3.1);
      const double fiber = Noise(x / 90.0, y * 0.9 + board * 31);
      const double pore = Noise(x / 26.0, y * 1.9) > 0.82 ? 0.16 : 0;
      const double tone = 0.30 + 0.34 * ring + 0.26 * fiber - pore;
      const QColor color = Between(QColor(46, 23, 12), QColor(126, 72, 36), tone);
      line[x] = color.rgb();
    }
  }
  QPainter painter(&image);
  for (int y = kBoard; y < height; y += kBoard) {
    painter.fillRect(0, y - 1, width, 1, QColor(20, 9, 4, 190));
    painter.fillRect(0, y, width, 1, QColor(190, 130, 80, 60));
  }
  return image;
}

void Rounded(QPainter& p, const QRectF& r, double radius, const QBrush& fill,
             const QColor& edge = Qt::transparent, double width = 1) {
  p.setPen(edge.alpha() == 0 ? QPen(Qt::NoPen) : QPen(edge, width));
  p.setBrush(fill);
  const double half = edge.alpha() == 0 ? 0 : width / 2;
  p.drawRoundedRect(r.adjusted(half, half, -half, -half), radius, radius);
}

void Shadow(QPainter& p, const QRectF& r, double radius, int reach, int alpha) {
  p.setBrush(Qt::NoBrush);
  for (int i = reach; i > 0; --i) {
    p.setPen(QPen(QColor(0, 0, 0, alpha), 2.0 * i));
    p.drawRoundedRect(r.adjusted(0, 2, 0, 2), radius, radius);
  }
}

// A plate of a button within a rim of chrome.
void Framed(QPainter& p, const QRectF& r, double radius, double rim, const QBrush& face) {
  Rounded(p, r, radius, Chrome(r), QColor(40, 30, 24, 220));
  const QRectF inner = r.adjusted(rim, rim, -rim, -rim);
  Rounded(p, inner, radius - rim * 0.6, face, QColor(30, 16, 8, 200));
  p.setPen(QPen(QColor(255, 255, 255, 70), 1));
  p.drawLine(QPointF(inner.left() + radius, inner.top() + 1.5),
             QPointF(inner.right() - radius, inner.top() + 1.5));
}

class ClassicBrushwork : public Brushwork {
 public:
  void Stage(QPainter& p, const QRectF& whole) const override {
    const QImage wood = Wood(static_cast<int>(whole.width()), static_cast<int>(whole.height()));
    p.drawImage(whole, wood);
    p.fillRect(whole, QColor(24, 9, 4, 118));
    // The lamp in the arch above lights the middle; the corners lie in its shadow.
    QRadialGradient light(QPointF(whole.center().x(), whole.height() * 0.28), whole.width() * 0.62);
    light.setColorAt(0, QColor(255, 176, 84, 74));
    light.setColorAt(0.55, QColor(255, 140, 50, 20));
    light.setColorAt(1, QColor(10, 4, 2, 150));
    p.fillRect(whole, light);
  }

  void Bar(QPainter& p, const QRectF& bar, bool top) const override {
    p.fillRect(bar, Down(bar, {QColor(70, 36, 18, 120), QColor(20, 9, 4, 170)}));
    const double y = top ? bar.bottom() - 7 : bar.top();
    const QRectF rail(bar.left(), y, bar.width(), 7);
    p.fillRect(rail, Chrome(rail));
    p.fillRect(QRectF(bar.left(), top ? rail.bottom() - 1 : rail.top(), bar.width(), 1),
               QColor(20, 10, 6));
  }

  void Plate(QPainter& p, const QRectF& plate) const override {
    Shadow(p, plate, 3, 3, 34);
    Rounded(p, plate, 3, Down(plate, {kCream, kPaper}));
    p.fillRect(QRectF(plate.left(), plate.top() + 3, plate.width(), 1), Alpha(kRed, 170));
    p.fillRect(QRectF(plate.left(), plate.bottom() - 4, plate.width(), 1), Alpha(kRed, 170));
  }

  void Well(QPainter& p, const QRectF& cover) const override {
    const QRectF rim = cover.adjusted(-4, -4, 4, 4);
    Shadow(p, rim, 4, 5, 26);
    Rounded(p, rim, 4, Chrome(rim), QColor(30, 18, 10, 220));
    Rounded(p, cover.adjusted(-1, -1, 1, 1), 1, QColor(30, 14, 8));
  }

  void Card(QPainter& p, const QRectF& card) const override {
    p.fillRect(card, QColor(36, 14, 8, 150));
    for (const double rim : {0.0, 7.0}) {
      p.setBrush(Qt::NoBrush);
      p.setPen(QPen(QColor(20, 9, 5), 1));
      p.drawRect(card.adjusted(rim + 0.5, rim + 0.5, -rim - 0.5, -rim - 0.5));
    }
    QPainterPath ring;
    ring.addRect(card.adjusted(1, 1, -1, -1));
    QPainterPath hole;
    hole.addRect(card.adjusted(7, 7, -7, -7));
    p.fillPath(ring - hole, Chrome(card));
  }

  void Group(QPainter& p, const QRectF& group) const override {
    Rounded(p, group, 6, QColor(18, 7, 3, 150), QColor(255, 206, 140, 46));
  }

  void Entry(QPainter& p, const QRectF& entry) const override {
    const QRectF rim = entry.adjusted(-3, -3, 3, 3);
    Rounded(p, rim, 5, Chrome(rim), QColor(30, 18, 10, 220));
    Rounded(p, entry, 3, Down(entry, {Between(kPaper, kBrown, 0.12), kCream}));
  }

  void Button(QPainter& p, const QRectF& r, Look look) const override {
    switch (look) {
      case Look::kPlain:
        return Framed(p, r, 8, 4, Down(r, {QColor(255, 250, 232), QColor(226, 208, 168)}));
      case Look::kPrimary:
        return Framed(p, r, 8, 4,
                      Down(r, {QColor(255, 226, 150), QColor(255, 190, 84), QColor(232, 142, 44)}));
      case Look::kQuiet:
        return Framed(p, r, 6, 2, Down(r, {QColor(255, 250, 234), QColor(230, 214, 178)}));
      case Look::kDanger:
        return Framed(p, r, 8, 4, Down(r, {QColor(196, 58, 50), QColor(128, 20, 24)}));
      case Look::kBack:
        return Framed(p, r, 8, 4, Down(r, {QColor(255, 226, 150), QColor(248, 184, 84)}));
      case Look::kTab:
        return Framed(p, r, 8, 3, Down(r, {QColor(150, 40, 38), QColor(96, 16, 20)}));
      case Look::kMenu:
        return Framed(p, r, 8, 3, Down(r, {QColor(92, 48, 24), QColor(52, 24, 12)}));
      case Look::kPlayer:
        return Framed(p, r, 10, 4, Down(r, {QColor(255, 250, 232), QColor(214, 194, 152)}));
    }
  }

  void Frame(QPainter& p, const QRectF& frame, double edge) const override {
    QPainterPath ring;
    ring.addRoundedRect(frame, 4, 4);
    QPainterPath hole;
    hole.addRect(frame.adjusted(edge, edge, -edge, -edge));
    p.fillPath(ring - hole, Chrome(frame));
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(24, 12, 6, 220), 1));
    p.drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    p.drawRect(frame.adjusted(edge - 0.5, edge - 0.5, 0.5 - edge, 0.5 - edge));
  }

  void Groove(QPainter& p, const QRectF& track) const override {
    const QRectF line(track.left() + 4, track.center().y() - 4, track.width() - 8, 8);
    Rounded(p, line.adjusted(-2, -2, 2, 2), 6, Chrome(line));
    Rounded(p, line, 4, QColor(22, 10, 6));
    for (int i = 0; i <= 10; ++i) {
      const double x = line.left() + 4 + (line.width() - 8) * i / 10;
      p.fillRect(QRectF(x - 0.5, line.top() - 10, 1, i % 5 == 0 ? 7 : 4), Alpha(kLamp, 200));
    }
  }

  void Thumb(QPainter& p, const QRectF& thumb) const override {
    p.fillRect(thumb, QColor(36, 18, 10));
    const QRectF cap = thumb.adjusted(1, 1, -1, -1);
    QLinearGradient across(cap.topLeft(), cap.topRight());
    across.setColorAt(0, QColor(250, 250, 250));
    across.setColorAt(0.45, QColor(150, 152, 158));
    across.setColorAt(0.55, QColor(90, 92, 98));
    across.setColorAt(1, QColor(220, 218, 212));
    p.fillRect(cap, across);
  }
};

}  // namespace

const Design& Classic() {
  static const ClassicBrushwork brushwork;
  static const QColor stage(255, 240, 210);
  static const Design design = {
      .name = "Classic",
      .width = 1024,
      .height = 768,
      .menu_height = 72,
      .player_height = 96,
      .margin = 16,
      .gap = 6,
      .button_height = 48,
      .tab_height = 48,
      .side = 176,
      .picture_gap = 8,
      .face = "Cabin",
      .button_face = "Cabin",
      .points = {10, 13, 15, 19, 26, 12, 10, 15},
      .inks = {stage, QColor(226, 196, 152), kLamp, kPaperInk, kPaperSoft, kRed,
               QColor(255, 150, 110)},
      .buttons = {ButtonInk{kPaperInk, kPaperInk},
                  {kPaperInk, kPaperInk},
                  {kPaperInk, kPaperInk},
                  {stage, stage},
                  {kPaperInk, kPaperInk},
                  {stage, stage},
                  {stage, kLamp},
                  {kPaperInk, kPaperInk}},
      .highlight = kLamp,
      .title_highlight = QColor(150, 84, 30),
      .panel = QColor(60, 32, 18),
      .dark = QColor(44, 22, 12),
      .pages = {{"4 covers", 4, 1, true, true, 26, 22},
                {"12 covers", 6, 2, true, true, 22, 20},
                {"24 covers", 8, 3, false, false, 17, 15}},
      .brushwork = &brushwork,
  };
  return design;
}

}  // namespace sonotik::skins
