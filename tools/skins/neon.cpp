// Neon: a modern club at 1920 x 1080. Nearly black, with a cyan for what one can do and a pink for
// what just happens; only these two are lit.
#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>

#include "tools/skins/design.h"

namespace sonotik::skins {
namespace {

const QColor kDeep(8, 10, 20);
const QColor kNavy(14, 18, 34);
const QColor kSurface(20, 26, 46);
const QColor kRaised(30, 38, 64);
const QColor kEdge(48, 60, 96);
const QColor kWhite(243, 246, 255);
const QColor kSoft(160, 172, 204);
const QColor kCyan(56, 214, 246);
const QColor kPink(255, 92, 168);
const QColor kInk(4, 20, 30);

QColor Alpha(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

QLinearGradient Down(const QRectF& r, const QColor& top, const QColor& bottom) {
  QLinearGradient gradient(r.topLeft(), r.bottomLeft());
  gradient.setColorAt(0, top);
  gradient.setColorAt(1, bottom);
  return gradient;
}

void Rounded(QPainter& p, const QRectF& r, double radius, const QBrush& fill, const QColor& edge,
             double width = 1) {
  p.setPen(edge.alpha() == 0 ? QPen(Qt::NoPen) : QPen(edge, width));
  p.setBrush(fill);
  p.drawRoundedRect(r.adjusted(width / 2, width / 2, -width / 2, -width / 2), radius, radius);
}

class NeonBrushwork : public Brushwork {
 public:
  void Stage(QPainter& p, const QRectF& whole) const override {
    p.fillRect(whole, Down(whole, QColor(13, 17, 33), kDeep));
    const auto haze = [&](double x, double y, double radius, const QColor& color, int alpha) {
      QRadialGradient gradient(QPointF(whole.width() * x, whole.height() * y), radius);
      gradient.setColorAt(0, Alpha(color, alpha));
      gradient.setColorAt(0.5, Alpha(color, alpha / 4));
      gradient.setColorAt(1, Alpha(color, 0));
      p.fillRect(whole, gradient);
    };
    haze(0.04, 1.02, whole.width() * 0.55, kCyan, 46);
    haze(0.97, -0.05, whole.width() * 0.52, kPink, 38);
  }

  void Bar(QPainter& p, const QRectF& bar, bool top) const override {
    p.fillRect(bar, Down(bar, Alpha(QColor(10, 13, 26), 235), Alpha(QColor(6, 8, 17), 245)));
    const double y = top ? bar.bottom() - 1 : bar.top();
    QLinearGradient line(bar.left(), 0, bar.right(), 0);
    line.setColorAt(0, Alpha(kCyan, 200));
    line.setColorAt(0.5, Alpha(kEdge, 120));
    line.setColorAt(1, Alpha(kPink, 200));
    p.fillRect(QRectF(bar.left(), y, bar.width(), 1), line);
  }

  void Plate(QPainter& p, const QRectF& plate) const override {
    Rounded(p, plate, 8, Alpha(kSurface, 190), Alpha(kEdge, 70));
  }

  void Well(QPainter& p, const QRectF& cover) const override {
    p.setBrush(Qt::NoBrush);
    for (int i = 14; i > 0; --i) {
      p.setPen(QPen(QColor(0, 0, 0, 9), 2.0 * i));
      p.drawRoundedRect(cover.adjusted(0, 4, 0, 4), 4, 4);
    }
    Rounded(p, cover.adjusted(-1, -1, 1, 1), 4, kNavy, Alpha(kEdge, 120));
  }

  void Card(QPainter& p, const QRectF& card) const override {
    p.fillRect(card, Down(card, QColor(22, 28, 50), QColor(13, 17, 33)));
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Alpha(kCyan, 150), 2));
    p.drawRect(card.adjusted(1, 1, -1, -1));
  }

  void Group(QPainter& p, const QRectF& group) const override {
    Rounded(p, group, 12, Alpha(QColor(10, 13, 26), 150), Alpha(kEdge, 60));
  }

  void Entry(QPainter& p, const QRectF& entry) const override {
    Rounded(p, entry, 10, QColor(6, 8, 17), Alpha(kCyan, 190), 2);
  }

