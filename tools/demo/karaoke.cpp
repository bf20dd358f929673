#include "tools/demo/karaoke.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <sstream>
#include <string>

#include "tools/demo/cdg.h"

namespace sonotik::demo {
namespace {

constexpr int kIntroductionBars = 4, kBarsPerLine = 2;

// syllable:pitch:eighths. "-" joins a syllable to the one before it, "_" is a rest.
const char* const kLines[] = {
    "Drop:67:2 a:67:1 coin,:72:3 _:0:2 the:69:1 night:72:2 is:71:1 young,:69:4",
    "ev:69:1 -ery:69:1 song:72:2 is:74:2 wait:72:2 -ing:71:1 to:71:1 be:69:1 sung.:67:4 _:0:1",
    "Pick:67:2 a:67:1 star:72:3 _:0:2 or:69:1 pick:72:2 a:71:1 tune,:76:4",
    "sing:74:2 it:72:1 soft:74:2 -ly:72:1 to:71:1 the:71:1 moon.:72:6 _:0:2",
    "Turn:72:2 it:74:1 up:77:3 _:0:2 and:76:1 let:76:2 it:74:1 ring,:76:4",
    "ev:74:1 -ery:74:1 -bod:76:2 -y,:74:2 _:0:2 come:72:2 and:71:2 sing!:72:4",
    "One:69:2 more:72:1 song:77:3 _:0:2 be:76:1 -fore:76:2 we:74:1 go,:72:4",
    "sing:74:2 it:74:1 high:77:2 and:76:1 sing:74:1 it:71:1 low.:72:6 _:0:2",
};
constexpr int kLinesOnScreen = 4;

struct Syllable {
  std::string text;
  bool joined;
  int pitch;  // 0 for a rest
  double beat, beats;
};

std::vector<Syllable> ParseLine(const char* line, double beat) {
  std::vector<Syllable> syllables;
  std::istringstream words(line);
  for (std::string word; words >> word;) {
    const size_t first = word.find(':'), second = word.find(':', first + 1);
    const bool joined = word[0] == '-';
    const double beats = std::stoi(word.substr(second + 1)) / 2.0;
    syllables.push_back({word.substr(joined ? 1 : 0, first - (joined ? 1 : 0)), joined,
                         std::stoi(word.substr(first + 1)), beat, beats});
    beat += beats;
  }
  return syllables;
}

// Colours 8 to 11 are the words' edges and body, and with bit 4 flipped the same once sung.
constexpr int kWordColour = 8, kSungBit = 4, kShades = 4;

CdgColours ColoursFor(const Palette& inks) {
  const QColor ground = inks[0].darker(260), words(255, 255, 255), sung = inks[3];
  CdgColours colours = {ground,  inks[0], inks[1],          inks[2],
                        inks[3], inks[4], QColor(0xfb8500), inks[4].lighter(300)};
  const auto blend = [&](const QColor& ink, int shade) {
    const double share = (shade + 1.0) / kShades;
    const auto mix = [&](int from, int to) { return static_cast<int>(from + (to - from) * share); };
    return QColor(mix(ground.red(), ink.red()), mix(ground.green(), ink.green()),
                  mix(ground.blue(), ink.blue()));
  };
  for (int shade = 0; shade < kShades; ++shade) {
    colours[kWordColour + shade] = blend(words, shade);
    colours[(kWordColour + shade) ^ kSungBit] = blend(sung, shade);
  }
  return colours;
}

// Each pixel gets the colour of the table that is nearest.
QImage ToIndices(const QImage& picture, const CdgColours& colours) {
  QImage indices(kCdgWidth, kCdgHeight, QImage::Format_Indexed8);
  indices.setColorCount(16);
  for (int y = 0; y < kCdgHeight; ++y) {
    for (int x = 0; x < kCdgWidth; ++x) {
      const QRgb pixel = picture.pixel(x, y);
      const auto distance = [&](const QColor& colour) {
        const int red = colour.red() - qRed(pixel), green = colour.green() - qGreen(pixel),
                  blue = colour.blue() - qBlue(pixel);
        return red * red * 3 + green * green * 6 + blue * blue;
      };
      const auto nearest = std::min_element(
          colours.begin(), colours.end(),
          [&](const QColor& a, const QColor& b) { return distance(a) < distance(b); });
      indices.setPixel(x, y, static_cast<uint>(nearest - colours.begin()));
    }
  }
  return indices;
}

QImage TitleScreen(const Album& album, const CdgColours& colours) {
  QImage screen(kCdgWidth, kCdgHeight, QImage::Format_RGB32);
  screen.fill(colours[0]);
  QPainter painter(&screen);
  painter.setPen(Qt::NoPen);
  painter.save();
  painter.setClipRect(6, 12, 288, 168);
  painter.translate(6, -34);
  painter.scale(0.576, 0.576);
  Random random(1);
  album.cover.motif(painter, album.cover.colours, random);
  painter.restore();
  painter.setRenderHint(QPainter::Antialiasing);
  DrawFitted(painter, album.tracks[0].title, Face::kSans, true, QRectF(150, 34, 134, 74),
             Qt::AlignRight, colours[11]);
  DrawFitted(painter, album.artist, Face::kSans, true, QRectF(16, 186, 268, 13),
             Qt::AlignHCenter | Qt::AlignVCenter, colours[4]);
  painter.end();
  return ToIndices(screen, colours);
}

// What stands below the words: a band in the colours of the title screen.
QImage Stripes() {
  QImage screen(kCdgWidth, kCdgHeight, QImage::Format_Indexed8);
  screen.setColorCount(16);
  screen.fill(0);
  const int inks[] = {1, 2, 4, 6};
  for (int y = 0; y < 12; ++y) {
    for (int x = 0; x < kCdgWidth; ++x) screen.setPixel(x, 180 + y, inks[y / 3]);
  }
  return screen;
}

// One line of the words, painted at its place on the screen.
class WordLine {
 public:
  WordLine(std::vector<Syllable> syllables, int place)
      : syllables_(std::move(syllables)), tiles_(1, 2 + place * 3, 48, 2) {
    QFont font("DejaVu Sans");
    font.setPixelSize(18);
    font.setBold(true);
    const QFontMetricsF metrics(font);
    QString text;
    for (const Syllable& syllable : syllables_) {
      if (syllable.pitch == 0) {
        edges_.push_back(edges_.empty() ? 0 : edges_.back());
        continue;
      }
      if (!text.isEmpty() && !syllable.joined) text += ' ';
      text += QString::fromStdString(syllable.text);
      edges_.push_back(metrics.horizontalAdvance(text));
    }
    const double width = metrics.horizontalAdvance(text), scale = std::min(1.0, 284 / width);
    left_ = (kCdgWidth - width * scale) / 2;
    for (double& edge : edges_) edge = left_ + edge * scale;

    QImage shades(kCdgWidth, kCdgHeight, QImage::Format_RGB32);
    shades.fill(Qt::black);
    QPainter painter(&shades);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.translate(left_, tiles_.top() * kTileHeight + 18);
    painter.scale(scale, 1);
    painter.drawText(QPointF(0, 0), text);
    painter.end();
    picture_ = QImage(kCdgWidth, kCdgHeight, QImage::Format_Indexed8);
    picture_.setColorCount(16);
    picture_.fill(0);
    for (int y = 0; y < kCdgHeight; ++y) {
      for (int x = 0; x < kCdgWidth; ++x) {
        const int shade = (qGray(shades.pixel(x, y)) * kShades + 127) / 255;
        if (shade > 0) picture_.setPixel(x, y, static_cast<uint>(kWordColour + shade - 1));
      }
    }
  }

