#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include "desktop/form_window.h"
#include "desktop/painter_canvas.h"
#include "desktop/qt_machine.h"
#include "desktop/text_decoding.h"
#include "files/program_folder.h"
#include "support/jukebox_test.h"
#include "support/skin_files.h"

namespace sonotik {
namespace {

class WindowTest : public JukeboxTest {
 protected:
  void ShowWindow() {
    window = std::make_unique<FormWindow>(form().form, pictures);
    window->show();
    Settle();
  }
  static void Settle() {
    for (int i = 0; i < 10; ++i) QCoreApplication::processEvents();
  }
  void MouseAt(QEvent::Type type, const QPointF& at) {
    QMouseEvent event(type, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.get(), &event);
  }
  PictureCache pictures;
  std::unique_ptr<FormWindow> window;
};

TEST_F(WindowTest, AnIdleScreenIsNotRepaintedAndAChangeIsOnce) {
  settings.show_time_and_date = false;
  WriteDefaults();
  Start();
  ShowWindow();
  Advance(3);
  Settle();
  const int before = window->paints();
  EXPECT_GT(before, 0);
  for (int i = 0; i < 30; ++i) {
    Advance(1);
    Settle();
  }
  EXPECT_EQ(window->paints(), before);
  form().credits.SetCaption("changed");
  form().clock.SetCaption("changed too");
  Settle();
  EXPECT_EQ(window->paints(), before + 1);
}

TEST_F(WindowTest, ATouchFindsItsControlAtAnyWindowSize) {
  Start();
  ShowWindow();
  for (const QSize size : {QSize(1280, 800), QSize(640, 400), QSize(1920, 800), QSize(800, 900)}) {
    window->resize(size);
    Settle();
    form().HideAllScreens();
    form().ShowScreen(screen::kAlbum);
    const double scale = std::min(size.width() / 1280.0, size.height() / 800.0);
    const Rect place =
        form().menu_buttons[static_cast<size_t>(MenuButton::kShowQueue)].AbsolutePlace();
    const QPointF at((size.width() - 1280 * scale) / 2 + (place.left + place.width / 2) * scale,
                     (size.height() - 800 * scale) / 2 + (place.top + place.height / 2) * scale);
    MouseAt(QEvent::MouseButtonPress, at);
    MouseAt(QEvent::MouseButtonRelease, at);
    EXPECT_TRUE(form().panel(screen::kQueue).visible()) << size.width();
  }
}

TEST_F(WindowTest, PaintsASkinWhoseNumbersMakeNoSense) {
  Start();
  ShowWindow();
  QImage picture(40, 30, QImage::Format_RGB32);
  picture.fill(Qt::red);
  picture.save(QString::fromStdString((folder.native() / "skins/Plain/a.bmp").string()));
  for (const char* number : {"-1e30", "-1", "0", "1", "1e5", "1e30"}) {
    for (const LayoutFile& file : LayoutFiles()) {
      folder.Write(std::string("skins/Plain/") + file.name,
                   LayoutText(file, [&](const LayoutField& field) -> std::string {
                     const bool third = field.number % 3 == 0;
                     const FieldKind kind = field.kind;
                     if (kind == FieldKind::kFontSize) return number;
                     if (kind == FieldKind::kPicture) return third ? "" : "a.bmp";
                     if (kind == FieldKind::kShape) return std::to_string(field.number % 9);
                     const bool place = kind >= FieldKind::kTop && kind <= FieldKind::kWidth;
                     if (!place) return PlainValue(field);
                     return third || kind >= FieldKind::kHeight ? number : "0";
                   }));
    }
    jukebox->house.skins.ApplySkin();
    for (size_t i = 0; i < form().panels.size(); ++i) {
      form().HideAllScreens();
      form().ShowScreen(i);
      EXPECT_FALSE(window->grab().isNull()) << number;
    }
  }
}

TEST_F(WindowTest, StaysOpenUntilTheProgramLeaves) {
  Start();
  ShowWindow();
  window->may_close = [this] { return jukebox->MayClose(); };
  EXPECT_FALSE(window->close());
  EXPECT_TRUE(window->isVisible());
  jukebox->LeaveInOrder();
  EXPECT_TRUE(window->close());
}

TEST_F(WindowTest, AHandlerThatKeepsTheThreadIsPaintedAndNothingElseRuns) {
  Start();
  ShowWindow();
  QtEventLoop loop;
  bool ran = false;
  QMetaObject::invokeMethod(
      qApp, [&ran] { ran = true; }, Qt::QueuedConnection);
  const int before = window->paints();
  form().credits.SetCaption("changed");
  loop.PaintNow();
  EXPECT_EQ(window->paints(), before + 1);
  EXPECT_FALSE(ran);
  Settle();
  EXPECT_TRUE(ran);
}

TEST(EventLoop, OtherTimersGoOnWhileAHandlerLetsEventsRun) {
  SystemClock clock;
  Timers timers(clock);
  QtEventLoop loop;
  loop.Drive(timers);
  Timer slow(timers, 1), poll(timers, 1);
  int polls = 0;
  poll.on_tick = [&] { ++polls; };
  slow.on_tick = [&] {
    slow.SetEnabled(false);
    while (polls < 5) loop.PumpEvents();
    loop.Leave(7);
  };
  slow.SetEnabled(true);
  poll.SetEnabled(true);
  EXPECT_EQ(loop.Run(), 7);
}

TEST(Fonts, TheFontOfTheDesignIsTheOneThatIsTaken) {
  const Font font;
  EXPECT_EQ(QFontInfo(QFont(QString::fromStdString(font.family))).family(),
            QString::fromStdString(font.family));
}

// Where a text leaves its marks on white paper.
QRect MarksOf(const std::string& text, const Rect& place, bool wrap) {
  QImage paper(400, 200, QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  PictureCache pictures;
  PainterCanvas canvas(painter, pictures, {0, 0, 400, 200}, 1);
  canvas.DrawText(text, place, {{.points = 12}, kBlack, Align::kLeft, wrap});
  painter.end();
  QRect marks;
  for (int y = 0; y < paper.height(); ++y) {
    for (int x = 0; x < paper.width(); ++x) {
      if (qGray(paper.pixel(x, y)) < 200) marks |= QRect(x, y, 1, 1);
    }
  }
  return marks;
}

TEST(Texts, ThatDoNotFitAreWrittenSmallerAndThenCut) {
  const Rect place{100, 60, 120, 40}, wide{100, 60, 290, 40};
  EXPECT_EQ(MarksOf("Folk", place, true), MarksOf("Folk", wide, true));
  // As a whole, but smaller.
  EXPECT_LT(MarksOf("Big Band Orchestra", place, false).height(),
            MarksOf("Big Band Orchestra", wide, false).height());
  for (const bool wrap : {true, false}) {
    for (const std::string& text :
         {std::string("Alternative Country Rock"), std::string("Counterrevolutionaries"),
          std::string(1024, 'x'), std::string("one\ntwo\nthree\nfour\nfive")}) {
      const QRect marks = MarksOf(text, place, wrap);
      EXPECT_FALSE(marks.isEmpty()) << text;
      EXPECT_TRUE(QRect(98, 60, 124, 42).contains(marks)) << text;
    }
  }
}

TEST(TextDecoding, TakesUtf8WhereItIsValidAndTheOldCodePageElsewhere) {
  EXPECT_EQ(Decode("Caf\xC3\xA9"), QString::fromUtf8("Caf\xC3\xA9"));
  EXPECT_EQ(Decode("Caf\xE9 \x80 \x92"), QString::fromUtf8("Caf\u00E9 \u20AC \u2019"));
  EXPECT_EQ(Decode("\xC3\x28"), QString::fromUtf8("\u00C3("));
}

TEST(Pictures, AreDecodedOnceAtTheirSizeAndAgainOnlyWhenTheFileChanges) {
  const TempFolder folder;
  QImage image(600, 300, QImage::Format_RGB32);
  image.fill(Qt::red);
  const QString native = QString::fromStdString((folder.native() / "Cover.jpg").string());
  ASSERT_TRUE(image.save(native));
  PictureCache pictures;
  const std::string path = folder.path() + "\\cover.JPG";
  const std::pair<PictureFit, int> heights[] = {{PictureFit::kStretch, 100},
                                                {PictureFit::kCover, 100},
                                                {PictureFit::kContain, 50},
                                                {PictureFit::kReflection, 100}};
  for (int times = 0; times < 2; ++times) {
    for (const auto& [fit, height] : heights) {
      EXPECT_EQ(pictures.Get(path, {100, 100}, fit).size(), QSize(100, height));
    }
  }
  EXPECT_EQ(pictures.decodes(), 4);
  image.fill(Qt::blue);
  ASSERT_TRUE(image.save(native, nullptr, 40));
  const QImage again = pictures.Get(path, {100, 100}, PictureFit::kCover);
  EXPECT_GT(qBlue(again.pixel(50, 50)), 200);
}

TEST(Pictures, AreBoundedAndHostileOnesAreNone) {
  const TempFolder folder;
  PictureCache pictures(1 << 20);
  const auto is_picture = [&](const std::string& name) {
    return !pictures.Get(folder.path() + "\\" + name, {400, 400}, PictureFit::kCover).isNull();
  };
  QImage image(400, 400, QImage::Format_RGB32);
  image.fill(Qt::green);
  for (int i = 0; i < 10; ++i) {
    const std::string name = std::to_string(i) + ".png";
    ASSERT_TRUE(image.save(QString::fromStdString((folder.native() / name).string())));
    EXPECT_TRUE(is_picture(name));
    EXPECT_LE(pictures.bytes(), (1 << 20));
  }
  std::string whole = folder.Read("0.png");
  folder.Write("cut.png", whole.substr(0, 60));
  folder.Write("empty.jpg", "");
  // A head that claims 30,000 x 30,000 pixels.
  whole.replace(16, 8, std::string("\0\0\x75\x30\0\0\x75\x30", 8));
  folder.Write("huge.png", whole);
  for (const char* name : {"cut.png", "empty.jpg", "huge.png", "gone.png"}) {
    EXPECT_FALSE(is_picture(name)) << name;
  }
}

TEST(ProgramFolders, AreWhereALinkStands) {
  const TempFolder folder;
  folder.Write("bin/sonotik", "x");
  std::filesystem::permissions(folder.native() / "bin/sonotik", std::filesystem::perms::all);
  std::filesystem::create_directory(folder.native() / "box");
  std::filesystem::create_symlink("../bin/sonotik", folder.native() / "box/sonotik");
  const std::string started = (folder.native() / "box/sonotik").string();
  EXPECT_EQ(ProgramFolder(started.c_str(), ""), folder.native() / "box");
  const std::string search = "/nowhere:" + (folder.native() / "bin").string();
  EXPECT_EQ(ProgramFolder("sonotik", search.c_str()), folder.native() / "bin");
}

}  // namespace
}  // namespace sonotik
