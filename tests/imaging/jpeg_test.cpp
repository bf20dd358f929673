#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <functional>

#include "files/runtime_failure.h"
#include "imaging/cImage.h"
#include "imaging/cJpeg.h"
#include "imaging/form_image.h"
#include "support/temp_folder.h"

namespace sonotik {
namespace {
using testing::StartsWith;

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

std::vector<std::string> ContentsOf(const std::string& file, int marker) {
  std::vector<std::string> contents;
  for (const Segment& segment : SegmentsOf(file)) {
    if (segment.marker == marker) contents.push_back(segment.content);
  }
  return contents;
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
    for (const Segment& segment : SegmentsOf(file)) markers.push_back(segment.marker);
    std::vector<int> wanted = {0xE0, 0xFE, 0xDB, 0xDB, 0xC0, 0xC4, 0xDA};
    if (length > 0) wanted.insert(wanted.begin() + 1, 0xFE);
    EXPECT_EQ(markers, wanted);
    const auto comments = ContentsOf(file, 0xFE);
    EXPECT_EQ(comments.back(), "Sonotik");
    EXPECT_EQ(comments[0],
              length > 0 ? std::string(std::min<size_t>(length, 65533), 'x') : "Sonotik");
    EXPECT_EQ(file.substr(0, 2) + file.substr(file.size() - 2), "\xFF\xD8\xFF\xD9");
    EXPECT_EQ(ContentsOf(file, 0xC0)[0],
              std::string("\x08\0\x02\x01\x2C\x03\x01\x22\0\x02\x11\x01\x03\x11\x01", 15));
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
  std::array<uint16_t, kBlockSize> entries{};
  const auto quantization = [&entries](int precision, uint16_t last) {
    entries.fill(255);
    entries.back() = last;
    return FailureOf([&] { QuantizationTable(precision, entries); });
  };
  EXPECT_EQ(quantization(0, 1), "");
  EXPECT_EQ(quantization(1, 65535), "");
  EXPECT_EQ(quantization(0, 0), "Bad Quantization Table");
  EXPECT_EQ(quantization(1, 0), "Bad Quantization Table");
  EXPECT_EQ(quantization(0, 256), "Bad Quantization Table");
  for (const int bad : {-1, 2}) {
    EXPECT_EQ(quantization(bad, 1), "Illegal precission in Quantization Table");
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

TEST(Jpegs, TakeAQualityFrom1To100AndTheTablesOfTheTimeOfSampling) {
  const cImage image = Dark();
  cJpeg jpeg;
  EXPECT_EQ(jpeg.Quality(), 75);
  for (const int ignored : {0, 101, -1, INT_MAX}) jpeg.SetQuality(ignored);
  EXPECT_EQ(jpeg.Quality(), 75);
  const struct {
    int quality;
    // The first and last entry for luminance, whose bases are 16 and 99, and for chrominance.
    int first, last, first_color;
  } cases[] = {{1, 255, 255, 255}, {25, 32, 198, 34}, {50, 16, 99, 17},
               {75, 8, 50, 9},     {99, 1, 2, 1},     {100, 1, 1, 1}};
  for (const auto& c : cases) {
    jpeg.SetQuality(c.quality);
    jpeg.SampleHDC(image.hDC(), 20, 20);
    jpeg.SetQuality(3);
    const auto tables = ContentsOf(jpeg.FileBytes(), 0xDB);
    const auto entry = [&](size_t t, size_t k) { return static_cast<uint8_t>(tables[t][1 + k]); };
    EXPECT_EQ(entry(0, 0), c.first) << c.quality;
    EXPECT_EQ(entry(0, 63), c.last) << c.quality;
    EXPECT_EQ(entry(1, 0), c.first_color) << c.quality;
  }
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

TEST(Jpegs, AverageOverCellsEvenIfTheyCutPixels) {
  Plane plane(6, 6);
  // 30 to the right, 300 down.
  for (size_t i = 0; i < 36; ++i) plane.Row(i / 6)[i % 6] = 30.0F * (i % 6) + 300.0F * (i / 6);
  const struct {
    Rate across, down;
    std::vector<float> wanted;  // the first two of the second row
  } cases[] = {{{1, 2}, {1, 2}, {765, 825}},
               {{2, 4}, {1, 2}, {765, 825}},
               {{2, 3}, {3, 3}, {310, 350}},
               {{1, 1}, {2, 3}, {500, 530}},
               {{1, 3}, {1, 1}, {330, 420}}};
  for (const auto& c : cases) {
    Plane samples(2, 2);
    Subsample(plane, c.across, c.down, 2, samples);
    EXPECT_NEAR(samples.Row(1)[0], c.wanted[0], 0.01);
    EXPECT_NEAR(samples.Row(1)[1], c.wanted[1], 0.01);
  }
}

TEST(FormImage, PutsBothFilesInThePlaceOfOldOnes) {
  const TempFolder folder;
  folder.Write("forum.jpg", "old");
  folder.Write("forum.bmp", "old");
  EXPECT_THROW(form_image(PixelView(), folder.path()), RuntimeFailure);
  EXPECT_EQ(folder.Read("forum.bmp"), "old");
  const cImage image = Dark(3, 2);
  EXPECT_EQ(form_image(image.hDC(), folder.path()), folder.path() + "\\forum.jpg");
  EXPECT_THAT(folder.Read("forum.jpg"), StartsWith("\xFF\xD8"));
  EXPECT_THAT(folder.Read("forum.bmp"), StartsWith("BM"));
  EXPECT_EQ(folder.Read("forum.bmp").size(), 54U + 2 * 12);
}

}  // namespace
}  // namespace sonotik
