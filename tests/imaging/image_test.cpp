#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <functional>
#include <tuple>

#include "imaging/cImage.h"

namespace sonotik {
namespace {

// B, G and R as one number.
unsigned ColorAt(const PixelView& view, int x, int y) {
  uint8_t bgr[3];
  ReadRow(view, x, y, bgr);
  return bgr[0] | bgr[1] << 8U | bgr[2] << 16U;
}

// Larger than what is moved at a time, and a size that fills no row.
cImage Pattern(int bit_count, int width = 71, int height = 67) {
  PixelSurface surface{width, height, 4 * width, {}};
  for (int i = 0; i < width * height; ++i) {
    const int x = i % width, y = i / width;
    for (const int value : {x * 3, y * 3, (x * y) % 251, 7}) {
      surface.bytes.push_back(static_cast<uint8_t>(value));
    }
  }
  cImage image;
  image.CopyHDC(surface, width, height, bit_count);
  return image;
}

using Place = std::array<int, 2>;

// Each pixel of what was made is the one of the image for which `source` gives the place.
void ExpectMoved(const std::optional<cImage>& made, const cImage& image, int width, int height,
                 const std::function<Place(int, int)>& source) {
  ASSERT_TRUE(made);
  ASSERT_EQ(made->BitCount(), image.BitCount());
  ASSERT_EQ(made->Width(), width);
  ASSERT_EQ(made->Height(), height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const auto [from_x, from_y] = source(x, y);
      ASSERT_EQ(ColorAt(made->hDC(), x, y), ColorAt(image.hDC(), from_x, from_y)) << x << ", " << y;
    }
  }
}

TEST(Images, TakeTheirDepthFromThePictureOrFromItsColors) {
  const std::vector<uint8_t> bytes(64, 0xFF);
  PixelView picture;
  picture.width = picture.height = 3;
  picture.bytes_per_row = 16;
  picture.bytes = bytes;
  const int depths[][3] = {{1, 0, 1},   {4, 0, 4},    {8, 0, 8},  {16, 0, 24}, {24, 0, 24},
                           {32, 0, 24}, {24, 16, 24}, {24, 1, 1}, {24, 32, 0}, {15, 0, 0}};
  for (const auto [own, asked, wanted] : depths) {
    picture.bit_count = own;
    cImage image;
    EXPECT_EQ(image.CopyStdPicture(picture, asked), wanted != 0) << own << " as " << asked;
    EXPECT_EQ(image.BitCount(), wanted) << own << " as " << asked;
    // All bits are set, which is white wherever it isn't the number of a missing colour.
    const unsigned color = own < 16 || wanted == 0 ? 0 : 0xFFFFFF;
    EXPECT_EQ(ColorAt(image.hDC(), 2, 2), color) << own << " as " << asked;
  }
  const std::vector<Color> colors(257, Rgb(1, 2, 3));
  picture.bit_count = 8;
  for (const auto [count, wanted] :
       {std::array{0, 24}, {1, 1}, {2, 1}, {3, 4}, {16, 4}, {17, 8}, {256, 8}, {257, 24}}) {
    picture.colors = std::span(colors).first(static_cast<size_t>(count));
    cImage image;
    EXPECT_TRUE(image.CopyHDC(picture, 2, 2));
    EXPECT_EQ(image.BitCount(), wanted) << count;
    EXPECT_EQ(image.CopyPalletHDC(picture), count > 0 && wanted != 24) << count;
  }
}

TEST(Images, CopyWhatThereIsAndNoByteThatThereIsNot) {
  const cImage source = Pattern(24, 5, 4);
  cImage image;
  ASSERT_TRUE(image.CopyHDC(source.hDC(), 7, 6, 24, -1, -1));
  for (int y = 0; y < 6; ++y) {
    for (int x = 0; x < 7; ++x) {
      const bool inside = x >= 1 && x <= 5 && y >= 1 && y <= 4;
      EXPECT_EQ(ColorAt(image.hDC(), x, y), inside ? ColorAt(source.hDC(), x - 1, y - 1) : 0);
    }
  }
  for (const int far : {INT_MIN, -7, 5, INT_MAX}) {
    ASSERT_TRUE(image.CopyHDC(source.hDC(), 2, 2, 24, far, far));
    EXPECT_EQ(ColorAt(image.hDC(), 1, 1), 0U);
  }
  // A source that claims more than it has is none.
  PixelView lying = source.hDC();
  for (const auto& [width, height, row] :
       {std::tuple{6, 4, 16U}, {5, 5, 16U}, {5, INT_MAX, 16U}, {5, 4, 14U}, {-5, 4, 16U}}) {
    lying.width = width;
    lying.height = height;
    lying.bytes_per_row = row;
    EXPECT_FALSE(image.CopyHDC(lying, 2, 2, 24)) << width << " x " << height;
  }
  // Of itself.
  image = source;
  ASSERT_TRUE(image.CopyHDC(image.hDC(), 2, 2, 8, 3, 2));
  EXPECT_EQ(image.Width(), 2);
}

TEST(Images, AreMirroredTurnedClockwiseAndPickedFromInEveryDepth) {
  for (const int depth : {1, 4, 8, 24}) {
    const cImage image = Pattern(depth);
    const int w = image.Width(), h = image.Height();
    const auto quarter = [=](int x, int y) { return Place{y, h - 1 - x}; };
    const auto back = [=](int x, int y) { return Place{w - 1 - y, x}; };
    ExpectMoved(image.Rotate(90), image, h, w, quarter);
    ExpectMoved(image.Rotate(450), image, h, w, quarter);
    ExpectMoved(image.Rotate(270), image, h, w, back);
    ExpectMoved(image.Rotate(-90), image, h, w, back);
    ExpectMoved(image.Rotate(180), image, w, h, [=](int x, int y) {
      return Place{w - 1 - x, h - 1 - y};
    });
    ExpectMoved(image.Mirror(false), image, w, h, [=](int x, int y) {
      return Place{w - 1 - x, y};
    });
    ExpectMoved(image.Mirror(true), image, w, h, [=](int x, int y) { return Place{x, h - 1 - y}; });
    ExpectMoved(image.Resample(w, h), image, w, h, [](int x, int y) { return Place{x, y}; });
    ExpectMoved(image.Resample(2 * w, 3 * h), image, 2 * w, 3 * h, [](int x, int y) {
      return Place{x / 2, y / 3};
    });
    for (const int none : {0, 360, 45, -1, INT_MIN}) EXPECT_FALSE(image.Rotate(none)) << none;
    for (const auto& [width, height] : {Place{0, 5}, {5, -5}, {INT_MAX, INT_MAX}}) {
      EXPECT_FALSE(image.Resample(width, height)) << width;
    }
  }
  EXPECT_FALSE(cImage().Rotate(90));
  EXPECT_EQ(cImage().Mirror(true).Greyscale().Width(), 0);
}

TEST(Images, ScaledColorsAreTheMeanOfWhatTheyCover) {
  cImage image;
  image.Create(3, 2, 24);
  for (int x = 0; x < 9; ++x) {
    image.DIBitsPtr()[x] = static_cast<uint8_t>(30 * x);
    image.DIBitsPtr()[12 + x] = static_cast<uint8_t>(30 * x + 10);
  }
  // Blue is 0, 90, 180 in the upper row and 10 more in the lower one.
  const struct {
    int width, height;
    std::vector<unsigned> blues;  // of the first row
  } cases[] = {{1, 1, {95}},
               {2, 1, {35, 155}},
               {3, 1, {5, 95, 185}},
               {2, 2, {30, 150}},
               {6, 4, {0, 0, 90, 90, 180, 180}},
               {4, 2, {0, 60, 120, 180}}};
  for (const auto& c : cases) {
    const auto made = image.Resample(c.width, c.height);
    for (size_t x = 0; x < c.blues.size(); ++x) {
      EXPECT_EQ(ColorAt(made->hDC(), static_cast<int>(x), 0) & 255, c.blues[x]) << c.width;
    }
  }
}

}  // namespace
}  // namespace sonotik
