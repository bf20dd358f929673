// The parts of the demo media that no ear or eye would find wrong before a guest does.
#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>

#include "support/gif_files.h"
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

TEST(PadBeforeMoov, TheSoundBehindThePaddingStaysWhatItWas) {
  const TempFolder folder;
  const auto run = [&](const std::string& options) {
    RunIn(folder, "ffmpeg -v error -nostdin " + options);
  };
  // Long enough for some chunks.
  run("-f lavfi -i anoisesrc=d=60 -b:a 320k -movflags +faststart a.m4a");
  const QByteArray file = QByteArray::fromStdString(folder.Read("a.m4a"));
  const QByteArray padded = PadBeforeMoov(file, 30000);
  EXPECT_EQ(padded.size(), file.size() + 30000);
  EXPECT_EQ(padded.indexOf("moov"), file.indexOf("moov") + 30000);
  folder.Write("b.m4a", padded.toStdString());
  for (const std::string name : {"a", "b"}) run("-i " + name + ".m4a -f md5 " + name + ".md5");
  EXPECT_EQ(folder.Read("a.md5"), folder.Read("b.md5"));
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
      for (const Comp& comp : style.comps) EXPECT_EQ(std::strlen(comp.pattern), steps);
      for (const Beat& beat : style.drums) EXPECT_EQ(std::strlen(beat.pattern), steps);
      for (int number = 0; number < 12; ++number) {
        EXPECT_FALSE(Compose(style, {1, track.bars, track.key, number}).notes.empty());
      }
    }
  }
}

}  // namespace
}  // namespace sonotik::demo
