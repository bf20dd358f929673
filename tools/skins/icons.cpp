// The icons, drawn on a field of 24 by 24 with strokes of one width.
#include <QPainterPath>
#include <QPen>

#include "tools/skins/design.h"

namespace sonotik::skins {
namespace {

class Pencil {
 public:
  Pencil(QPainter& painter, const QColor& color) : p_(painter) {
    pen_ = QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    fill_ = color;
  }
  void Line(std::initializer_list<QPointF> points) {
    p_.setPen(pen_);
    p_.setBrush(Qt::NoBrush);
    p_.drawPolyline(points.begin(), static_cast<int>(points.size()));
  }
  void Shape(std::initializer_list<QPointF> points) {
    p_.setPen(pen_);
    p_.setBrush(fill_);
    p_.drawPolygon(points.begin(), static_cast<int>(points.size()));
  }
  void Ring(QPointF center, double radius) {
    p_.setPen(pen_);
    p_.setBrush(Qt::NoBrush);
    p_.drawEllipse(center, radius, radius);
  }
  void Disc(QPointF center, double across, double down) {
    p_.setPen(Qt::NoPen);
    p_.setBrush(fill_);
    p_.drawEllipse(center, across, down);
  }
  void Box(const QRectF& box, double radius, bool filled = false) {
    p_.setPen(pen_);
    p_.setBrush(filled ? QBrush(fill_) : QBrush(Qt::NoBrush));
    p_.drawRoundedRect(box, radius, radius);
  }
  void Arc(const QRectF& box, int from, int degrees) {
    p_.setPen(pen_);
    p_.setBrush(Qt::NoBrush);
    p_.drawArc(box, from * 16, degrees * 16);
  }

 private:
  QPainter& p_;
  QPen pen_;
  QColor fill_;
};

void Speaker(Pencil& pencil) {
  pencil.Shape({{3, 9.5}, {6.5, 9.5}, {11, 5.5}, {11, 18.5}, {6.5, 14.5}, {3, 14.5}});
}

}  // namespace

void PaintIcon(QPainter& painter, Icon icon, const QRectF& place, const QColor& color) {
  painter.save();
  painter.translate(place.topLeft());
  painter.scale(place.width() / 24, place.height() / 24);
  Pencil pencil(painter, color);
  switch (icon) {
    case Icon::kNone:
      break;
    case Icon::kAlbums:
      for (const double x : {3.0, 14.0}) {
        for (const double y : {3.0, 14.0}) pencil.Box({x, y, 7, 7}, 1);
      }
      break;
    case Icon::kQueue:
      for (const double y : {6.0, 12.0}) pencil.Line({{3, y}, {14, y}});
      pencil.Line({{3, 18}, {10, 18}});
      pencil.Line({{19, 17.5}, {19, 6}, {22, 8.5}});
      pencil.Disc({16.8, 17.8}, 3, 2.4);
      break;
    case Icon::kCarousel:
      pencil.Box({7, 3, 10, 18}, 1);
      pencil.Line({{3.5, 6}, {3.5, 18}});
      pencil.Line({{20.5, 6}, {20.5, 18}});
      break;
    case Icon::kSearch:
      pencil.Ring({10.5, 10.5}, 6.5);
      pencil.Line({{15.5, 15.5}, {21, 21}});
      break;
    case Icon::kGenres:
      pencil.Line({{9, 18}, {9, 5}, {20, 3}, {20, 16}});
      pencil.Disc({6.5, 18}, 3.4, 2.8);
      pencil.Disc({17.5, 16}, 3.4, 2.8);
      break;
    case Icon::kDecades:
      pencil.Box({3, 5, 18, 16}, 2);
      pencil.Line({{3, 10}, {21, 10}});
      pencil.Line({{8, 2.5}, {8, 6}});
      pencil.Line({{16, 2.5}, {16, 6}});
      break;
    case Icon::kTop20:
      pencil.Line({{4, 20}, {4, 13}});
      pencil.Line({{12, 20}, {12, 4}});
      pencil.Line({{20, 20}, {20, 9}});
      break;
    case Icon::kHistory:
      pencil.Arc({3, 3, 18, 18}, -160, 320);
      pencil.Line({{12, 7}, {12, 12}, {15.5, 14}});
      pencil.Line({{2.5, 10}, {4, 14.5}, {8, 12.5}});
      break;
    case Icon::kOptions:
      for (int i = 0; i < 3; ++i) {
        const double y = 6 + 6 * i, knob = i == 1 ? 16 : 8;
        pencil.Line({{3, y}, {21, y}});
        pencil.Disc({knob, y}, 2.9, 2.9);
      }
      break;
    case Icon::kRestart:
      pencil.Shape({{19, 6}, {19, 18}, {9, 12}});
      pencil.Line({{5, 6}, {5, 18}});
      break;
    case Icon::kPause:
      pencil.Box({6.5, 5.5, 2.5, 13}, 0.5, true);
      pencil.Box({15, 5.5, 2.5, 13}, 0.5, true);
      break;
    case Icon::kNext:
      pencil.Shape({{5, 6}, {5, 18}, {15, 12}});
      pencil.Line({{19, 6}, {19, 18}});
      break;
    case Icon::kVolumeDown:
      Speaker(pencil);
      pencil.Line({{15.5, 12}, {21, 12}});
      break;
    case Icon::kVolumeUp:
      Speaker(pencil);
      pencil.Line({{15, 12}, {21.5, 12}});
      pencil.Line({{18.25, 8.75}, {18.25, 15.25}});
      break;
    case Icon::kUp:
      pencil.Line({{5, 15}, {12, 8}, {19, 15}});
      break;
    case Icon::kDown:
      pencil.Line({{5, 9}, {12, 16}, {19, 9}});
      break;
    case Icon::kLeft:
      pencil.Line({{15, 4}, {7.5, 12}, {15, 20}});
      break;
    case Icon::kRight:
      pencil.Line({{9, 4}, {16.5, 12}, {9, 20}});
      break;
    case Icon::kBackspace:
      pencil.Line({{8, 5}, {21, 5}, {21, 19}, {8, 19}, {2.5, 12}, {8, 5}});
      pencil.Line({{11, 9}, {17, 15}});
      pencil.Line({{17, 9}, {11, 15}});
      break;
  }
  painter.restore();
}

}  // namespace sonotik::skins
