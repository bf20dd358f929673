// The system's own controls in all their states, painted into pictures that somebody can look at:
// gallery-*.png beside the test program.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <memory>
#include <vector>

#include "desktop/painter_canvas.h"
#include "support/temp_folder.h"
#include "widgets/lvButtons_H.h"

namespace sonotik {
namespace {

constexpr int kWidth = 1180, kHeight = 690;

class Gallery : public testing::Test {
 protected:
  Gallery() {
    form.SetPlace({0, 0, kWidth, kHeight});
    form.SetBackColor(Rgb(16, 18, 32));
    form.pictures = &pictures;
    QImage star(160, 120, QImage::Format_RGB32);
    star.fill(Qt::magenta);
    QPainter art(&star);
    art.setPen(Qt::NoPen);
    art.setBrush(QColor(255, 200, 90));
    art.drawPolygon(QPolygon({{80, 4}, {110, 42}, {156, 60}, {80, 116}, {4, 60}, {50, 42}}));
    art.end();
    Save(star, "star.png");
  }

  void Save(const QImage& image, const char* name) {
    ASSERT_TRUE(image.save(QString::fromStdString((folder.native() / name).string())));
  }
  std::string Picture(const char* name) const { return folder.path() + "\\" + name; }

  // In rows of nine.
  lvButtons_H& Button(const std::string& caption, Color back) {
    const auto column = static_cast<float>(buttons.size() % 9);
    const auto row = static_cast<float>(buttons.size() / 9);
    buttons.push_back(std::make_unique<lvButtons_H>());
    lvButtons_H& button = *buttons.back();
    form.Add(button, {10 + 130 * column, 10 + 84 * row, 118, 68});
    button.SetCaption(caption);
    button.SetForeColor(kWhite);
    button.SetBackColor(back);
    button.SetFocusRect(false);
    return button;
  }
  QImage Paint(const char* name) {
    QImage image(2 * kWidth, 2 * kHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(2, 2);
    PainterCanvas canvas(painter, pictures, form.place(), 2);
    form.Paint(canvas);
    painter.end();
    const QString file = QCoreApplication::applicationDirPath() + "/gallery-" + name + ".png";
    EXPECT_TRUE(image.save(file));
    return image;
  }
  static QImage Part(const QImage& image, const Control& control) {
    const Rect& p = control.place();
    return image.copy(static_cast<int>(p.left * 2), static_cast<int>(p.top * 2),
                      static_cast<int>(p.width * 2), static_cast<int>(p.height * 2));
  }
  // No two of these buttons look the same, and none looks like the wall behind it.
  void ExpectAllDiffer(const QImage& image, size_t first, size_t count) {
    for (size_t i = first; i < first + count; ++i) {
      const QImage a = Part(image, *buttons[i]);
      QImage wall(a.size(), a.format());
      wall.fill(QColor(16, 18, 32));
      EXPECT_NE(a, wall) << i;
      for (size_t k = i + 1; k < first + count; ++k) {
        EXPECT_NE(a, Part(image, *buttons[k])) << i << " and " << k;
      }
    }
  }

  const TempFolder folder;
  PictureCache pictures;
  Form form;
  std::vector<std::unique_ptr<lvButtons_H>> buttons;
};

// A row a style: idle, under the mouse, held, checked, disabled, and the four gradients.
TEST_F(Gallery, EveryStyleShowsEveryStateByItself) {
  for (int style = 0; style < 8; ++style) {
    for (int state = 0; state < 9; ++state) {
      const bool neon = style == back_style::kNeon;
      lvButtons_H& button = Button("Add To Queue", neon ? Rgb(32, 160, 255) : Rgb(52, 60, 96));
      button.SetBackStyle(style);
      if (state == 1) button.SetHoverColors(Rgb(28, 20, 8), Rgb(255, 184, 77));
      if (state == 1) button.MouseEnter();
      if (state == 2) button.MouseDown({{59, 34}});
      if (state == 3) button.SetMode(kCheckMode);
      button.SetValue(state == 3);
      button.SetEnabled(state != 4);
      button.SetcGradient(Rgb(150, 60, 110));
      button.SetGradient(std::max(0, state - 4));
    }
  }
  const QImage image = Paint("styles");
  for (size_t style = 0; style < 8; ++style) {
    ExpectAllDiffer(image, style * 9, 9);
    lvButtons_H& focused = *buttons[style * 9];
    focused.SetFocusRect(true);
    form.SetFocus(&focused);
    EXPECT_NE(Part(image, focused), Part(Paint("styles"), focused));
  }
}

TEST_F(Gallery, EveryShapeShowsTheWallWhereNoPressFindsIt) {
  for (int style = 0; style < 8; ++style) {
    for (int shape = 0; shape < 9; ++shape) {
      lvButtons_H& button = Button("Play||Now", Rgb(150, 44, 60));
      button.SetImage(shape > 6 ? Picture("star.png") : "");
      button.SetBackStyle(style);
      button.SetShape(shape);
      button.SetCapStyle(style % 3);
    }
  }
  const QImage image = Paint("shapes");
  for (size_t style = 0; style < 8; ++style) ExpectAllDiffer(image, style * 9, 8);
  for (size_t i = 0; i < buttons.size(); ++i) {
    const QImage part = Part(image, *buttons[i]);
    for (const Point at : {Point{0.25F, 0.25F}, {117.75F, 0.25F}, {0.25F, 67.75F}}) {
      if (buttons[i]->Covers(at)) continue;
      const QRgb pixel = part.pixel(static_cast<int>(at.x * 2), static_cast<int>(at.y * 2));
      EXPECT_LT(qRed(pixel), 60) << i << " at " << at.x << "," << at.y;
    }
  }
}

}  // namespace
}  // namespace sonotik
