#include "tools/demo/cdg.h"

#include <algorithm>

namespace sonotik::demo {
namespace {

constexpr uint8_t kCommand = 9;  // byte 0 of every CD+G packet
constexpr uint8_t kMemoryPreset = 1, kBorderPreset = 2, kTileBlock = 6, kColoursLow = 30,
                  kColoursHigh = 31, kTileFlip = 38;
constexpr int kData = 4;  // the sixteen data bytes begin here

using Tile = std::array<uint8_t, kTileWidth * kTileHeight>;
using Mask = std::array<uint8_t, kTileHeight>;  // six pixels a row, the leftmost in bit 5

CdgPacket Packet(uint8_t instruction) {
  CdgPacket packet = {};
  packet[0] = kCommand;
  packet[1] = instruction;
  return packet;
}

CdgPacket TilePacket(uint8_t instruction, int colour0, int colour1, int column, int row,
                     const Mask& mask) {
  CdgPacket packet = Packet(instruction);
  packet[kData] = static_cast<uint8_t>(colour0);
  packet[kData + 1] = static_cast<uint8_t>(colour1);
  packet[kData + 2] = static_cast<uint8_t>(row);
  packet[kData + 3] = static_cast<uint8_t>(column);
  std::copy(mask.begin(), mask.end(), packet.begin() + kData + 4);
  return packet;
}

Tile TileOf(const QImage& picture, int column, int row) {
  Tile tile;
  for (int i = 0; i < kTileWidth * kTileHeight; ++i) {
    tile[i] = static_cast<uint8_t>(picture.pixelIndex(column * kTileWidth + i % kTileWidth,
                                                      row * kTileHeight + i / kTileWidth));
  }
  return tile;
}

// The pixels of a tile for which `holds(pixel's index)`.
template <typename Predicate>
Mask MaskOf(Predicate holds) {
  Mask mask = {};
  for (int i = 0; i < kTileWidth * kTileHeight; ++i) {
    if (holds(i)) mask[i / kTileWidth] |= static_cast<uint8_t>(0x20 >> (i % kTileWidth));
  }
  return mask;
}

}  // namespace

std::vector<CdgPacket> ClearPackets(int colour) {
  std::vector<CdgPacket> packets;
  // The preset is sent sixteen times with a running number, so that a player that lost one packet
  // still clears its screen.
  for (uint8_t repeat = 0; repeat < 16; ++repeat) {
    CdgPacket packet = Packet(kMemoryPreset);
    packet[kData] = static_cast<uint8_t>(colour);
    packet[kData + 1] = repeat;
    packets.push_back(packet);
  }
  packets.push_back(Packet(kBorderPreset));
  packets.back()[kData] = static_cast<uint8_t>(colour);
  return packets;
}

std::vector<CdgPacket> ColourPackets(const CdgColours& colours) {
  std::vector<CdgPacket> packets;
  for (int half = 0; half < 2; ++half) {
    packets.push_back(Packet(half == 0 ? kColoursLow : kColoursHigh));
    for (int i = 0; i < 8; ++i) {
      // Four bits a channel, spread over two bytes of six: RRRRGG and GGBBBB.
      const QColor& colour = colours[half * 8 + i];
      const int red = colour.red() >> 4, green = colour.green() >> 4, blue = colour.blue() >> 4;
      packets.back()[kData + i * 2] = static_cast<uint8_t>(red << 2 | green >> 2);
      packets.back()[kData + i * 2 + 1] = static_cast<uint8_t>((green & 3) << 4 | blue);
    }
  }
  return packets;
}

std::vector<CdgPacket> PaintPackets(const QImage& picture, const QRect& tiles) {
  std::vector<CdgPacket> packets;
  for (int column = tiles.left(); column <= tiles.right(); ++column) {
    for (int row = tiles.top(); row <= tiles.bottom(); ++row) {
      const Tile tile = TileOf(picture, column, row);
      const int ground = tile[0];
      // A tile block knows two colours. Further ones come by flipping single bits of the colour;
      // bits that differ at the same pixels go together, so that two colours take one packet.
      std::vector<std::pair<Mask, int>> planes;
      for (int bit = 1; bit < 16; bit <<= 1) {
        const Mask mask = MaskOf([&](int i) { return ((tile[i] ^ ground) & bit) != 0; });
        const auto same = std::find_if(planes.begin(), planes.end(),
                                       [&](const auto& plane) { return plane.first == mask; });
        if (same != planes.end()) {
          same->second |= bit;
        } else if (mask != Mask{}) {
          planes.emplace_back(mask, bit);
        }
      }
      if (planes.empty()) planes.emplace_back(Mask{}, 0);
      for (size_t i = 0; i < planes.size(); ++i) {
        const auto& [mask, bits] = planes[i];
        packets.push_back(i == 0 ? TilePacket(kTileBlock, ground, ground ^ bits, column, row, mask)
                                 : TilePacket(kTileFlip, 0, bits, column, row, mask));
      }
    }
  }
  return packets;
}

std::vector<CdgPacket> FlipPackets(const QImage& picture, const QRect& tiles, int left, int right,
                                   int flip) {
  std::vector<CdgPacket> packets;
  for (int column = tiles.left(); column <= tiles.right(); ++column) {
    for (int row = tiles.top(); row <= tiles.bottom(); ++row) {
      const Tile tile = TileOf(picture, column, row);
      const Mask mask = MaskOf([&](int i) {
        const int x = column * kTileWidth + i % kTileWidth;
        return tile[i] != 0 && x >= left && x < right;
      });
      if (mask != Mask{}) packets.push_back(TilePacket(kTileFlip, 0, flip, column, row, mask));
    }
  }
  return packets;
}

CdgTimeline::CdgTimeline(double seconds)
    : slots_(static_cast<size_t>(seconds * kCdgRate), CdgPacket{}) {}

double CdgTimeline::Put(double seconds, const std::vector<CdgPacket>& packets) {
  auto slot = static_cast<size_t>(std::max(0.0, seconds) * kCdgRate);
  for (const CdgPacket& packet : packets) {
    while (slot < slots_.size() && slots_[slot][0] != 0) ++slot;
    if (slot < slots_.size()) slots_[slot++] = packet;
  }
  return static_cast<double>(slot) / kCdgRate;
}

QByteArray CdgTimeline::Bytes() const {
  return {reinterpret_cast<const char*>(slots_.data()),
          static_cast<qsizetype>(slots_.size() * sizeof(CdgPacket))};
}

}  // namespace sonotik::demo
