// What the covers show: drawings on a square of 500 units, each in a palette of five colours.
#ifndef SONOTIK_TOOLS_DEMO_MOTIFS_H_
#define SONOTIK_TOOLS_DEMO_MOTIFS_H_

#include <QColor>
#include <QPainter>
#include <array>

#include "tools/demo/random.h"

namespace sonotik::demo {

// The first colour is the ground.
using Palette = std::array<QColor, 5>;
using Motif = void (*)(QPainter& painter, const Palette& colours, Random& random);

void PaintHarbour(QPainter& painter, const Palette& colours, Random& random);
void PaintLeaves(QPainter& painter, const Palette& colours, Random& random);
void PaintRobot(QPainter& painter, const Palette& colours, Random& random);
void PaintPiano(QPainter& painter, const Palette& colours, Random& random);
void PaintPixelSun(QPainter& painter, const Palette& colours, Random& random);
void PaintPixelGhost(QPainter& painter, const Palette& colours, Random& random);
void PaintPixelCoin(QPainter& painter, const Palette& colours, Random& random);
void PaintTeapots(QPainter& painter, const Palette& colours, Random& random);
void PaintUmbrella(QPainter& painter, const Palette& colours, Random& random);
void PaintRain(QPainter& painter, const Palette& colours, Random& random);
void PaintPipes(QPainter& painter, const Palette& colours, Random& random);
void PaintWaves(QPainter& painter, const Palette& colours, Random& random);
void PaintSofa(QPainter& painter, const Palette& colours, Random& random);
void PaintMango(QPainter& painter, const Palette& colours, Random& random);
void PaintMirrorball(QPainter& painter, const Palette& colours, Random& random);
void PaintRecord(QPainter& painter, const Palette& colours, Random& random);
void PaintPrairie(QPainter& painter, const Palette& colours, Random& random);
void PaintLanterns(QPainter& painter, const Palette& colours, Random& random);
void PaintKites(QPainter& painter, const Palette& colours, Random& random);
void PaintMotorway(QPainter& painter, const Palette& colours, Random& random);
void PaintKaleidoscope(QPainter& painter, const Palette& colours, Random& random);
void PaintMicrophone(QPainter& painter, const Palette& colours, Random& random);

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_MOTIFS_H_