  void Button(QPainter& p, const QRectF& r, Look look) const override {
    switch (look) {
      case Look::kPlain:
        return Rounded(p, r, 12, Down(r, QColor(38, 47, 78), QColor(27, 34, 58)), kEdge, 1.5);
      case Look::kPrimary:
        return Rounded(p, r, 12, Down(r, QColor(84, 226, 252), QColor(34, 190, 226)),
                       Alpha(kWhite, 90), 1.5);
      case Look::kQuiet:
        return Rounded(p, r, 10, Down(r, QColor(28, 35, 60), QColor(22, 28, 48)),
                       Alpha(kEdge, 150));
      case Look::kDanger:
        return Rounded(p, r, 12, Down(r, QColor(52, 28, 52), QColor(38, 21, 40)), Alpha(kPink, 170),
                       1.5);
      case Look::kBack:
        return Rounded(p, r, 12, Down(r, QColor(18, 52, 74), QColor(13, 36, 54)), Alpha(kCyan, 200),
                       2);
      case Look::kTab:
        return Rounded(p, r, r.height() / 2, Down(r, QColor(30, 38, 64), QColor(24, 30, 52)), kEdge,
                       1.5);
      case Look::kMenu:
        return Rounded(p, r, 12, Alpha(kRaised, 90), Alpha(kEdge, 60));
      case Look::kPlayer:
        return Rounded(p, r, 14, Down(r, kRaised, kSurface), kEdge, 1.5);
    }
  }

  void Frame(QPainter& p, const QRectF& frame, double edge) const override {
    const QRectF cover = frame.adjusted(edge, edge, -edge, -edge);
    QPainterPath ring;
    ring.addRoundedRect(frame, edge + 3, edge + 3);
    QPainterPath hole;
    hole.addRoundedRect(cover, 3, 3);
    p.fillPath(ring - hole, Alpha(QColor(4, 6, 14), 150));
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Alpha(kWhite, 60), 1));
    p.drawRoundedRect(cover.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
  }

  void Groove(QPainter& p, const QRectF& track) const override {
    const QRectF line(track.left() + 8, track.center().y() - 5, track.width() - 16, 10);
    Rounded(p, line, 5, QColor(4, 6, 14), Alpha(kEdge, 200));
    // How loud it gets, as a rising wedge of ticks.
    for (int i = 0; i <= 20; ++i) {
      const double x = line.left() + 6 + (line.width() - 12) * i / 20;
      const double height = 2 + 9.0 * i / 20;
      p.fillRect(QRectF(x - 1, line.top() - 6 - height, 2, height),
                 Alpha(i < 16 ? kCyan : kPink, 60 + 7 * i));
    }
  }

  void Thumb(QPainter& p, const QRectF& thumb) const override {
    p.fillRect(thumb, Down(thumb, QColor(245, 249, 255), QColor(170, 186, 216)));
    p.fillRect(QRectF(thumb.center().x() - 1.5, thumb.top() + 8, 3, thumb.height() - 16), kCyan);
  }
};

}  // namespace

const Design& Neon() {
  static const NeonBrushwork brushwork;
  static const Design design = {
      .name = "Neon",
      .width = 1920,
      .height = 1080,
      .menu_height = 104,
      .player_height = 128,
      .margin = 24,
      .gap = 8,
      .button_height = 72,
      .tab_height = 64,
      .side = 320,
      .picture_gap = 8,
      .face = "Inter",
      .button_face = "Inter Medium",
      .points = {15, 18, 21, 26, 36, 17, 15, 21},
      .inks = {kWhite, kSoft, kCyan, kWhite, kSoft, kCyan, QColor(255, 122, 184)},
      .buttons = {ButtonInk{kWhite, kWhite},
                  {kInk, kInk},
                  {kWhite, kCyan},
                  {QColor(255, 176, 212), kPink},
                  {kWhite, kCyan},
                  {kWhite, kWhite},
                  {kWhite, kCyan},
                  {kWhite, kWhite}},
      .highlight = QColor(16, 92, 122),
      .title_highlight = QColor(16, 92, 122),
      .panel = QColor(20, 26, 46),
      .dark = kNavy,
      .pages = {{"4 covers", 4, 1, true, true, 48, 38},
                {"12 covers", 6, 2, false, true, 34, 30},
                {"30 covers", 10, 3, false, false, 24, 22}},
      .brushwork = &brushwork,
  };
  return design;
}

}  // namespace sonotik::skins
