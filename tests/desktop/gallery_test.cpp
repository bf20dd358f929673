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
#include "widgets/Slider.h"
#include "widgets/controls.h"
#include "widgets/lvButtons_H.h"

namespace sonotik {
namespace {

constexpr Color kNight = Rgb(16, 18, 32);

class Gallery : public testing::Test {
 protected:
  Gallery() {
    form.SetBackColor(kNight);
    form.pictures = &pictures;
    QImage note(64, 64, QImage::Format_ARGB32);
    note.fill(Qt::transparent);
    QPainter painter(&note);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 184, 77));
    painter.drawEllipse(6, 38, 22, 18);
    painter.drawRect(24, 8, 5, 40);
    painter.drawPolygon(QPolygon({{24, 8}, {52, 18}, {52, 30}, {24, 18}}));
    painter.end();
    Save(note, "note.png");
    QImage star(160, 120, QImage::Format_RGB32);
    star.fill(Qt::magenta);
    QPainter art(&star);
    QLinearGradient gold(0, 0, 0, 120);
    gold.setColorAt(0, QColor(255, 226, 150));
    gold.setColorAt(1, QColor(190, 110, 20));
    art.setPen(Qt::NoPen);
    art.setBrush(gold);
    QPolygonF points;
    for (int i = 0; i < 10; ++i) {
      const double turn = i * 3.14159265 / 5;
      const double r = i % 2 == 0 ? 1 : 0.55;
      points << QPointF(80 + 76 * r * std::sin(turn), 62 - 58 * r * std::cos(turn));
    }
    art.drawPolygon(points);
    art.end();
    Save(star, "star.png");
  }

  void Save(const QImage& image, const char* name) {
    ASSERT_TRUE(image.save(QString::fromStdString((folder.native() / name).string())));
  }
  std::string Picture(const char* name) const { return folder.path() + "\\" + name; }

