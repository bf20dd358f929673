// Writes CD+G graphics: the packets that a karaoke disc carries beside its sound, as a file of
// 24-byte packets, 300 a second (Philips/Sony "Red Book", subcode channels R to W; the error
// correction bytes stay 0, as every ripped file has them).
#ifndef SONOTIK_TOOLS_DEMO_CDG_H_
#define SONOTIK_TOOLS_DEMO_CDG_H_

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QRect>
#include <array>
#include <cstdint>
#include <vector>

namespace sonotik::demo {

using CdgPacket = std::array<uint8_t, 24>;
using CdgColours = std::array<QColor, 16>;

inline constexpr int kCdgRate = 300;                     // packets a second
inline constexpr int kCdgWidth = 300, kCdgHeight = 216;  // pixels, border included
inline constexpr int kTileWidth = 6, kTileHeight = 12;

std::vector<CdgPacket> ClearPackets(int colour);  // memory and border preset
std::vector<CdgPacket> ColourPackets(const CdgColours& colours);

// Tile packets that paint a part of `picture`, whose pixels are colour indices (Indexed8, the size
// of the screen) whatever stood there before. `tiles` counts in tiles.
std::vector<CdgPacket> PaintPackets(const QImage& picture, const QRect& tiles);

// Tile packets that flip the bits of `flip` in the colour of all pixels of `picture` that aren't 0
// and lie in columns `left` up to `right`. One packet a tile at most, in the order of columns.
std::vector<CdgPacket> FlipPackets(const QImage& picture, const QRect& tiles, int left, int right,
                                   int flip);

// The time line of a song: packets are put at a time and take the next places that are free.
class CdgTimeline {
 public:
  explicit CdgTimeline(double seconds);
  // Returns the time at which the last packet is through.
  double Put(double seconds, const std::vector<CdgPacket>& packets);
  QByteArray Bytes() const;

 private:
  std::vector<CdgPacket> slots_;  // an unused slot has no command
};

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_CDG_H_
