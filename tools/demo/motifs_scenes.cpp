// The motifs that are places: water, hills, roads and weather.
#include <cmath>

#include "tools/demo/brush.h"
#include "tools/demo/motifs.h"

namespace sonotik::demo {
namespace {

void Sky(QPainter& painter, const QColor& top, const QColor& bottom, double height = 500) {
  QLinearGradient gradient(0, 0, 0, height);
  gradient.setColorAt(0, top);
  gradient.setColorAt(1, bottom);
  painter.fillRect(QRectF(0, 0, 500, height), gradient);
}

// The ground below a wavy line.
QPainterPath Wave(double y, double height, double length, double shift) {
  QPainterPath path(QPointF(0, 501));
  for (int x = 0; x <= 504; x += 4) {
    path.lineTo(x, y + height * std::sin((x + shift) / length * 2 * M_PI));
  }
  path.lineTo(504, 501);
  return path;
}

// A sun with slits that grow towards the horizon.
void StripedSun(QPainter& painter, const QColor& top, const QColor& bottom, QPointF centre,
                double radius) {
  QLinearGradient gradient(0, centre.y() - radius, 0, centre.y() + radius);
  gradient.setColorAt(0, top);
  gradient.setColorAt(1, bottom);
  QPainterPath sun;
  sun.addEllipse(centre, radius, radius);
  for (int i = 0; i < 6; ++i) {
    QPainterPath slit;
    slit.addRect(centre.x() - radius, centre.y() + radius * (0.05 + i * 0.165), radius * 2,
                 radius * (0.03 + i * 0.018));
    sun -= slit;
  }
  painter.fillPath(sun, gradient);
}

}  // namespace

void PaintHarbour(QPainter& painter, const Palette& colours, Random& random) {
  Sky(painter, colours[0], colours[1], 380);
  Disc(painter, colours[2], 362, 240, 96);
  const QColor dark = colours[0].darker(210);
  for (double x = -8; x < 500;) {
    const double width = 34 + random.Below(30), height = 46 + random.Below(120);
    Fill(painter, dark, x, 368 - height, width + 1, height);
    if (random.Below(3) == 0) Fill(painter, dark, x + width / 2 - 2, 368 - height - 24, 4, 24);
    for (double y = 376 - height; y < 350; y += 17) {
      for (double window = x + 7; window + 8 < x + width; window += 14) {
        if (random.Below(5) < 2) Fill(painter, colours[2], window, y, 7, 9);
      }
    }
    x += width;
  }
  Fill(painter, dark, 0, 368, 500, 132);
  for (int i = 0; i < 9; ++i) {
    const double width = 190 - i * 14 + random.Below(30);
    Fill(painter, colours[2].darker(105 + i * 14), 362 - width / 2 + random.Below(20) - 10,
         376 + i * 8.5, width, 3.5);
  }
}

void PaintRain(QPainter& painter, const Palette& colours, Random& random) {
  Sky(painter, colours[0], colours[1]);
  for (int i = 0; i < 60; ++i) {
    const double x = 6 + i * 8.4, length = 40 + random.Below(120), y = -20 + random.Below(90);
    QLinearGradient streak(0, y, 0, y + length);
    QColor clear = colours[2];
    clear.setAlpha(0);
    streak.setColorAt(0, clear);
    streak.setColorAt(1, colours[2]);
    painter.fillRect(QRectF(x, y, 2.2, length), streak);
    Disc(painter, colours[2], x + 1.1, y + length, 2.4);
  }
  painter.setBrush(Qt::NoBrush);
  for (int ripple = 0; ripple < 3; ++ripple) {
    const QPointF centre[] = {{150, 402}, {372, 416}, {292, 372}};
    for (int ring = 1; ring <= 4 - ripple % 2; ++ring) {
      painter.setPen(QPen(ring == 1 ? colours[3] : colours[2], 3.2 - ring * 0.5));
      painter.drawEllipse(centre[ripple], ring * 29.0, ring * 8.0);
    }
  }
  painter.setPen(Qt::NoPen);
}

void PaintWaves(QPainter& painter, const Palette& colours, Random& random) {
  Sky(painter, colours[0], colours[1], 330);
  Disc(painter, colours[4], 250, 232, 74);
  for (int i = 0; i < 8; ++i) {
    const double share = i / 7.0;
    const QColor from = colours[2], to = colours[3];
    const QColor mixed = QColor::fromRgbF(from.redF() + (to.redF() - from.redF()) * share,
                                          from.greenF() + (to.greenF() - from.greenF()) * share,
                                          from.blueF() + (to.blueF() - from.blueF()) * share);
    painter.fillPath(Wave(250 + i * 32, 9 + i * 2.4, 190 + i * 34, random.Below(400)), mixed);
  }
}

void PaintPrairie(QPainter& painter, const Palette& colours, Random&) {
  Sky(painter, colours[0], colours[1], 340);
  StripedSun(painter, colours[2], colours[3], {330, 246}, 112);
  painter.fillPath(Wave(318, 14, 420, 40), colours[3].darker(118));
  painter.fillPath(Wave(352, 16, 560, 260), colours[3].darker(165));
  painter.fillPath(Wave(392, 12, 640, 120), colours[4]);
  // Telegraph poles walking to the horizon, with their wires.
  QPointF before[2];
  for (int i = 0; i < 5; ++i) {
    const double size = std::pow(0.66, i), x = 62 + 300 * (1 - size), foot = 452 - 140 * (1 - size);
    const double top = foot - 268 * size, arm = 34 * size;
    Fill(painter, colours[4], x - 5 * size, top, 10 * size, foot - top);
    Fill(painter, colours[4], x - arm, top + 22 * size, arm * 2, 8 * size);
    for (int side = 0; side < 2; ++side) {
      const QPointF here(x + (side == 0 ? -arm : arm), top + 22 * size);
      QPainterPath wire(i == 0 ? QPointF(-60, here.y() - 30) : before[side]);
      const QPointF middle = (wire.currentPosition() + here) / 2;
      wire.quadTo(middle + QPointF(0, 30 * size), here);
      painter.strokePath(wire, QPen(colours[4], 2.6 * size + 0.4));
      before[side] = here;
    }
  }
}

void PaintLanterns(QPainter& painter, const Palette& colours, Random& random) {
  Sky(painter, colours[0], colours[1]);
  for (int i = 0; i < 70; ++i) {
    QColor star = colours[4];
    star.setAlpha(60 + random.Below(120));
    Disc(painter, star, random.Below(500), random.Below(330), 0.6 + random.Unit());
  }
  const double places[][3] = {{388, 128, 76}, {128, 178, 58}, {214, 66, 30},
                              {262, 244, 50}, {478, 292, 32}, {44, 62, 28}};
  for (const auto& [x, y, size] : places) {
    QRadialGradient glow(x, y, size * 2.1);
    QColor warm = colours[2];
    warm.setAlpha(120);
    glow.setColorAt(0, warm);
    warm.setAlpha(0);
    glow.setColorAt(1, warm);
    Disc(painter, glow, x, y, size * 2.1);
    Fill(painter, colours[4], x - 1, 0, 2, y - size * 0.7);
    QRadialGradient paper(x, y + size * 0.2, size * 1.1);
    paper.setColorAt(0, colours[4]);
    paper.setColorAt(0.45, colours[2]);
    paper.setColorAt(1, colours[3]);
    painter.setBrush(paper);
    painter.drawEllipse(QPointF(x, y), size, size * 0.8);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colours[3].darker(115), 1.6));
    for (double rib = 0.3; rib < 1; rib += 0.32) {
      painter.drawEllipse(QPointF(x, y), size * rib, size * 0.8);
    }
    painter.setPen(Qt::NoPen);
    Fill(painter, colours[0], x - size * 0.3, y - size * 0.84, size * 0.6, size * 0.12);
    Fill(painter, colours[0], x - size * 0.3, y + size * 0.72, size * 0.6, size * 0.12);
    Fill(painter, colours[3], x - 2, y + size * 0.84, 4, size * 0.4);
  }
}

