#include "tags/mpeg_info.h"

#include <gtest/gtest.h>

#include "tags/tag_files.h"

namespace sonotik {
namespace {

// Version 1 layer 3, 128 kbit/s, 44100 Hz, joint stereo; and version 2, 22050 Hz, mono.
const std::string kFrame = "\xFF\xFB\x90\x64";
const std::string kMono2 = "\xFF\xF3\x40\xC0" + Zeros(9);

std::string Xing(const std::string& mark, char flags, uint32_t frames, uint32_t bytes) {
  return mark + Zeros(3) + flags + Big(frames) + Big(bytes);
}

std::string Figures(const std::string& file) {
  MemorySource source(AsBytes(file));
  MpegInfo info;
  const bool usable = ReadMpegInfo(source, info);
  return (usable ? info.Version : "none") + " " + std::to_string(info.Bitrate) + " " +
         std::to_string(info.SampleRate) + " " + std::to_string(info.Seconds) + " s" +
         (info.IsVbr ? " vbr" : "");
}

// Common headers stand in the table of RealFiles.
TEST(MpegInfo, FiguresOfTheFirstFrame) {
  const std::string head = kFrame + Zeros(32);
  const std::string body(160000, 'x');  // ten seconds at 128 kbit/s
  const std::string vbri = Zeros(7) + "VBRI" + Zeros(6) + Big(500000) + Big(1000);
  const std::string in_tag = Tag(4, 0x10, kFrame) + "\xFF\xFBin footer";
  std::vector<Row> rows = {
      {"Info", head + Xing("Info", 3, 1000, 500000), "version 1 layer 3 153 44100 26 s vbr"},
      {"no frame count", head + Xing("Xing", 2, 9, 9) + body, "version 1 layer 3 128 44100 10 s"},
      {"mono, Xing at 13", kMono2 + Xing("Xing", 3, 1000, 500000),
       "version 2 layer 3 153 22050 26 s vbr"},
      {"VBRI over Xing", kMono2 + Xing("Xing", 3, 9, 9) + vbri,
       "version 2 layer 3 153 22050 26 s vbr"},
      {"2.5 layer 2", "\xFF\xE5\x10\x64" + body, "version 2.5 layer 2 8 11025 160 s"},
      {"layer 1", "\xFF\xFF\xE8\x64" + body, "version 1 layer 1 448 32000 3 s"},
      {"free format", "\xFF\xFB\x04\x64" + body, "version 1 layer 3 0 48000 0 s"},
      {"all FF", "\xFF\xFF\xFF\xFF", "version 1 layer 1 0 0 0 s"},
      {"behind a tag and its footer", in_tag + kFrame, "version 1 layer 3 128 44100 0 s"},
      {"reserved version", "\xFF\xEB\x90\x64" + kFrame, "none 0 0 0 s"},
      {"reserved layer", "\xFF\xF9\x90\x64" + kFrame, "none 0 0 0 s"},
      {"in the last three bytes", std::string(70000, 'x') + "\xFF\xFB\x90", "none 0 0 0 s"}};
  // The search reads ahead in blocks; a header must be found wherever it lies in them.
  for (const size_t at : {65533u, 65534u, 65535u, 65536u, 131070u, 131071u}) {
    rows.push_back({"across blocks", std::string(at, 'x') + kFrame, Figures(kFrame)});
  }
  Check(rows, Figures);
}

TEST(MpegInfo, RoundsAndReachesBeyondTwoGigabytes) {
  const Scratch scratch;
  const std::string path = scratch.Put("a.mp3", std::string(2000, 'x') + kFrame);
  std::filesystem::resize_file(scratch.Native("a.mp3"), 4800000);
  MpegInfo info;
  ASSERT_TRUE(ReadMpegInfo(path, info));
  EXPECT_EQ(info.Seconds, 300);
  EXPECT_EQ(info.ChannelMode, "Joint stereo");

  std::filesystem::resize_file(scratch.Native("a.mp3"), 3200002000);
  std::ofstream(scratch.Native("a.mp3"), std::ios::app) << Id3v1("end", Bytes("\0\1\0"));
  ASSERT_TRUE(ReadMpegInfo(path, info));
  EXPECT_EQ(info.Seconds, 200000);
  EXPECT_EQ(info.ID3v1Kind, 1);
  EXPECT_EQ(info.FileSize, 3200002128);
}

}  // namespace
}  // namespace sonotik
