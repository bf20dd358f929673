// The motifs that are things: instruments, crockery, pixels and patterns.
#include <cmath>
#include <cstring>
#include <vector>

#include "tools/demo/brush.h"
#include "tools/demo/motifs.h"

namespace sonotik::demo {
namespace {

// Rows of a picture in characters: blank is nothing, a digit the colour.
void Pixels(QPainter& painter, const Palette& colours, const std::vector<const char*>& rows,
            double y) {
  const double size = 21, left = 250 - std::strlen(rows[0]) * size / 2;
  painter.setRenderHint(QPainter::Antialiasing, false);
  for (int pass = 0; pass < 2; ++pass) {
    for (size_t row = 0; row < rows.size(); ++row) {
      for (size_t i = 0; rows[row][i] != 0; ++i) {
        if (rows[row][i] == ' ') continue;
        const QColor ink = pass == 0 ? colours[0].darker(190) : colours[rows[row][i] - '0'];
        Fill(painter, ink, left + i * size + (pass == 0 ? 10 : 0),
             y + row * size + (pass == 0 ? 10 : 0), size, size);
      }
    }
  }
  painter.setRenderHint(QPainter::Antialiasing);
}

// The three arcade covers share a tiled floor and the lines of a picture tube.
void Arcade(QPainter& painter, const Palette& colours, const std::vector<const char*>& rows) {
  for (int row = 0; row < 3; ++row) {
    for (int i = 0; i < 20; ++i) {
      Fill(painter, colours[(row + i) % 2 == 0 ? 1 : 2], i * 25, 425 + row * 25, 25, 25);
    }
  }
  Pixels(painter, colours, rows, 158);
  for (int y = 0; y < 500; y += 5) Fill(painter, QColor(0, 0, 0, 26), 0, y, 500, 2);
}

}  // namespace

void PaintLeaves(QPainter& painter, const Palette& colours, Random& random) {
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 4; ++column) {
      const QRectF tile(column * 125, 125 + row * 125, 125, 125);
      const int ground = 1 + (row + column) % 4;
      painter.fillRect(tile, colours[ground]);
      painter.save();
      painter.setClipRect(tile);
      painter.translate(tile.center());
      painter.rotate(((row * 3 + column + random.Below(2) * 2) % 4) * 90);
      QPainterPath leaf(QPointF(-62.5, -62.5));
      leaf.arcTo(QRectF(-187.5, -62.5, 250, 250), 90, -90);
      leaf.arcTo(QRectF(-62.5, -187.5, 250, 250), 270, -90);
      const int leaf_on[] = {0, 2, 3, 2, 0};
      painter.fillPath(leaf, colours[leaf_on[ground]]);
      painter.setPen(QPen(colours[ground], 4));
      painter.drawLine(QPointF(-62, -62), QPointF(44, 44));
      for (int i = -1; i < 3; ++i) {
        painter.drawLine(QPointF(i * 20, i * 20), QPointF(i * 20, i * 20 - 26));
        painter.drawLine(QPointF(i * 20, i * 20), QPointF(i * 20 - 26, i * 20));
      }
      painter.restore();
    }
  }
}

