// The frames of real GIFs, pixel by pixel as giflib decodes them. Left out where giflib isn't
// there.
#include <gif_lib.h>
#include <gtest/gtest.h>

#include "support/gif_files.h"
#include "widgets/gif_decoder.h"

namespace sonotik {
namespace {

// The colour numbers row by row, as giflib puts them.
std::vector<uint8_t> InRows(const GifFrame& frame, const std::vector<uint8_t>& indexes) {
  std::vector<uint8_t> rows(indexes.size());
  const auto width = static_cast<size_t>(frame.width);
  for (size_t i = 0; i < indexes.size(); ++i) {
    const auto row = static_cast<size_t>(GifRow(frame, static_cast<int>(i / width)));
    rows[row * width + i % width] = indexes[i];
  }
  return rows;
}

TEST(Gifs, HaveTheColorNumbersOfEveryFrameAsGiflibSeesThem) {
  const TempFolder folder;
  for (const std::string& name : MakeGifs(folder)) {
    const std::string bytes = folder.Read(name);
    const auto gif = ReadGif(bytes);
    ASSERT_TRUE(gif) << name;
    GifFileType* const judge = DGifOpenFileName((folder.native() / name).string().c_str(), nullptr);
    ASSERT_NE(judge, nullptr) << name;
    ASSERT_EQ(DGifSlurp(judge), GIF_OK) << name;
    ASSERT_EQ(gif->frames.size(), static_cast<size_t>(judge->ImageCount)) << name;
    for (size_t i = 0; i < gif->frames.size(); ++i) {
      const GifFrame& frame = gif->frames[i];
      const SavedImage& judged = judge->SavedImages[i];
      EXPECT_EQ((std::vector{frame.left, frame.top, frame.width, frame.height}),
                (std::vector{judged.ImageDesc.Left, judged.ImageDesc.Top, judged.ImageDesc.Width,
                             judged.ImageDesc.Height}));
      const std::vector<uint8_t> indexes = InRows(frame, DecodeGifFrame(bytes, frame));
      ASSERT_EQ(indexes.size(), static_cast<size_t>(frame.width) * frame.height) << name;
      EXPECT_TRUE(std::equal(indexes.begin(), indexes.end(), judged.RasterBits))
          << name << ", frame " << i;
      const ColorMapObject* const colors =
          judged.ImageDesc.ColorMap != nullptr ? judged.ImageDesc.ColorMap : judge->SColorMap;
      const std::vector<Color>& table = gif->color_tables[frame.color_table];
      ASSERT_EQ(table.size(), static_cast<size_t>(colors->ColorCount)) << name;
      for (size_t k = 0; k < table.size(); ++k) {
        const GifColorType& color = colors->Colors[k];
        ASSERT_EQ(table[k], Rgb(color.Red, color.Green, color.Blue)) << name << ", colour " << k;
      }
      GraphicsControlBlock control{};
      if (DGifSavedExtensionToGCB(judge, static_cast<int>(i), &control) != GIF_OK) continue;
      EXPECT_EQ(frame.delay_ms, control.DelayTime * 10) << name;
      EXPECT_EQ(frame.transparent ? frame.transparent_index : -1, control.TransparentColor) << name;
    }
    DGifCloseFile(judge, nullptr);
  }
}

}  // namespace
}  // namespace sonotik
