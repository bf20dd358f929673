#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class CreditsTest : public JukeboxTest {
 protected:
  CreditsTest() {
    settings.enable_credit_mode = true;
    // By column: Add To Queue, Play Next, Play Now for audio, then video, then karaoke.
    folder.Write("cost.dat", " 0 \r\n 2 \r\n 4 \r\n 1 \r\n 3 \r\n 5 \r\n 6 \r\n 7 \r\n 8 \r\n");
  }
  std::string Caption() { return form().credits.caption(); }
};

TEST_F(CreditsTest, TheSumTakenIsReadAcrossTheGridFromTheSumShown) {
  Start();
  Credits& credits = house().credits;
  EXPECT_EQ(credits.ShownPrice(kAudio, PlayWay::kPlayNext), 2);
  credits.Receive("100");
  EXPECT_TRUE(credits.ChargeForSelection(kAudio, false, true, false));
  EXPECT_EQ(credits.count(), 97);
  EXPECT_TRUE(credits.ChargeForSelection(kVideo, false, false, false));
  EXPECT_EQ(credits.count(), 95);
  EXPECT_TRUE(credits.ChargeForSelection(kKaraoke, true, false, false));
  EXPECT_EQ(credits.count(), 86);
  EXPECT_EQ(Caption(), "CREDITS:  86");
}

TEST_F(CreditsTest, PricesAreSavedAsTheyWereRead) {
  Start();
  const std::string read = folder.Read("cost.dat");
  std::filesystem::remove(folder.native() / "cost.dat");
  house().credits.SaveCost();
  EXPECT_EQ(folder.Read("cost.dat"), read);
}

TEST_F(CreditsTest, WithTooFewNothingIsAddedOrTaken) {
  Start();
  house().credits.Receive("2");
  Choose("\\m\\1.wav", PlayWay::kPlayNext);
  EXPECT_EQ(house().credits.count(), 2);
  EXPECT_EQ(house().queue.count(), 0);
  EXPECT_FALSE(folder.Has("queue.upl"));
  house().credits.Receive("1");
  Choose("\\m\\1.wav", PlayWay::kPlayNext);
  EXPECT_EQ(house().credits.count(), 0);
  EXPECT_EQ(house().queue.count(), 1);
}

TEST_F(CreditsTest, TheMachineOtherPagesAndBothFlagsPayNothing) {
  Start();
  EXPECT_TRUE(house().credits.ChargeForSelection(kAudio, false, false, true));
  EXPECT_TRUE(house().credits.ChargeForSelection(kNewSongs, false, false, false));
  EXPECT_TRUE(house().credits.ChargeForSelection(kAudio, true, true, false));
  EXPECT_FALSE(house().credits.ChargeForSelection(kAudio, false, false, false));
}

TEST_F(CreditsTest, CoinsAreAnyTextAndNeverWrap) {
  Start();
  const struct {
    const char* text;
    int count;
  } cases[] = {
      {"abc", 0},    {"", 0},      {"1.5", 2},          {"2.5", 4},   {"0.5", 4},
      {"-1", 3},     {"1e2", 103}, {"99999999", 32767}, {"1", 32767}, {"-99999999", -32768},
      {"-1", -32768}};
  for (const auto& c : cases) {
    house().credits.Receive(c.text);
    EXPECT_EQ(house().credits.count(), c.count) << c.text;
  }
  EXPECT_NE(Caption(), "CREDITS: -32768");
  Advance(0.1);
  EXPECT_EQ(Caption(), "CREDITS: -32768");
}

TEST_F(CreditsTest, OnlyARealSwitchStartsTheCreditModule) {
  Start();
  const std::string module = folder.path() + "\\creditmodule.exe";
  EXPECT_EQ(machine.processes.started, std::vector<std::string>{module});
  jukebox->effects.LoadConfig();
  EXPECT_EQ(machine.processes.started.size(), 1U);
}

