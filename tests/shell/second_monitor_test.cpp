// The room's screen: what stands on it, when it shows, and what monitors do that come and go.
#include <gmock/gmock.h>

#include "forms/Form3.h"
#include "peripherals/clsScreens.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

using testing::ElementsAre;

constexpr MonitorArea kFirst{0, 0, 1280, 800};
constexpr MonitorArea kRoom{1280, 0, 1920, 1080};

class SecondMonitorTest : public JukeboxTest {
 protected:
  SecondMonitorTest() {
    settings.use_second_monitor = true;
    settings.second_monitor = 1;
    PlugIn();
    song = WriteTrack("Day", "1.wav", "Ada & Co", "Dawn");
    folder.Write("music/Day/clip.mpg", "x");
    clip = AlbumPath("Day") + "clip.mpg";
    machine.player.lengths[clip] = 600;
    machine.player.native_size = VideoSize{640, 360};
  }
  void PlugIn() {
    machine.displays.monitors = {{.whole = kFirst, .primary = true}, {.whole = kRoom}};
  }
  template <typename Value>
  void Set(Value Settings::*option, Value value) {
    house().settings.*option = value;
    jukebox->effects.displays.MoveSecondMonitor();
  }
  // Calls by which a player would be heard.
  int Heard() const {
    int heard = 0;
    for (const std::string& call : machine.player.calls) {
      heard += call == "Stop" || call == "Pause" || call == "SetPosition" || call == "Close";
    }
    return heard;
  }

  std::string song, clip;
};

TEST_F(SecondMonitorTest, TheTickerTellsOfAGuestsSongForTenSeconds) {
  Start();
  Choose(clip);
  const Panel& ticker = house().form3.ticker;
  EXPECT_FALSE(ticker.visible()) << "what plays at once is not announced";
  Choose(song, PlayWay::kAddToQueue);
  EXPECT_EQ(house().form3.ticker_caption.caption(), "Ada && Co - Dawn Added to Queue...");
  EXPECT_TRUE(ticker.visible());
  Advance(9);
  Choose(song, PlayWay::kPlayNext);
  EXPECT_EQ(house().form3.ticker_caption.caption(), "Ada && Co - Dawn Added, will Play NEXT!");
  Advance(9);
  EXPECT_TRUE(ticker.visible()) << "the seconds begin anew";
  Advance(1);
  EXPECT_FALSE(ticker.visible());
  house().playback.random_in_progress = true;
  house().selection.add_queue4(song);
  EXPECT_FALSE(ticker.visible()) << "the machine's own choice";
  house().playback.random_in_progress = false;
  house().settings.use_second_monitor = false;
  Choose(song, PlayWay::kAddToQueue);
  EXPECT_FALSE(ticker.visible());
}

TEST_F(SecondMonitorTest, FactsShowInBothWindowsWhetherOrNotTheSecondIsUsed) {
  folder.Write("songfacts.dat", FactBytes("Ada & Co", "Dawn", {"Made & sung"}));
  machine.player.lengths[song] = 100;
  settings.use_second_monitor = false;
  Start();
  Choose(song);
  EXPECT_TRUE(form().song_fact.visible());
  form().ShowScreen(screen::kNowPlaying);
  EXPECT_EQ(form().form.children().back(), &form().song_fact);
  form().ShowScreen(screen::kOptions);
  EXPECT_NE(form().form.children().back(), &form().song_fact) << "over buttons";
  form().ShowScreen(screen::kNowPlaying);
  EXPECT_TRUE(house().form3.facts.visible());
  EXPECT_EQ(house().form3.fact.caption(), form().song_fact.caption());
  Advance(13);
  EXPECT_FALSE(house().form3.facts.visible());
}

TEST_F(SecondMonitorTest, StandsOnItsMonitorOrOnTheFirstUntilThatIsThere) {
  const std::pair<int, MonitorArea> cases[] = {
      {0, kFirst}, {1, kRoom}, {2, kFirst}, {32767, kFirst}, {-1, kFirst}};
  for (const auto& [number, area] : cases) {
    settings.second_monitor = number;
    Start();
    EXPECT_TRUE(machine.messages.shown.empty()) << "a monitor that is off is no damaged file";
    EXPECT_EQ(machine.displays.second_area, area) << number;
    const Form3& form3 = house().form3;
    for (const Panel* bar : {&form3.ticker, &form3.facts}) {
      EXPECT_EQ(bar->place().bottom(), static_cast<float>(area.height));
      EXPECT_EQ(bar->place().width, static_cast<float>(area.width));
    }
    EXPECT_EQ(form3.fact.place().right(), form3.facts_inner.place().left);
    EXPECT_TRUE(machine.displays.second_shown);
    EXPECT_EQ(house().settings.second_monitor, number);
  }
  machine.displays.monitors.clear();
  EXPECT_EQ(clsScreens(machine.displays).Count(), 1);
  EXPECT_EQ(Start().house.lists.monitors, ItemList{"1"});
}

TEST_F(SecondMonitorTest, AnUnpluggedMonitorSendsTheWindowHomeAndNeverStopsTheSound) {
  Start();
  Choose(clip);
  const VideoPlacement in_the_room = machine.player.placement;
  EXPECT_EQ(in_the_room, (VideoPlacement{VideoHost::kSecondMonitor, 0, 0, 1920, 1080}));
  const int heard = Heard();
  machine.displays.monitors.pop_back();
  machine.displays.on_monitors_changed();
  EXPECT_EQ(machine.displays.second_area, kFirst);
  EXPECT_EQ(machine.player.placement,
            (VideoPlacement{VideoHost::kSecondMonitor, 0, 40, 1280, 720}));
  Advance(5);
  machine.displays.monitors.clear();
  machine.displays.on_monitors_changed();
  PlugIn();
  machine.displays.on_monitors_changed();
  EXPECT_EQ(machine.displays.second_area, kRoom);
  EXPECT_EQ(machine.player.placement, in_the_room);
  EXPECT_EQ(Heard(), heard);
  EXPECT_TRUE(machine.player.playing());
}

