// The parts of the demo media that no ear or eye would find wrong before a guest does.
#include <gtest/gtest.h>

#include <QtEndian>
#include <cstring>
#include <set>
#include <string>

#include "tools/demo/albums.h"
#include "tools/demo/cdg.h"
#include "tools/demo/media.h"

namespace sonotik::demo {
namespace {

// What a CD+G player does with tile packets, on a screen of any colours.
void Show(const std::vector<CdgPacket>& packets, QImage& screen) {
  for (const CdgPacket& packet : packets) {
    ASSERT_EQ(packet[0], 9);
    for (const uint8_t byte : packet) ASSERT_LT(byte, 64) << "channels R to W have six bits";
    for (int i = 0; i < kTileWidth * kTileHeight; ++i) {
      const int x = packet[7] * kTileWidth + i % kTileWidth, row = i / kTileWidth;
      const int y = packet[6] * kTileHeight + row;
      const bool set = (packet[8 + row] >> (5 - i % kTileWidth) & 1) != 0;
      const uint8_t colour = set ? packet[5] : packet[4];
      const int before = packet[1] == 38 ? screen.pixelIndex(x, y) : 0;
      screen.setPixel(x, y, static_cast<uint>(before ^ colour));
    }
  }
}

QImage Noise(uint64_t seed, int colours) {
  QImage image(kCdgWidth, kCdgHeight, QImage::Format_Indexed8);
  image.setColorCount(16);
  Random random(seed);
  for (int y = 0; y < kCdgHeight; ++y) {
    for (int x = 0; x < kCdgWidth; ++x) {
      image.setPixel(x, y, static_cast<uint>(random.Below(colours)));
    }
  }
  return image;
}

TEST(Cdg, TilesPaintAPictureOverWhateverStoodThere) {
  for (const int colours : {1, 2, 5, 16}) {
    const QImage picture = Noise(1, colours);
    QImage screen = Noise(2, 16);
    const QRect whole(0, 0, kCdgWidth / kTileWidth, kCdgHeight / kTileHeight);
    const std::vector<CdgPacket> packets = PaintPackets(picture, whole);
    Show(packets, screen);
    for (int y = 0; y < kCdgHeight; ++y) {
      ASSERT_EQ(std::memcmp(screen.constScanLine(y), picture.constScanLine(y), kCdgWidth), 0) << y;
    }
    if (colours <= 2) {
      EXPECT_EQ(packets.size(), 900U) << "two colours fit in one packet a tile";
    }
  }
}

QByteArray Box(const char* type, const QByteArray& content) {
  QByteArray size(4, '\0');
  qToBigEndian(static_cast<quint32>(content.size() + 8), size.data());
  return size + type + content;
}

TEST(PadBeforeMoov, EveryChunkOffsetStillPointsToItsChunk) {
  const auto stco = [](quint32 first, quint32 second) {
    QByteArray table(16, '\0');
    qToBigEndian<quint32>(2, table.data() + 4);
    qToBigEndian(first, table.data() + 8);
    qToBigEndian(second, table.data() + 12);
    return Box("stco", table);
  };
  const QByteArray head = Box("ftyp", "M4A isom");
  const auto at =
      static_cast<quint32>(head.size() + 2 * 24 + 8 + 8);  // behind moov and mdat's head
  const QByteArray moov = Box("moov", stco(at, at + 5) + stco(at + 1, at + 6));
  const QByteArray file = head + moov + Box("mdat", "ABCDEFGHIJ");
  ASSERT_EQ(file.mid(at, 1), "A");

  const QByteArray padded = PadBeforeMoov(file, 30000);
  ASSERT_EQ(padded.size(), file.size() + 30000);
  EXPECT_EQ(padded.mid(head.size() + 4, 4), "free");
  EXPECT_EQ(padded.indexOf("moov"), head.size() + 30000 + 4);
  std::string chunks;
  for (qsizetype table = padded.indexOf("stco"); table > 0;
       table = padded.indexOf("stco", table + 1)) {
    for (const int entry : {12, 16}) {
      chunks += padded[qFromBigEndian<quint32>(padded.constData() + table + entry)];
    }
  }
  EXPECT_EQ(chunks, "AFBG");
  EXPECT_THROW(PadBeforeMoov("no boxes here", 8), DemoFailure);
}

TEST(Albums, EveryPatternFillsItsBarAndEveryNameCanBeAFile) {
  std::set<std::string> folders;
  for (const Album& album : Albums()) {
    EXPECT_TRUE(folders.insert(std::string(album.artist) + " - " + album.title).second);
    for (const Track& track : album.tracks) {
      SCOPED_TRACE(track.title);
      EXPECT_EQ(
          (std::string(album.artist) + album.title + track.title).find_first_of("/\\:*?\"<>|"),
          std::string::npos);
      const Style& style = track.style != nullptr ? *track.style : *album.style;
      const auto steps = static_cast<size_t>(style.beats) * 4;
      for (const char* rhythm : style.rhythms) EXPECT_EQ(std::strlen(rhythm), steps) << rhythm;
      for (const Comp& comp : style.comps)
        EXPECT_EQ(std::strlen(comp.pattern), steps) << comp.pattern;
      for (const Beat& beat : style.drums)
        EXPECT_EQ(std::strlen(beat.pattern), steps) << beat.pattern;
      for (int number = 0; number < 12; ++number) {
        EXPECT_FALSE(Compose(style, {1, track.bars, track.key, number}).notes.empty());
      }
    }
  }
}

}  // namespace
}  // namespace sonotik::demo