TEST_F(CreditsTest, WithoutCoinsThePlayOptionsShowPricesAndNoButton) {
  const std::string path = WriteTrack("A", "1.wav");
  Start();
  house().play_options.show_play_options(path, screen::kTrackList);
  PlayOptionsScreen& screen = form().play_options;
  EXPECT_EQ(screen.message.caption(), "Insert Coins To Play AUDIO");
  EXPECT_FALSE(screen.play_now.visible());
  EXPECT_FALSE(screen.cancel.visible());
  EXPECT_EQ(screen.prices[0].caption(), " 1 Credits Add To Queue");
  EXPECT_EQ(screen.prices[2].caption(), " 7 Credits Play NOW");
  Click(screen.message);
  EXPECT_FALSE(screen.panel.visible());
}

TEST_F(CreditsTest, TheTestPriceOfVideoIsTheAudioPriceOfPlayNext) {
  const std::string path = WriteTrack("A", "1.wav");
  Start();
  house().cursor.media_kind = kVideo;
  house().credits.Receive("2");
  // Adding would cost 2, but 3 are asked for.
  house().play_options.show_play_options(path, screen::kTrackList);
  EXPECT_EQ(form().play_options.message.caption(), "Insert Coins To Play VIDEO");
  house().credits.Receive("1");
  house().play_options.show_play_options(path, screen::kTrackList);
  EXPECT_EQ(form().play_options.message.caption(), "");
}

TEST_F(CreditsTest, SwitchedOffTheCountIsKeptUnseenAndOnAgainStartsAnotherFeeder) {
  Start();
  house().credits.Receive("4");
  const auto switch_to = [&](bool on) {
    settings.enable_credit_mode = on;
    WriteDefaults();
    jukebox->effects.LoadConfig();
  };
  switch_to(false);
  EXPECT_EQ(Caption(), "FREEPLAY");
  EXPECT_EQ(form().play_caption.caption(), "Play NOW");
  EXPECT_EQ(machine.processes.started.size(), 1U);
  switch_to(true);
  EXPECT_EQ(Caption(), "CREDITS:  4");
  EXPECT_EQ(machine.processes.started.size(), 2U);
}

TEST_F(CreditsTest, WithoutPricesEverythingIsFree) {
  std::filesystem::remove(folder.native() / "cost.dat");
  Start();
  for (const PlayWay way : {PlayWay::kAddToQueue, PlayWay::kPlayNext}) {
    Choose("\\m\\1.wav", way);
  }
  EXPECT_EQ(house().queue.count(), 2);
  EXPECT_EQ(house().credits.count(), 0);
}

TEST_F(CreditsTest, WithSomeCreditsInHandATouchBesideTheButtonsLeavesNothing) {
  const std::string path = WriteTrack("A", "1.wav");
  folder.Write("cost.dat", " 5 \r\n 5 \r\n 5 \r\n 5 \r\n 5 \r\n 5 \r\n 5 \r\n 5 \r\n 5 \r\n");
  Start();
  house().credits.Receive("1");
  house().play_options.show_play_options(path, screen::kTrackList);
  EXPECT_EQ(form().play_options.message.caption(), "Insert Coins To Play AUDIO");
  Click(form().play_options.message);
  EXPECT_TRUE(form().play_options.panel.visible());
}

TEST_F(CreditsTest, APriceComesBackOnlyForATrackThatNeverBegan) {
  const std::string path = WriteTrack("A", "1.wav");
  Start();
  const auto play_now = [&] { EXPECT_THROW(Choose(path, PlayWay::kPlayNow), RuntimeFailure); };
  house().credits.Receive("10");
  house().tracks.hooks.mute_line_in = [] { throw RuntimeFailure("no mixer"); };
  house().settings.mute_line_in_on_play = true;
  play_now();
  EXPECT_EQ(house().credits.count(), 10);
  house().settings.mute_line_in_on_play = false;
  house().tracks.hooks.start_song_facts = [] { throw RuntimeFailure("no facts"); };
  play_now();
  EXPECT_EQ(machine.player.file, path);
  EXPECT_EQ(house().credits.count(), 5);
}

}  // namespace
}  // namespace sonotik