TEST_F(SecondMonitorTest, ShowsForVideosAndForSongsAsItIsSet) {
  for (const bool videos_only : {false, true}) {
    Start();
    EXPECT_TRUE(machine.displays.second_shown) << "the file knows nothing of \"Videos Only\"";
    Set(&Settings::second_monitor_videos_only, videos_only);
    EXPECT_EQ(machine.displays.second_shown, !videos_only) << "at once";
    Choose(clip);
    EXPECT_TRUE(machine.displays.second_shown);
    EXPECT_FALSE(form().now_playing.video.visible());
    Choose(song);
    EXPECT_EQ(machine.displays.second_shown, !videos_only);
    house().playback.paused = true;
    Set(&Settings::second_monitor_videos_only, !videos_only);
    EXPECT_EQ(machine.displays.second_shown, videos_only);
  }
}

TEST_F(SecondMonitorTest, AVideoFitsAMonitorChosenWhileTheWindowWasHidden) {
  Start();
  Set(&Settings::second_monitor_videos_only, true);
  Choose(clip);
  Choose(song);
  Set(&Settings::second_monitor, 0);
  Choose(clip);
  EXPECT_EQ(machine.player.placement.width, 1280);
}

TEST_F(SecondMonitorTest, APictureMovesBetweenTheWindowsWhileItPlays) {
  settings.use_second_monitor = false;
  Start();
  Choose(clip);
  NowPlayingScreen& screen = form().now_playing;
  const VideoPlacement box{VideoHost::kMainWindow, 0, 0,
                           static_cast<int>(screen.video.place().width),
                           static_cast<int>(screen.video.place().height)};
  EXPECT_EQ(machine.player.placement, box);
  EXPECT_FALSE(machine.displays.second_shown);
  const int heard = Heard();
  for (int i = 0; i < 3; ++i) {
    Set(&Settings::use_second_monitor, true);
    EXPECT_TRUE(machine.displays.second_shown);
    EXPECT_FALSE(screen.video.visible() || screen.full_screen.visible());
    EXPECT_EQ(machine.player.placement.host, VideoHost::kSecondMonitor);
    Set(&Settings::second_monitor, i % 2);
    EXPECT_EQ(machine.player.placement.width, i % 2 == 0 ? 1280 : 1920);
    Set(&Settings::use_second_monitor, false);
    EXPECT_FALSE(machine.displays.second_shown);
    EXPECT_TRUE(screen.video.visible() && screen.full_screen.visible());
    EXPECT_EQ(machine.player.placement, box);
  }
  EXPECT_EQ(Heard(), heard);
  EXPECT_TRUE(machine.player.playing());
}

TEST_F(SecondMonitorTest, FullScreenGoesOnAndOffInItsSteps) {
  folder.Write("skins/Plain/resolution.ini", "a\nb\nc\n1024\n768\n");
  Start();
  auto& calls = machine.displays.calls;
  const auto switch_it = [&](bool on) {
    calls.clear();
    house().settings.full_screen = on;
    jukebox->effects.displays.SwitchFullScreen();
    EXPECT_EQ(house().form2.style[0].enabled, on);
  };
  machine.displays.second_area = {};
  switch_it(true);
  EXPECT_THAT(calls,
              ElementsAre("ChangeResolution 1024 768", "FitWindow 1 0", "SetTaskbarVisible 0 0"));
  EXPECT_EQ(machine.displays.second_area, kRoom) << "fitted again";
  switch_it(false);
  EXPECT_THAT(calls,
              ElementsAre("RestoreResolution 0 0", "FitWindow 0 0", "SetTaskbarVisible 1 0"));
  // A skin that doesn't tell its size leaves the mode, and whatever was changed is given back.
  folder.Remove("skins/Plain/resolution.ini");
  jukebox->effects.ApplySkin();
  switch_it(true);
  EXPECT_THAT(calls, ElementsAre("FitWindow 1 0", "SetTaskbarVisible 0 0"));
  calls.clear();
  jukebox->LeaveInOrder();
  EXPECT_THAT(calls, ElementsAre("SetTaskbarVisible 1 0", "RestoreResolution 0 0"));
}

TEST_F(SecondMonitorTest, StartsInFullScreenWithoutAFrameWhateverTheSkinTells) {
  settings.full_screen = true;
  machine.displays.style.fill(true);
  Start();
  const auto flag = [this](StyleFlag which) {
    return machine.displays.style[static_cast<size_t>(which)];
  };
  EXPECT_FALSE(flag(StyleFlag::Titlebar) || flag(StyleFlag::Sizable));
  EXPECT_TRUE(flag(StyleFlag::ToolWindow)) << "no matter of full screen";
  EXPECT_TRUE(house().form2.style[static_cast<size_t>(StyleFlag::ToolWindow)].value);
  EXPECT_TRUE(flag(StyleFlag::TopMost));
  EXPECT_THAT(machine.displays.calls,
              ElementsAre("RestoreResolution 0 0", "SetTaskbarVisible 0 0"));
}

}  // namespace
}  // namespace sonotik
