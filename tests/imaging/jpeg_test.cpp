#include <gtest/gtest.h>

#include <array>
#include <functional>

#include "files/runtime_failure.h"
#include "imaging/cImage.h"
#include "imaging/cJpeg.h"

namespace sonotik {
namespace {

std::string FailureOf(const std::function<void()>& work) {
  try {
    work();
  } catch (const RuntimeFailure& failure) {
    return failure.what();
  }
  return "";
}

struct Segment {
  int marker;
  std::string content;
};

// Up to the first scan.
std::vector<Segment> SegmentsOf(const std::string& file) {
  std::vector<Segment> segments;
  const auto byte = [&file](size_t at) { return static_cast<unsigned char>(file.at(at)); };
  for (size_t at = 2; segments.empty() || segments.back().marker != 0xDA;) {
    EXPECT_EQ(byte(at), 0xFF);
    const size_t length = byte(at + 2) * 256U + byte(at + 3);
    segments.push_back({byte(at + 1), file.substr(at + 4, length - 2)});
    at += 2 + length;
  }
  return segments;
}

cImage Dark(int width = 20, int height = 20) {
  cImage image;
  image.Create(width, height, 24);
  return image;
}

TEST(Jpegs, HaveTheirSegmentsInOneOrderAndCutACommentThatNoneHolds) {
  const cImage image = Dark(300, 2);
  cJpeg jpeg;
  ASSERT_TRUE(jpeg.SampleHDC(image.hDC(), 300, 2));
  for (const size_t length : {0U, 1U, 65533U, 65535U}) {
    jpeg.SetComment(std::string(length, 'x'));
    const std::string file = jpeg.FileBytes();
    std::vector<int> markers;
    std::vector<std::string> comments;
    std::string frame;
    for (const auto& [marker, content] : SegmentsOf(file)) {
      markers.push_back(marker);
      if (marker == 0xFE) comments.push_back(content);
      if (marker == 0xC0) frame = content;
    }
    std::vector<int> wanted = {0xE0, 0xFE, 0xDB, 0xDB, 0xC0, 0xC4, 0xDA};
    if (length > 0) wanted.insert(wanted.begin() + 1, 0xFE);
    EXPECT_EQ(markers, wanted);
    EXPECT_EQ(comments.back(), "Sonotik");
    EXPECT_EQ(comments[0],
              length > 0 ? std::string(std::min<size_t>(length, 65533), 'x') : "Sonotik");
    EXPECT_EQ(file.substr(0, 2) + file.substr(file.size() - 2), "\xFF\xD8\xFF\xD9");
    EXPECT_EQ(frame, std::string("\x08\0\x02\x01\x2C\x03\x01\x22\0\x02\x11\x01\x03\x11\x01", 15));
  }
}

TEST(Jpegs, RefuseValuesInTheirOwnWords) {
  cJpeg jpeg;
  for (const int bad : {0, 5, -1}) {
    for (size_t at = 0; at < 6; ++at) {
      std::array<int, 6> f = {1, 1, 1, 1, 1, 1};
      f[at] = bad;
      EXPECT_EQ(FailureOf([&] { jpeg.SetSamplingFrequencies(f[0], f[1], f[2], f[3], f[4], f[5]); }),
                "Invalid Sampling Value");
    }
  }
  EXPECT_EQ(FailureOf([&] { jpeg.SetComment(std::string(65536, 'x')); }), "Illegal Comment Length");
  EXPECT_EQ(jpeg.Comment(), "");
  const char* const kBad = "Bad Quantization Table";
  const char* const kIllegal = "Illegal precission in Quantization Table";
  const struct {
    int precision;
    uint16_t last;
    const char* failure;
  } tables[] = {{0, 1, ""},     {1, 65535, ""},    {0, 0, kBad},    {1, 0, kBad},
                {0, 256, kBad}, {-1, 1, kIllegal}, {2, 1, kIllegal}};
  for (const auto& table : tables) {
    std::array<uint16_t, kBlockSize> entries;
    entries.fill(255);
    entries.back() = table.last;
    EXPECT_EQ(FailureOf([&] { QuantizationTable(table.precision, entries); }), table.failure);
  }
  const std::vector<uint8_t> symbols = {0, 1, 2, 3, 4};
  const auto huffman = [&symbols](std::array<uint8_t, 16> counts, size_t given) {
    return FailureOf([&] { HuffmanCodes({counts, std::span(symbols).first(given)}); });
  };
  EXPECT_EQ(huffman({0, 3, 2}, 5), "");
  EXPECT_EQ(huffman({3}, 3), "Bad Huffman Table");
  EXPECT_EQ(huffman({1, 3}, 4), "Bad Huffman Table");
  EXPECT_EQ(huffman({0, 3}, 2), "Bad Huffman Table");
  EXPECT_EQ(huffman({0, 3}, 5), "Bad Huffman Table");
}

TEST(Jpegs, SampleNothingThatIsTooLargeOrNotThere) {
  const cImage image = Dark();
  for (const auto& [width, height] :
       {std::array{0, 20}, {20, 0}, {-1, 20}, {65536, 1}, {1, 65536}, {65535, 65535}}) {
    cJpeg jpeg;
    ASSERT_TRUE(jpeg.SampleHDC(image.hDC(), 20, 20));
    EXPECT_FALSE(jpeg.SampleHDC(image.hDC(), width, height)) << width << " x " << height;
    EXPECT_EQ(FailureOf([&] { jpeg.FileBytes(); }), "no picture was sampled");
  }
  cJpeg jpeg;
  EXPECT_FALSE(jpeg.SampleHDC(cImage().hDC(), 20, 20));
  EXPECT_TRUE(jpeg.SampleHDC(image.hDC(), 1, 65535));
}

}  // namespace
}  // namespace sonotik