void PaintRobot(QPainter& painter, const Palette& colours, Random& random) {
  for (int i = 0; i < 46; ++i) {
    Disc(painter, colours[4], random.Below(500), random.Below(420), 1 + random.Unit() * 2);
  }
  Disc(painter, colours[4], 424, 196, 44);
  Disc(painter, colours[0], 404, 184, 40);
  painter.setBrush(colours[2]);
  painter.drawRoundedRect(QRectF(60, 318, 46, 76), 16, 16);
  painter.drawRoundedRect(QRectF(314, 318, 46, 76), 16, 16);
  Fill(painter, colours[2], 203, 206, 14, 50);
  Disc(painter, colours[3], 210, 200, 19);
  painter.setBrush(colours[1]);
  painter.drawRoundedRect(QRectF(84, 244, 252, 208), 44, 44);
  painter.setBrush(colours[0]);
  painter.drawRoundedRect(QRectF(110, 274, 200, 112), 32, 32);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colours[4], 9, Qt::SolidLine, Qt::RoundCap));
  painter.drawArc(QRectF(134, 300, 54, 44), 190 * 16, 160 * 16);
  painter.drawArc(QRectF(232, 300, 54, 44), 190 * 16, 160 * 16);
  painter.setPen(QPen(colours[3], 7, Qt::SolidLine, Qt::RoundCap));
  painter.drawArc(QRectF(192, 344, 36, 22), 200 * 16, 140 * 16);
  painter.setPen(Qt::NoPen);
  for (int i = 0; i < 5; ++i) Fill(painter, colours[2], 150 + i * 26, 406, 14, 26);
  const double letters[][3] = {{350, 254, 26}, {388, 288, 19}, {356, 302, 13}};
  for (const auto& [x, y, size] : letters) {
    painter.setPen(QPen(colours[4], size / 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{{x, y}, {x + size, y}, {x, y + size}, {x + size, y + size}});
  }
  painter.setPen(Qt::NoPen);
}

void PaintPiano(QPainter& painter, const Palette& colours, Random& random) {
  Fill(painter, colours[3], 0, 0, 500, 500);
  for (int i = 0; i < 8; ++i) {
    Fill(painter, colours[2], i * 62.5 + 2, 180, 58.5, 312);
    Fill(painter, colours[2].darker(125), i * 62.5 + 2, 478, 58.5, 14);
  }
  for (const int i : {0, 1, 3, 4, 5, 7}) Fill(painter, colours[3], i * 62.5 + 44, 180, 37, 200);
  // The mud: a sheet with drips of many lengths running over the keys.
  QPainterPath mud(QPointF(0, 0));
  mud.lineTo(0, 210);
  double x = 0;
  while (x < 500) {
    const double width = 26 + random.Below(16), drop = 232 + random.Below(4) * 44;
    mud.lineTo(x, drop);
    mud.arcTo(QRectF(x, drop - width / 2, width, width), 180, 180);
    const double gap = 10 + random.Below(14);
    mud.lineTo(x + width, 224);
    mud.arcTo(QRectF(x + width, 224 - gap / 2, gap, gap), 180, -180);
    x += width + gap;
  }
  mud.lineTo(x, 0);
  painter.fillPath(mud, colours[0]);
}

void PaintPixelSun(QPainter& painter, const Palette& colours, Random&) {
  Arcade(painter, colours,
         {"      3      ", "  3   3   3  ", "   3 333 3   ", "    33333    ", "   3343433   ",
          " 33333333333 ", "   3433343   ", "    34443    ", "   3 333 3   ", "  3   3   3  ",
          "      3      "});
}

void PaintPixelGhost(QPainter& painter, const Palette& colours, Random&) {
  Arcade(painter, colours,
         {"    33333    ", "   3333333   ", "  333333333  ", "  344334433  ", "  340334033  ",
          "  344334433  ", "  333333333  ", "  333444333  ", "  333333333  ", "  33 333 33  ",
          "  3   3   3  "});
}

void PaintPixelCoin(QPainter& painter, const Palette& colours, Random&) {
  Arcade(painter, colours,
         {"     333     ", "   3344433   ", "  344333443  ", "  343343343  ", " 34334433343 ",
          " 34333433343 ", " 34333433343 ", "  343343343  ", "  344333443  ", "   3344433   ",
          "     333     "});
}