void PaintKites(QPainter& painter, const Palette& colours, Random& random) {
  Sky(painter, colours[0], colours[1], 420);
  const double kites[][3] = {{352, 196, 96}, {142, 250, 62}, {226, 158, 40}};
  for (const auto& [x, y, size] : kites) {
    painter.save();
    painter.translate(x, y);
    painter.rotate(18 + random.Below(14));
    QPainterPath tail(QPointF(0, size * 1.35));
    for (int i = 1; i <= 5; ++i) {
      tail.quadTo(QPointF(i % 2 != 0 ? size * 0.35 : -size * 0.35, size * (1.35 + i * 0.28 - 0.14)),
                  QPointF(0, size * (1.35 + i * 0.28)));
    }
    painter.strokePath(tail, QPen(colours[4], 3));
    const QPointF top(0, -size * 0.8), left(-size * 0.62, 0), right(size * 0.62, 0),
        foot(0, size * 1.35), cross(0, 0);
    const QPointF quarters[4][3] = {
        {top, left, cross}, {top, right, cross}, {foot, left, cross}, {foot, right, cross}};
    const int inks[4] = {2, 3, 3, 4};
    for (int i = 0; i < 4; ++i) {
      painter.setBrush(colours[inks[i]]);
      painter.drawPolygon(quarters[i], 3);
    }
    painter.restore();
  }
  painter.fillPath(Wave(384, 16, 460, 90), colours[2].darker(118));
  painter.fillPath(Wave(410, 14, 380, 300), colours[4]);
}

void PaintMotorway(QPainter& painter, const Palette& colours, Random& random) {
  Sky(painter, colours[0], colours[1], 310);
  for (int i = 0; i < 60; ++i) {
    Disc(painter, colours[4], random.Below(500), random.Below(200), 0.5 + random.Unit());
  }
  StripedSun(painter, colours[4], colours[2], {250, 226}, 116);
  QPolygonF peaks{{0, 311}};
  for (int x = 0; x <= 500; x += 50) {
    const double away = std::abs(x - 250) / 250.0;
    peaks << QPointF(x, 306 - away * (16 + random.Below(80)));
  }
  peaks << QPointF(500, 311);
  painter.setBrush(colours[0].darker(180));
  painter.drawPolygon(peaks);
  Fill(painter, colours[0].darker(220), 0, 310, 500, 190);
  QColor line = colours[3];
  line.setAlpha(130);
  painter.setPen(QPen(line, 1.8));
  for (int i = -14; i <= 14; ++i) {
    painter.drawLine(QPointF(250 + i * 16, 310), QPointF(250 + i * 90, 500));
  }
  for (int i = 0; i < 12; ++i) {
    const double y = 310 + 190 * std::pow(i / 11.0, 2.1);
    painter.drawLine(QPointF(0, y), QPointF(500, y));
  }
  painter.setPen(Qt::NoPen);
}

}  // namespace sonotik::demo
