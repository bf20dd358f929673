#include "tools/demo/video.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>
#include <algorithm>
#include <cmath>
#include <vector>

#include "tools/demo/media.h"

namespace sonotik::demo {
namespace {

constexpr int kWidth = 640, kHeight = 360, kFrameRate = 25;

// What the music does at one moment.
struct Moment {
  double beat;                 // since the start
  double pulse;                // 1 on a beat, fading to 0 before the next
  double bar;                  // the same for bars
  std::vector<Note> sounding;  // lead notes begun in the last two beats
};

QColor Blend(const QColor& from, const QColor& to, double share) {
  const auto mix = [&](int a, int b) {
    return static_cast<int>(a + (b - a) * std::clamp(share, 0.0, 1.0));
  };
  return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

QColor Faint(QColor colour, double share) {
  colour.setAlphaF(static_cast<float>(std::clamp(share, 0.0, 1.0)));
  return colour;
}

// A drive towards the setting sun. The towers are the orchestra's levels, each lead note a star.
void DrawMotorway(QPainter& painter, const Palette& inks, const Moment& now) {
  constexpr double kHorizon = 210;
  QLinearGradient sky(0, 0, 0, kHorizon);
  sky.setColorAt(0, inks[0].darker(150));
  sky.setColorAt(0.65, inks[0].lighter(135));
  sky.setColorAt(1, inks[1]);
  painter.fillRect(QRectF(0, 0, kWidth, kHorizon + 1), sky);
  Random random(7);
  for (int i = 0; i < 60; ++i) {
    const double x = random.Below(kWidth), y = random.Below(130), phase = random.Unit();
    painter.setBrush(Faint(Qt::white, 0.35 + 0.35 * std::sin((now.beat / 4 + phase) * 2 * M_PI)));
    painter.drawEllipse(QPointF(x, y), 1.2, 1.2);
  }
  const double radius = 92 + 6 * now.pulse;
  const QPointF sun(320, 168);
  QLinearGradient glow(0, sun.y() - radius, 0, sun.y() + radius);
  glow.setColorAt(0, inks[4]);
  glow.setColorAt(1, inks[2]);
  QPainterPath disc;
  disc.addEllipse(sun, radius, radius);
  for (int i = 0; i < 7; ++i) {
    // The slits sink slowly and grow as they do.
    const double depth = (i + std::fmod(now.beat / 8, 1.0)) / 7;
    QPainterPath slit;
    slit.addRect(sun.x() - radius, sun.y() - 10 + depth * radius, radius * 2, 1 + depth * 9);
    disc -= slit;
  }
  painter.fillPath(disc, glow);
  for (const Note& note : now.sounding) {
    const double age = now.beat - note.beat, size = 4 + 26 * std::exp(-age * 3);
    const QPointF at(320 + (note.pitch - 76) * 22, 92 - (note.pitch - 76) * 4 - age * 18);
    painter.setBrush(Faint(inks[3], 1 - age / 2));
    for (const double turn : {0.0, M_PI / 2}) {
      const QPointF along(std::cos(turn) * size, std::sin(turn) * size),
          across(-std::sin(turn) * 3, std::cos(turn) * 3);
      painter.drawPolygon(QPolygonF{at + along, at + across, at - along, at - across});
    }
  }
  for (int side = -1; side <= 1; side += 2) {
    for (int i = 0; i < 9; ++i) {
      Random windows(static_cast<uint64_t>(i * 2 + side + 1));
      const double swing = 0.5 + 0.5 * std::sin(now.beat * (0.6 + windows.Unit()) + i * 1.7);
      const double height = 18 + i * 9 + swing * 26 + now.pulse * 12,
                   x = 320 + side * (96 + i * 27) - 13;
      painter.fillRect(QRectF(x, kHorizon - height, 26, height), inks[0].darker(230));
      for (double y = kHorizon - 9; y > kHorizon - height + 5; y -= 10) {
        for (const double window : {5.0, 15.0}) {
          if (windows.Below(3) != 0) {
            painter.fillRect(QRectF(x + window, y, 5, 4), Faint(inks[i % 2 == 0 ? 4 : 3], 0.8));
          }
        }
      }
    }
  }
  painter.fillRect(QRectF(0, kHorizon, kWidth, kHeight - kHorizon), inks[0].darker(260));
  painter.setPen(QPen(Blend(inks[3].darker(180), inks[3], 0.3 + 0.7 * now.pulse), 1.6));
  for (int i = -22; i <= 22; ++i) {
    if (i != 0) painter.drawLine(QPointF(320 + i * 17, kHorizon), QPointF(320 + i * 120, kHeight));
  }
  for (int i = 0; i < 12; ++i) {
    const double depth = (i + std::fmod(now.beat, 1.0)) / 12;
    const double y = kHorizon + (kHeight - kHorizon) * depth * depth;
    painter.drawLine(QPointF(0, y), QPointF(kWidth, y));
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(14, 8, 24));
  painter.drawPolygon(QPolygonF{{312, kHorizon}, {328, kHorizon}, {520, kHeight}, {120, kHeight}});
  painter.setBrush(inks[4]);
  for (int i = 0; i < 7; ++i) {
    const double from = (i + std::fmod(now.beat, 1.0)) / 7, to = from + 0.06;
    const double near = kHorizon + 150 * to * to, far = kHorizon + 150 * from * from;
    painter.drawPolygon(QPolygonF{{320 - from * from * 7, far},
                                  {320 + from * from * 7, far},
                                  {320 + to * to * 7, near},
                                  {320 - to * to * 7, near}});
  }
}

// A kaleidoscope of six mirrors. It turns with the bars, and every lead note drops a pebble into
// it.
void DrawKaleidoscope(QPainter& painter, const Palette& inks, const Moment& now) {
  painter.fillRect(QRectF(0, 0, kWidth, kHeight), inks[0]);
  painter.save();
  painter.translate(kWidth / 2.0, kHeight / 2.0);
  painter.rotate(now.beat * 4);
  for (int mirror = 0; mirror < 12; ++mirror) {
    painter.save();
    painter.rotate(mirror / 2 * 60);
    if (mirror % 2 != 0) painter.scale(1, -1);
    for (int layer = 0; layer < 6; ++layer) {
      const double sway = std::sin(now.beat * 0.35 + layer * 1.3),
                   reach = 390 - layer * 62 + 12 * now.bar;
      const double inner = reach * (0.42 + 0.12 * sway);
      const QPointF tip(reach * std::cos(0.26 + 0.2 * sway), reach * std::sin(0.26 + 0.2 * sway));
      painter.setBrush(Blend(inks[1 + layer % 4], inks[1 + (layer + 1) % 4],
                             0.5 + 0.5 * std::sin(now.beat * 0.5 + layer)));
      painter.drawPolygon(QPolygonF{{inner * 0.3, 0},
                                    {inner, 0},
                                    tip,
                                    QPointF(inner * std::cos(0.52), inner * std::sin(0.52))});
    }
    for (const Note& note : now.sounding) {
      const double age = now.beat - note.beat,
                   distance = 40 + std::fmod(note.pitch * 37, 210) + age * 14;
      const QPointF at(distance * std::cos(0.26), distance * std::sin(0.26));
      painter.setBrush(Faint(inks[4], 1 - age / 2));
      painter.drawEllipse(at, 5 + age * 13, 5 + age * 13);
      painter.setBrush(Faint(inks[0], 1 - age / 2));
      painter.drawEllipse(at, age * 13, age * 13);
    }
    painter.restore();
  }
  painter.restore();
  painter.setBrush(inks[0]);
  painter.drawEllipse(QPointF(kWidth / 2.0, kHeight / 2.0), 18 + 6 * now.pulse, 18 + 6 * now.pulse);
  painter.setBrush(inks[4]);
  painter.drawEllipse(QPointF(kWidth / 2.0, kHeight / 2.0), 6 + 4 * now.pulse, 6 + 4 * now.pulse);
}

void DrawTitle(QPainter& painter, const Album& album, const Track& track, double share) {
  if (share <= 0) return;
  painter.fillRect(QRectF(0, 232, kWidth, 96), Faint(QColor(8, 6, 16), 0.72 * share));
  DrawFitted(painter, track.title, Face::kSans, true, QRectF(40, 250, 560, 34), Qt::AlignLeft,
             Faint(album.cover.colours[4], share));
  DrawFitted(painter, album.artist, Face::kSans, true, QRectF(40, 298, 560, 17), Qt::AlignLeft,
             Faint(Qt::white, share));
}

Moment MomentAt(const Score& score, double beat, int beats_in_bar) {
  Moment now{beat, 0, 0, {}};
  const double end = score.beats - beats_in_bar;  // the last chord rings without a beat
  const double steady = std::min(beat, end);
  now.pulse = std::exp(-(beat > end ? beat - end : steady - std::floor(steady)) * 4);
  now.bar = std::exp(-std::fmod(steady, beats_in_bar) * 1.2);
  for (const Note& note : score.notes) {
    if (note.kind == Note::Kind::kLead && note.beat <= beat && beat < note.beat + 2) {
      now.sounding.push_back(note);
    }
  }
  return now;
}

}  // namespace

void EncodeVideo(const Album& album, const Track& track, const Piece& piece,
                 const QString& output) {
  const Score score = Compose(*album.style, piece);
  const Recording sound = Play(*album.style, score, piece.seed);
  const QString sound_file = output + ".sound";
  WriteFile(sound_file, QByteArray(reinterpret_cast<const char*>(sound.data()),
                                   static_cast<qsizetype>(sound.size() * sizeof(sound[0]))));
  Encoder encoder({"-f",       "rawvideo",
                   "-pix_fmt", "bgr0",
                   "-s",       QString("%1x%2").arg(kWidth).arg(kHeight),
                   "-r",       QString::number(kFrameRate),
                   "-i",       "pipe:0",
                   "-f",       "s16le",
                   "-ar",      QString::number(kSampleRate),
                   "-ac",      "2",
                   "-i",       sound_file,
                   "-c:v",     "mpeg1video",
                   "-b:v",     "620k",
                   "-maxrate", "1000k",
                   "-bufsize", "800k",
                   "-g",       "25",
                   "-bf",      "2",
                   "-c:a",     "mp2",
                   "-b:a",     "128k",
                   "-f",       "mpeg"},
                  output);
  const auto draw = album.cover.motif == PaintMotorway ? DrawMotorway : DrawKaleidoscope;
  const double seconds = static_cast<double>(sound.size()) / 2 / kSampleRate;
  QImage frame(kWidth, kHeight, QImage::Format_RGB32);
  for (int i = 0; i < seconds * kFrameRate; ++i) {
    const double time = static_cast<double>(i) / kFrameRate;
    QPainter painter(&frame);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    draw(painter, album.cover.colours, MomentAt(score, time * score.bpm / 60, album.style->beats));
    DrawTitle(painter, album, track, std::min({time * 2 - 0.6, (4.2 - time) * 2, 1.0}));
    // In from black at the start, out to black with the last chord.
    const double light = std::clamp(std::min(time / 0.6, (seconds - 0.3 - time) / 1.2), 0.0, 1.0);
    if (light < 1) painter.fillRect(frame.rect(), Faint(Qt::black, 1 - light));
    painter.end();
    encoder.Write(reinterpret_cast<const char*>(frame.constBits()), frame.sizeInBytes());
  }
  encoder.Finish();
  QFile::remove(sound_file);
}

}  // namespace sonotik::demo
