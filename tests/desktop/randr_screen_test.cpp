// Monitors and modes on a real X server without a screen; xrandr is the judge.
#include "desktop/randr_screen.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QProcess>
#include <memory>

#include "desktop/event_loop.h"
#include "desktop/qt_displays.h"

namespace sonotik {
namespace {

using testing::HasSubstr;

class RandrScreenTest : public testing::Test {
 protected:
  void SetUp() override {
    server.setProcessChannelMode(QProcess::SeparateChannels);
    server.start(
        "Xvfb", {"-displayfd", "1", "-screen", "0", "1600x900x24", "-noreset", "-nolisten", "tcp"});
    ASSERT_TRUE(server.waitForStarted());
    while (!server.canReadLine()) ASSERT_TRUE(server.waitForReadyRead(20000));
    display = ":" + server.readLine().trimmed();
    Xrandr(
        {"--newmode", "small", "83.5", "1280", "1352", "1480", "1680", "800", "803", "809", "831"});
    Xrandr({"--addmode", "screen", "small"});
  }
  void TearDown() override {
    server.kill();
    server.waitForFinished();
  }
  std::string Xrandr(QStringList arguments) {
    QProcess process;
    process.start("xrandr", QStringList{"-d", display} + arguments);
    process.waitForFinished();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput().toStdString();
  }
  // What the server says of its screen.
  std::string Size() {
    const std::string text = Xrandr({});
    const size_t from = text.find("current ") + 8;
    return text.substr(from, text.find(',', from) - from);
  }
  std::unique_ptr<RandrScreen> Screen() {
    return std::make_unique<RandrScreen>(display.constData());
  }

  QProcess server;
  QByteArray display;
};

TEST_F(RandrScreenTest, ChangesModeAndScreenTogetherAndGivesBothBack) {
  const auto screen = Screen();
  EXPECT_FALSE(screen->ChangeMode(1024, 768)) << "a mode that the monitor hasn't";
  EXPECT_FALSE(screen->ChangeMode(0, -1));
  EXPECT_EQ(Size(), "1600 x 900");
  EXPECT_TRUE(screen->ChangeMode(1280, 800));
  EXPECT_EQ(Size(), "1280 x 800");
  const DisplayMode mode = screen->CurrentMode();
  EXPECT_EQ(mode.width, 1280);
  EXPECT_EQ(mode.frequency, 60);
  EXPECT_EQ(screen->Monitors().front().whole, (MonitorArea{0, 0, 1280, 800}));
  EXPECT_FALSE(screen->ChangeMode(640, 480)) << "a refusal leaves the former change";
  EXPECT_EQ(Size(), "1280 x 800");
  screen->RestoreMode();
  EXPECT_EQ(Size(), "1600 x 900");
  Xrandr({"-s", "1280x800"});
  screen->RestoreMode();
  EXPECT_EQ(Size(), "1280 x 800") << "what somebody else has set is his";
}

TEST_F(RandrScreenTest, TheNextStartPutsRightWhatAKilledProgramLeft) {
  Screen()->ChangeMode(1280, 800);
  EXPECT_EQ(Size(), "1280 x 800");
  auto next = Screen();
  EXPECT_EQ(Size(), "1280 x 800") << "a second start of a running jukebox changes nothing";
  next->RestoreMode();
  EXPECT_EQ(Size(), "1600 x 900");
  next->ChangeMode(1280, 800);
  next->ChangeMode(1600, 900);
  next->ChangeMode(1280, 800);
  next.reset();
  Screen()->RestoreMode();
  EXPECT_EQ(Size(), "1600 x 900") << "the mode found first counts";
}

TEST_F(RandrScreenTest, ListsThePrimaryMonitorFirstAndTellsOfEveryChange) {
  Xrandr({"--setmonitor", "left", "800/200x900/200+0+0", "screen"});
  Xrandr({"--setmonitor", "*right", "800/200x900/200+800+0", "none"});
  QtDisplays displays(display.constData());
  const auto monitors = displays.Monitors();
  ASSERT_EQ(monitors.size(), 2u);
  EXPECT_EQ(monitors[0].whole, (MonitorArea{800, 0, 800, 900}));
  EXPECT_TRUE(monitors[0].primary);
  EXPECT_EQ(monitors[1].whole, (MonitorArea{0, 0, 800, 900}));
  int told = 0;
  displays.on_monitors_changed = [&] { ++told; };
  Xrandr({"--delmonitor", "left"});
  Xrandr({"--setmonitor", "top", "800/200x400/200+0+0", "none"});
  EXPECT_TRUE(Becomes([&] { return told > 0; }));
  EXPECT_EQ(told, 1) << "once for all that happened at a time";
  EXPECT_EQ(displays.Monitors().size(), 3u) << "with that of the output, which is free again";
  displays.ChangeResolution(1280, 800);
  EXPECT_TRUE(Becomes([&] { return told == 2; }));
}

TEST(RandrScreens, WithoutAServerThereAreTheToolkitsMonitorsAndNoModes) {
  RandrScreen screen(":4711");
  EXPECT_FALSE(screen.connected());
  EXPECT_TRUE(screen.Monitors().empty());
  EXPECT_FALSE(screen.ChangeMode(1280, 800));
  screen.RestoreMode();
  QtDisplays displays(":4711");
  EXPECT_EQ(displays.Monitors().size(), 1u);
  EXPECT_GT(displays.CurrentMode().width, 0);
}

}  // namespace
}  // namespace sonotik