void PaintTeapots(QPainter& painter, const Palette& colours, Random&) {
  QPainterPath pot;
  pot.addEllipse(QRectF(-44, -30, 88, 68));
  QPainterPath lid;
  lid.addEllipse(QRectF(-24, -44, 48, 30));
  lid.addEllipse(QRectF(-8, -58, 16, 16));
  QPainterPath spout(QPointF(34, 20));
  spout.cubicTo(64, 12, 52, -18, 78, -30);
  spout.lineTo(66, -36);
  spout.cubicTo(46, -24, 50, -6, 30, -6);
  QPainterPath foot;
  foot.addRect(-28, 32, 56, 10);
  QPainterPath ring;
  ring.addEllipse(QRectF(-76, -22, 52, 46));
  QPainterPath hole;
  hole.addEllipse(QRectF(-65, -12, 36, 27));
  const QPainterPath shape = (ring - hole).united(pot).united(lid).united(spout).united(foot);
  for (int row = 0; row < 3; ++row) {
    Fill(painter, colours[1 + row % 2], 0, 146 + row * 118, 500, 118);
    for (int i = -1; i < 4; ++i) {
      painter.save();
      painter.translate(62 + i * 166 + (row % 2) * 83, 212 + row * 118);
      painter.rotate(i % 2 == 0 ? -7 : 7);
      painter.fillPath(shape, colours[row % 2 == 0 ? 3 : 4]);
      painter.setBrush(colours[1 + row % 2]);
      for (int dot = -1; dot <= 1; ++dot) painter.drawEllipse(QPointF(dot * 22, 4), 6, 6);
      painter.restore();
    }
  }
}

void PaintUmbrella(QPainter& painter, const Palette& colours, Random& random) {
  for (int i = 0; i < 90; ++i) {
    painter.setBrush(colours[4]);
    painter.drawEllipse(QPointF(random.Below(500), random.Below(500)), 1.6, 5);
  }
  const QPointF centre(250, 202);
  for (int i = 0; i < 12; ++i) {
    const double from = i * 30 - 8;
    QPainterPath cloth(centre);
    cloth.lineTo(Polar(centre, 176, from));
    cloth.quadTo(Polar(centre, 152, from + 15), Polar(centre, 176, from + 30));
    painter.fillPath(cloth, colours[1 + i % 3]);
  }
  painter.setPen(QPen(colours[0], 3));
  for (int i = 0; i < 12; ++i) painter.drawLine(centre, Polar(centre, 180, i * 30 - 8));
  painter.setPen(Qt::NoPen);
  Disc(painter, colours[0], centre.x(), centre.y(), 12);
}

