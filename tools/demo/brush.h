// Strokes that the motifs share.
#ifndef SONOTIK_TOOLS_DEMO_BRUSH_H_
#define SONOTIK_TOOLS_DEMO_BRUSH_H_

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QtMath>
#include <cmath>

namespace sonotik::demo {

inline void Fill(QPainter& painter, const QColor& colour, double x, double y, double width,
                 double height) {
  painter.fillRect(QRectF(x, y, width, height), colour);
}

inline void Disc(QPainter& painter, const QBrush& brush, double x, double y, double radius) {
  painter.setBrush(brush);
  painter.drawEllipse(QPointF(x, y), radius, radius);
}

inline QPointF Polar(QPointF centre, double radius, double degrees) {
  return centre + radius * QPointF(std::cos(qDegreesToRadians(degrees)),
                                   std::sin(qDegreesToRadians(degrees)));
}

// A burst of rays all over the picture.
inline void Rays(QPainter& painter, const QColor& colour, QPointF centre, int count,
                 double turn = 0) {
  painter.setBrush(colour);
  for (int i = 0; i < count; ++i) {
    const double from = turn + i * 360.0 / count;
    painter.drawPolygon(
        QPolygonF{centre, Polar(centre, 800, from), Polar(centre, 800, from + 180.0 / count)});
  }
}

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_BRUSH_H_
