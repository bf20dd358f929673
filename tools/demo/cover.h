// Album covers: a motif, and the title and the artist set so that they can be read at thumb size.
#ifndef SONOTIK_TOOLS_DEMO_COVER_H_
#define SONOTIK_TOOLS_DEMO_COVER_H_

#include <QImage>
#include <QRectF>
#include <QString>

#include "tools/demo/motifs.h"

namespace sonotik::demo {

enum class Face { kSans, kSerif, kMono };

// A block of text fills its box as far as its proportions allow, in one line or broken in two.
struct TextBox {
  QRectF box;
  int colour;  // index into the palette
  Qt::Alignment align = Qt::AlignLeft;
  bool capitals = false;
};

struct Cover {
  Motif motif;
  Palette colours;
  Face face;
  TextBox title, artist;
};

inline constexpr int kCoverSize = 500;

QImage PaintCover(const Cover& cover, const QString& artist, const QString& title, uint64_t seed);

// Draws `text` as outlines scaled into the box. Breaks it in two if it then comes out larger.
void DrawFitted(QPainter& painter, const QString& text, Face face, bool bold, const QRectF& box,
                Qt::Alignment align, const QColor& colour);

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_COVER_H_
