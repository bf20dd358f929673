#include "playback/media_engine.h"

#include <gtest/gtest.h>

#include "support/test_machine.h"
#include "widgets/controls.h"

namespace sonotik {
namespace {

class MediaEngineTest : public testing::Test {
 protected:
  MediaEngineTest() {
    window.SetPlace({0, 0, 1280, 800});
    window.Add(host, {40, 24, 934, 526});
    window.Add(second, {0, 0, 1920, 1080});
  }
  Form window;
  VideoBox host;
  VideoBox second;
  Settings settings;
  TestPlayer player;
  TestEvents events;
  MediaEngine engine{player, events, settings, host};
};

TEST_F(MediaEngineTest, PositionAndLengthInHundredthsMeetAtTheEndWhateverTheFraction) {
  for (const auto& [length, duration] : {std::pair(0.3, 0.3),
                                         {12.344, 12.34},
                                         {12.996, 13.0},
                                         {12.999999, 13.0},
                                         {30.0, 30.0},
                                         {59.994, 59.99}}) {
    player.lengths["a"] = length;
    engine.OpenMedia("a", false);
    EXPECT_TRUE(engine.MediaIsPlaying() && player.playing());
    EXPECT_EQ(player.volume, 0);
    EXPECT_EQ(engine.MediaPosition(), 0);
    EXPECT_EQ(engine.MediaDuration(), duration);
    player.Add(1000);
    EXPECT_EQ(engine.MediaPosition(), duration) << length;
    engine.MediaPlay();
    EXPECT_LT(engine.MediaPosition(), 0.1);
  }
}

TEST_F(MediaEngineTest, AFileThatCanNotPlayCountsAsPlayingAndIsAtItsEnd) {
  player.lengths["long"] = 100;
  engine.OpenMedia("long", false);
  player.Add(50);
  EXPECT_EQ(engine.MediaPosition(), 50);
  player.lengths["bad"] = -1;
  engine.OpenMedia("bad", false);
  EXPECT_TRUE(engine.MediaIsPlaying());
  EXPECT_EQ(engine.MediaDuration(), 0);
  EXPECT_EQ(engine.MediaPosition(), 0);
}

TEST_F(MediaEngineTest, APausedTrackKeepsItsPlaceEvenOverAStop) {
  engine.OpenMedia("a", false);
  player.Add(10);
  engine.MediaPause();
  EXPECT_FALSE(engine.MediaIsPlaying());
  engine.MediaStop();
  EXPECT_EQ(engine.MediaPosition(), 10);
  engine.MediaPlay();
  EXPECT_EQ(engine.MediaPosition(), 10);
  engine.MediaStop();
  EXPECT_EQ(engine.MediaPosition(), 0);
  EXPECT_FALSE(engine.MediaIsPlaying());
}

TEST_F(MediaEngineTest, ALengthThatCorrectsItselfIsReadAgain) {
  player.lengths["vbr"] = 40;
  engine.OpenMedia("vbr", false);
  EXPECT_EQ(engine.MediaDuration(), 40);
  player.lengths["vbr"] = 35.5;
  player.Shorten(35.5);
  player.Add(100);
  EXPECT_EQ(engine.MediaDuration(), 35.5);
  EXPECT_EQ(engine.MediaPosition(), 35.5);
}

TEST_F(MediaEngineTest, TheVideoFillsTheMainBoxAndKeepsItsRatioOnTheSecondMonitor) {
  player.native_size = VideoSize{640, 360};
  engine.OpenMedia("v", false);
  EXPECT_EQ(player.placement, (VideoPlacement{VideoHost::kMainWindow, 0, 0, 934, 526}));
  engine.SetSecondHost(&second);
  settings.use_second_monitor = true;
  player.native_size = VideoSize{400, 300};
  engine.OpenMedia("v", false);
  EXPECT_EQ(player.placement, (VideoPlacement{VideoHost::kSecondMonitor, 0, -180, 1920, 1440}));
  engine.OpenMedia("v", true);
  EXPECT_EQ(player.placement, (VideoPlacement{VideoHost::kSecondMonitor, 0, 0, 1920, 1080}));
  engine.CloseMedia();
  EXPECT_EQ(player.placement.host, VideoHost::kNone);
}

}  // namespace
}  // namespace sonotik