  lvButtons_H& Button(const Rect& place, const std::string& caption, Color back) {
    buttons.push_back(std::make_unique<lvButtons_H>());
    lvButtons_H& button = *buttons.back();
    form.Add(button, place);
    button.SetCaption(caption);
    button.SetForeColor(kWhite);
    button.SetBackColor(back);
    button.SetFocusRect(false);
    return button;
  }
  void Head(const Rect& place, const std::string& text) {
    heads.push_back(std::make_unique<Label>());
    form.Add(*heads.back(), place);
    heads.back()->SetCaption(text);
    heads.back()->SetForeColor(Rgb(168, 174, 200));
  }
  // Puts the button under the mouse, under the finger, or both off.
  void Under(lvButtons_H& button, bool over, bool held) {
    const Rect p = button.place();
    if (over) button.MouseEnter();
    if (held) button.MouseDown({{p.width / 2, p.height / 2}});
  }
  QImage Paint(float width, float height, const char* name) {
    form.SetPlace({0, 0, width, height});
    constexpr int kScale = 2;
    QImage image(static_cast<int>(width) * kScale, static_cast<int>(height) * kScale,
                 QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.scale(kScale, kScale);
    PainterCanvas canvas(painter, pictures, form.place(), kScale);
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
  std::vector<std::unique_ptr<Label>> heads;
};

TEST_F(Gallery, EveryStyleShowsEveryStateByItself) {
  static constexpr const char* kStyles[] = {"raised", "flat",  "etched", "soft",
                                            "glass",  "bezel", "sunken", "neon"};
  static constexpr const char* kStates[] = {"Idle",     "Hover", "Held",    "Checked",
                                            "Disabled", "Focus", "Gradient"};
  for (int style = 0; style < 8; ++style) {
    const float y = 16 + 72 * static_cast<float>(style);
    Head({16, y, 80, 56}, kStyles[style]);
    for (int state = 0; state < 7; ++state) {
      lvButtons_H& button =
          Button({100 + 150 * static_cast<float>(state), y, 138, 56}, "Add To Queue",
                 style == back_style::kNeon ? Rgb(32, 160, 255) : Rgb(52, 60, 96));
      button.SetBackStyle(style);
      if (state == 1) button.SetHoverColors(Rgb(28, 20, 8), Rgb(255, 184, 77));
      if (state == 3) button.SetMode(kCheckMode);
      button.SetValue(state == 3);
      button.SetEnabled(state != 4);
      if (state == 6) button.SetcGradient(Rgb(150, 60, 110));
      if (state == 6) button.SetGradient(1);
      Under(button, state == 1, state == 2);
      if (style == 0) Head({100 + 150 * static_cast<float>(state), 0, 138, 16}, kStates[state]);
    }
  }
  form.SetPlace({0, 0, 1166, 600});
  const QImage image = Paint(1166, 600, "styles");
  for (size_t style = 0; style < 8; ++style) {
    lvButtons_H& focused = *buttons[style * 7 + 5];
    focused.SetFocusRect(true);
    form.SetFocus(&focused);
    const QImage marked = Paint(1166, 600, "styles");
    EXPECT_NE(Part(image, focused), Part(marked, focused));
    EXPECT_EQ(Part(image, *buttons[style * 7]), Part(image, focused));
    ExpectAllDiffer(image, style * 7, 5);
  }
}

TEST_F(Gallery, EveryShapeKeepsItsCaptionInsideInEveryStyle) {
  for (int style = 0; style < 8; ++style) {
    for (int shape = 0; shape < 9; ++shape) {
      lvButtons_H& button = Button(
          {16 + 130 * static_cast<float>(shape), 16 + 84 * static_cast<float>(style), 118, 68},
          "Play||Now", Rgb(150, 44, 60));
      button.SetImage(shape > 6 ? Picture("star.png") : "");
      button.SetBackStyle(style);
      button.SetShape(shape);
      EXPECT_EQ(button.shape(), shape);
      button.SetCapStyle(style % 3);
    }
  }
  form.SetPlace({0, 0, 1190, 690});
  const QImage image = Paint(1190, 690, "shapes");
  for (size_t style = 0; style < 8; ++style) ExpectAllDiffer(image, style * 9, 8);
  for (size_t i = 0; i < buttons.size(); ++i) {
    const QImage part = Part(image, *buttons[i]);
    // Where no press finds the button, the wall shows.
    for (const Point at : {Point{0.25F, 0.25F}, {117.75F, 0.25F}, {0.25F, 67.75F}}) {
      const QRgb pixel = part.pixel(static_cast<int>(at.x * 2), static_cast<int>(at.y * 2));
      if (buttons[i]->Covers(at)) continue;
      EXPECT_LT(qRed(pixel), 60) << i << " at " << at.x << "," << at.y;
    }
  }
}

TEST_F(Gallery, PicturesStandWhereTheyAreAlignedAndPressesChangeCutOnes) {
  for (int align = 0; align < 6; ++align) {
    for (int size = 0; size < 5; ++size) {
      lvButtons_H& button = Button(
          {16 + 172 * static_cast<float>(size), 16 + 92 * static_cast<float>(align), 160, 80},
          "Rock && Roll", Rgb(52, 60, 96));
      button.SetBackStyle(back_style::kGlass);
      button.SetImage(Picture("note.png"));
      button.SetImgAlign(align);
      button.SetImgSize(size);
    }
  }
  for (int effect = 0; effect < 9; ++effect) {
    lvButtons_H& button = Button({890 + 100 * static_cast<float>(effect % 3),
                                  16 + 92 * static_cast<float>(effect / 3), 96, 80},
                                 "", Rgb(0, 0, 0));
    button.SetImage(Picture("star.png"));
    button.SetShape(8);
    button.SetCustomClick(effect);
    Under(button, false, true);
  }
  const Rect last{890, 300, 290, 80};
  for (int gradient = 1; gradient <= 4; ++gradient) {
    lvButtons_H& button = Button(last.MovedBy(0, 60.0F * static_cast<float>(gradient - 1)),
                                 "A long caption that takes two lines", Rgb(120, 40, 140));
    button.SetPlace({last.left, last.top + 62.0F * static_cast<float>(gradient - 1), 290, 54});
    button.SetcGradient(Rgb(20, 120, 160));
    button.SetGradient(gradient);
    button.SetCapStyle(gradient % 3);
    button.SetBackStyle(back_style::kSoft);
  }
  form.SetPlace({0, 0, 1200, 580});
  const QImage image = Paint(1200, 580, "pictures");
  ExpectAllDiffer(image, 0, 30);
  ExpectAllDiffer(image, 30, 9);
  ExpectAllDiffer(image, 39, 4);
}

TEST_F(Gallery, SlidersShowHowFarTheyAreLyingAndStanding) {
  QImage track(200, 30, QImage::Format_RGB32), progress(200, 30, QImage::Format_RGB32);
  track.fill(QColor(50, 50, 60));
  progress.fill(QColor(255, 184, 77));
  QImage knob(20, 30, QImage::Format_RGB32);
  knob.fill(Qt::white);
  Save(track, "track.png");
  Save(progress, "progress.png");
  Save(knob, "knob.png");
  Slider plain, standing, skinned;
  form.Add(plain, {20, 20, 200, 40});
  form.Add(standing, {260, 20, 40, 160});
  form.Add(skinned, {20, 100, 10, 10});
  standing.SetPosition(1);
  skinned.SetPictureBack(Picture("track.png"));
  skinned.SetPictureProgress(Picture("progress.png"));
  skinned.SetBar(Picture("knob.png"));
  EXPECT_EQ(skinned.place(), (Rect{20, 100, 200, 30}));
  for (Slider* slider : {&plain, &standing, &skinned}) {
    slider->SetColors(Rgb(50, 50, 60), Rgb(255, 184, 77), kWhite);
    slider->SetValue(70);
  }
  const QImage image = Paint(320, 200, "sliders");
  const auto color = [&](float x, float y) {
    return image.pixelColor(static_cast<int>(x * 2), static_cast<int>(y * 2));
  };
  const QColor amber(255, 184, 77), grey(50, 50, 60);
  EXPECT_EQ(color(100, 40), amber);
  EXPECT_EQ(color(200, 40), grey);
  EXPECT_EQ(color(280, 170), amber);
  EXPECT_EQ(color(280, 40), grey);
  EXPECT_EQ(color(60, 115), amber);
  EXPECT_EQ(color(20 + 126 + 10, 115), QColor(Qt::white));
  EXPECT_EQ(color(200, 115), grey);
}

}  // namespace
}  // namespace sonotik