  std::vector<CdgPacket> Packets() const { return PaintPackets(picture_, tiles_); }

  // Each syllable is wiped over from left to right while it is sung.
  void PutFlips(CdgTimeline& timeline, double start, double beat) const {
    double left = left_ - 2;
    for (size_t i = 0; i < syllables_.size(); ++i) {
      const std::vector<CdgPacket> packets = FlipPackets(picture_, tiles_, static_cast<int>(left),
                                                         static_cast<int>(edges_[i]), kSungBit);
      const double from = start + syllables_[i].beat * beat, length = syllables_[i].beats * beat;
      for (size_t k = 0; k < packets.size(); ++k) {
        const double share = static_cast<double>(k) / static_cast<double>(packets.size());
        timeline.Put(from + length * 0.7 * share, {packets[k]});
      }
      left = edges_[i];
    }
  }

 private:
  std::vector<Syllable> syllables_;
  QRect tiles_;
  double left_ = 0;
  std::vector<double> edges_;  // right edge of each syllable, in pixels
  QImage picture_;
};

}  // namespace

KaraokeSong MakeKaraoke(const Album& album) {
  const int count = static_cast<int>(std::size(kLines));
  const Piece piece{77, kIntroductionBars + count * kBarsPerLine, 0};
  Score score = Compose(kSingalong, piece, false);
  const double beat = 60 / score.bpm, line_beats = kBarsPerLine * kSingalong.beats;
  const double first = kIntroductionBars * kSingalong.beats;
  std::vector<WordLine> lines;
  for (int i = 0; i < count; ++i) {
    const std::vector<Syllable> syllables = ParseLine(kLines[i], first + i * line_beats);
    for (const Syllable& syllable : syllables) {
      if (syllable.pitch == 0) continue;
      const double pitch = syllable.pitch;
      score.notes.push_back({Note::Kind::kLead, syllable.beat, syllable.beats, pitch, 0.9});
      // The band plays the last two lines as its introduction.
      const double early = syllable.beat - first - (count - 2) * line_beats;
      if (early >= 0) score.notes.push_back({Note::Kind::kLead, early, syllable.beats, pitch, 0.7});
    }
    lines.emplace_back(syllables, i % kLinesOnScreen);
  }
  Recording sound = Play(kSingalong, score, piece.seed);

  CdgTimeline timeline(static_cast<double>(sound.size()) / 2 / kSampleRate);
  const CdgColours colours = ColoursFor(album.cover.colours);
  constexpr double kLeadIn = 0.03;
  // The wipes first: they must come on time, and the painting takes the places that they leave.
  for (const WordLine& line : lines) line.PutFlips(timeline, kLeadIn, beat);
  const auto sung_at = [&](int line) { return kLeadIn + (first + line * line_beats) * beat; };
  const QRect whole(0, 0, kCdgWidth / kTileWidth, kCdgHeight / kTileHeight);
  timeline.Put(0, ClearPackets(0));
  timeline.Put(0.1, ColourPackets(colours));
  timeline.Put(0.2, PaintPackets(TitleScreen(album, colours), whole));
  double at = timeline.Put(sung_at(0) - 2.6, ClearPackets(0));
  at = timeline.Put(at, PaintPackets(Stripes(), QRect(1, 15, 48, 1)));
  for (int i = 0; i < kLinesOnScreen; ++i) at = timeline.Put(at, lines[i].Packets());
  // A line makes room for the one four later as soon as the next is well under way.
  for (int i = kLinesOnScreen; i < count; ++i) {
    timeline.Put(sung_at(i - kLinesOnScreen + 1) + beat, lines[i].Packets());
  }
  return {std::move(sound), timeline.Bytes()};
}

}  // namespace sonotik::demo