void PaintPipes(QPainter& painter, const Palette& colours, Random&) {
  Rays(painter, colours[1], {250, 500}, 22, 4);
  for (int i = -5; i <= 5; ++i) {
    const double x = 250 + i * 42, top = 176 + std::abs(i) * 26;
    QLinearGradient metal(x - 18, 0, x + 18, 0);
    metal.setColorAt(0, colours[2].darker(190));
    metal.setColorAt(0.35, colours[2].lighter(125));
    metal.setColorAt(1, colours[2].darker(170));
    painter.fillRect(QRectF(x - 18, top, 36, 500 - top), metal);
    painter.setBrush(colours[0]);
    painter.drawEllipse(QRectF(x - 18, top - 7, 36, 14));
    Fill(painter, colours[0], x - 9, 388, 18, 16);
    painter.drawEllipse(QRectF(x - 9, 379, 18, 18));
  }
  painter.setBrush(colours[3]);
  painter.setPen(QPen(colours[0], 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolygon(QPolygonF{
      {300, 150}, {176, 318}, {246, 318}, {196, 440}, {338, 270}, {264, 270}, {334, 150}});
  painter.setPen(Qt::NoPen);
}

void PaintSofa(QPainter& painter, const Palette& colours, Random&) {
  Disc(painter, colours[1], 250, 262, 168);
  painter.setBrush(colours[2]);
  painter.drawRoundedRect(QRectF(64, 236, 372, 150), 36, 36);
  const int inks[] = {3, 4, 3, 4};
  for (int i = 0; i < 4; ++i) {
    const double x = 121 + i * 86;
    Disc(painter, colours[inks[i]], x, 254, 40);
    Disc(painter, colours[0], x, 254, 27);
    Disc(painter, colours[inks[i]], x, 254, 9);
  }
  painter.setBrush(colours[2].darker(125));
  painter.drawRoundedRect(QRectF(84, 304, 164, 62), 18, 18);
  painter.drawRoundedRect(QRectF(252, 304, 164, 62), 18, 18);
  painter.setBrush(colours[2].darker(160));
  painter.drawRoundedRect(QRectF(34, 280, 66, 120), 30, 30);
  painter.drawRoundedRect(QRectF(400, 280, 66, 120), 30, 30);
  Fill(painter, colours[2].darker(160), 66, 362, 368, 38);
  Fill(painter, colours[3], 80, 400, 12, 22);
  Fill(painter, colours[3], 408, 400, 12, 22);
}

void PaintMango(QPainter& painter, const Palette& colours, Random&) {
  Rays(painter, colours[1], {250, 270}, 16);
  painter.save();
  painter.translate(250, 290);
  painter.rotate(-32);
  QRadialGradient flesh(-40, -30, 190);
  flesh.setColorAt(0, colours[2].lighter(125));
  flesh.setColorAt(0.55, colours[2]);
  flesh.setColorAt(1, colours[3]);
  QPainterPath fruit(QPointF(-150, 10));
  fruit.cubicTo(-150, -110, 40, -140, 120, -70);
  fruit.cubicTo(190, 0, 120, 110, 0, 112);
  fruit.cubicTo(-90, 112, -150, 80, -150, 10);
  painter.fillPath(fruit, flesh);
  painter.restore();
  QPainterPath leaf(QPointF(322, 176));
  leaf.cubicTo(340, 112, 410, 104, 448, 132);
  leaf.cubicTo(430, 178, 372, 200, 322, 176);
  painter.fillPath(leaf, colours[4]);
  painter.setPen(QPen(colours[0], 4, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(322, 176), QPointF(424, 140));
  painter.setPen(Qt::NoPen);
}

void PaintMirrorball(QPainter& painter, const Palette& colours, Random& random) {
  const QPointF centre(250, 232);
  Rays(painter, colours[1], centre, 14, 6);
  Fill(painter, colours[4], 248, 0, 4, 100);
  const double radius = 140;
  Disc(painter, colours[0].darker(160), centre.x(), centre.y(), radius + 3);
  for (int row = -80; row < 80; row += 10) {
    const double ring = std::cos(qDegreesToRadians(row + 5.0));
    const int count = 6 + static_cast<int>(ring * 13);
    for (int i = 0; i < count; ++i) {
      const auto at = [&](double share, double up) {
        const double across = std::sin((share - 0.5) * M_PI) * std::cos(qDegreesToRadians(up));
        return centre + radius * QPointF(across, -std::sin(qDegreesToRadians(up)));
      };
      const double from = (i + 0.06) / count, to = (i + 0.94) / count;
      const double light = 0.5 + 0.4 * random.Unit() +
                           0.5 * std::max(0.0, 1 - std::hypot(from - 0.33, (row - 35) / 120.0) * 3);
      QColor tile = colours[random.Below(5) == 0 ? 3 : 2];
      painter.setBrush(light > 1 ? colours[4]
                                 : QColor::fromHsvF(tile.hsvHueF(), tile.hsvSaturationF(),
                                                    std::min(1.0, light)));
      painter.drawPolygon(QPolygonF{at(from, row + 0.6), at(to, row + 0.6), at(to, row + 9.4),
                                    at(from, row + 9.4)});
    }
  }
  for (const QPointF& spark :
       {QPointF(196, 150), QPointF(330, 288), QPointF(394, 96), QPointF(84, 306)}) {
    painter.setBrush(colours[4]);
    for (const double turn : {0.0, 90.0}) {
      painter.drawPolygon(QPolygonF{Polar(spark, 30, turn), Polar(spark, 5, turn + 90),
                                    Polar(spark, 30, turn + 180), Polar(spark, 5, turn + 270)});
    }
  }
}

void PaintRecord(QPainter& painter, const Palette& colours, Random&) {
  // The arch of a jukebox, and a record rising in it.
  for (int i = 0; i < 4; ++i) {
    QPainterPath arch;
    arch.addRoundedRect(QRectF(40 + i * 24, 28 + i * 24, 420 - i * 48, 640), 210 - i * 24,
                        210 - i * 24);
    painter.fillPath(arch, colours[1 + i % 4]);
  }
  QPainterPath inside;
  inside.addRoundedRect(QRectF(136, 124, 228, 400), 114, 114);
  painter.fillPath(inside, colours[0]);
  Disc(painter, QColor(18, 16, 20), 250, 250, 108);
  painter.setBrush(Qt::NoBrush);
  for (int radius = 52; radius < 106; radius += 5) {
    painter.setPen(QPen(QColor(60, 56, 64), 1.4));
    painter.drawEllipse(QPointF(250, 250), radius, radius);
  }
  painter.setPen(Qt::NoPen);
  QConicalGradient shine(250, 250, 30);
  for (const double turn : {0.0, 0.5}) {
    shine.setColorAt(turn, QColor(255, 255, 255, 70));
    shine.setColorAt(turn + 0.09, QColor(255, 255, 255, 0));
    shine.setColorAt(turn + 0.41, QColor(255, 255, 255, 0));
  }
  shine.setColorAt(1, QColor(255, 255, 255, 70));
  Disc(painter, shine, 250, 250, 106);
  Disc(painter, colours[2], 250, 250, 42);
  Disc(painter, colours[0], 250, 250, 7);
  Fill(painter, colours[0], 0, 372, 500, 128);
}

void PaintKaleidoscope(QPainter& painter, const Palette& colours, Random& random) {
  const QPointF centre(250, 196);
  for (int layer = 0; layer < 7; ++layer) {
    const double outer = 330 - layer * 46, inner = outer * random.Between(0.3, 0.6),
                 lean = random.Between(4, 15);
    for (int i = 0; i < 24; ++i) {
      const double turn = i * 15 + layer * 7.5, side = i % 2 == 0 ? lean : -lean;
      painter.setBrush(colours[1 + (layer + i % 2) % 4].darker(layer % 3 == 0 ? 118 : 100));
      painter.drawPolygon(QPolygonF{Polar(centre, inner, turn - 9),
                                    Polar(centre, outer, turn + side),
                                    Polar(centre, inner, turn + 9)});
    }
  }
  Disc(painter, colours[0], centre.x(), centre.y(), 22);
  Fill(painter, colours[0], 0, 372, 500, 128);
}

void PaintMicrophone(QPainter& painter, const Palette& colours, Random&) {
  Rays(painter, colours[1], {196, 240}, 18, 5);
  painter.save();
  painter.translate(190, 246);
  painter.rotate(-52);
  QLinearGradient handle(-34, 0, 34, 0);
  handle.setColorAt(0, colours[4]);
  handle.setColorAt(0.4, colours[4].lighter(320));
  handle.setColorAt(1, colours[4]);
  QPainterPath grip;
  grip.addPolygon(QPolygonF{{-36, 60}, {36, 60}, {23, 286}, {-23, 286}});
  painter.fillPath(grip, handle);
  Disc(painter, colours[2], 0, 0, 84);
  painter.setPen(QPen(colours[2].darker(140), 3));
  painter.setBrush(Qt::NoBrush);
  for (int i = 0; i <= 2; ++i) {
    painter.drawEllipse(QPointF(0, 0), i * 31.0, 84);
    painter.drawEllipse(QPointF(0, 0), 84, i * 31.0);
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(colours[3]);
  painter.drawRoundedRect(QRectF(-62, 46, 124, 32), 14, 14);
  painter.restore();
}

}  // namespace sonotik::demo
