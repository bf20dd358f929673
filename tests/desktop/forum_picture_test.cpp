#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "desktop/drawn_pixels.h"
#include "forms/Form2.h"
#include "imaging/form_image.h"
#include "support/temp_folder.h"

namespace sonotik {
namespace {

QImage Loaded(const TempFolder& folder, const char* name) {
  return QImage(QString::fromStdString((folder.native() / name).string()))
      .convertToFormat(QImage::Format_RGB32);
}

TEST(ForumPicture, ShowsTheTrackInBothFilesAsItWasDrawn) {
  const TempFolder folder;
  QImage cover(60, 60, QImage::Format_RGB32);
  cover.fill(Qt::red);
  ASSERT_TRUE(cover.save(QString::fromStdString((folder.native() / "Cover.png").string())));
  PictureCache pictures;
  Form2 form;
  const PixelSurface empty = DrawnPixels(form.forum, pictures);
  form.forum_cover.SetPicture(folder.path() + "\\Cover.png");
  Label* const names[] = {&form.forum_title, &form.forum_artist, &form.forum_album};
  for (Label* name : names) name->SetCaption("What is played");
  const PixelSurface drawn = DrawnPixels(form.forum, pictures);
  form_image(drawn, folder.path());
  const QImage bmp = Loaded(folder, "forum.bmp");
  const QImage jpeg = Loaded(folder, "forum.jpg");
  ASSERT_EQ(bmp.size(), QSize(480, 160));
  ASSERT_EQ(jpeg.size(), bmp.size());
  std::vector<int> lettered(160);
  int64_t apart = 0;
  for (int y = 0; y < 160; ++y) {
    for (int x = 0; x < 480; ++x) {
      const size_t at =
          static_cast<size_t>(y) * static_cast<size_t>(drawn.stride) + 4U * static_cast<size_t>(x);
      ASSERT_EQ(bmp.pixel(x, y), qRgb(drawn.bytes[at + 2], drawn.bytes[at + 1], drawn.bytes[at]));
      apart += std::abs(qGreen(bmp.pixel(x, y)) - qGreen(jpeg.pixel(x, y)));
      if (x >= 160 && drawn.bytes[at] != empty.bytes[at]) ++lettered[static_cast<size_t>(y)];
    }
  }
  EXPECT_EQ(bmp.pixel(80, 80), qRgb(255, 0, 0));
  EXPECT_LT(apart, 480 * 160 * 2);
  for (const Label* name : names) {
    const auto top = static_cast<size_t>(name->place().top);
    const auto bottom = static_cast<size_t>(name->place().bottom());
    EXPECT_GT(*std::max_element(&lettered[top], &lettered[bottom]), 10);
  }
}

}  // namespace
}  // namespace sonotik
