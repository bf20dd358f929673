#include <gtest/gtest.h>

#include <QImage>
#include <cstdlib>

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

QImage Sheet(const PixelSurface& pixels) {
  return {pixels.bytes.data(), pixels.width, pixels.height, pixels.stride, QImage::Format_RGB32};
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
  const QImage sheet = Sheet(drawn), bmp = Loaded(folder, "forum.bmp");
  const QImage jpeg = Loaded(folder, "forum.jpg");
  ASSERT_EQ(bmp.size(), QSize(480, 160));
  ASSERT_EQ(jpeg.size(), bmp.size());
  EXPECT_EQ(bmp, sheet);
  EXPECT_EQ(bmp.pixel(80, 80), qRgb(255, 0, 0));
  int64_t apart = 0;
  for (int y = 0; y < 160; ++y) {
    for (int x = 0; x < 480; ++x) {
      apart += std::abs(qGreen(bmp.pixel(x, y)) - qGreen(jpeg.pixel(x, y)));
    }
  }
  EXPECT_LT(apart, 480 * 160 * 2);
  for (const Label* name : names) {
    const QRect row(160, static_cast<int>(name->place().top), 320,
                    static_cast<int>(name->place().height));
    EXPECT_NE(sheet.copy(row), Sheet(empty).copy(row));
  }
}

}  // namespace
}  // namespace sonotik
