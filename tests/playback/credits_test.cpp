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
  EXPECT_EQ(house().credits.ShownPrice(kAudio, PlayWay::kPlayNext), 2);
  const struct {
    int kind;
    bool now, next, machine;
    int before, after;
  } cases[] = {{kAudio, false, true, false, 100, 97},
               {kVideo, false, false, false, 97, 95},
               {kKaraoke, true, false, false, 95, 86},
               // The machine, other pages and both flags at once pay nothing.
               {kAudio, false, false, true, 0, 0},
               {kNewSongs, false, false, false, 0, 0},
               {kAudio, true, true, false, 0, 0}};
  for (const auto& c : cases) {
    house().credits.Receive(std::to_string(c.before - house().credits.count()));
    EXPECT_TRUE(house().credits.ChargeForSelection(c.kind, c.now, c.next, c.machine));
    EXPECT_EQ(house().credits.count(), c.after);
  }
  // Told by the charge that took it; coins wait for the tick.
  EXPECT_EQ(Caption(), "CREDITS:  86");
  EXPECT_FALSE(house().credits.ChargeForSelection(kAudio, false, false, false));
  const std::string read = folder.Read("cost.dat");
  house().credits.SaveCost();
  EXPECT_EQ(folder.Read("cost.dat"), read);
}

TEST_F(CreditsTest, WithTooFewNothingIsAddedOrTakenAndWithoutPricesEverythingIsFree) {
  Start();
  for (const auto& [coin, left, queued] : {std::tuple("2", 2, 0), {"1", 0, 1}, {"0", 0, 1}}) {
    house().credits.Receive(coin);
    Choose("\\m\\1.wav", PlayWay::kPlayNext);
    EXPECT_EQ(house().credits.count(), left);
    EXPECT_EQ(house().queue.count(), queued);
    EXPECT_EQ(folder.Has("queue.upl"), queued > 0);
  }
  folder.Remove("cost.dat");
  Start();
  for (const PlayWay way : {PlayWay::kAddToQueue, PlayWay::kPlayNext}) Choose("\\m\\1.wav", way);
  EXPECT_EQ(house().queue.count(), 2);
  EXPECT_EQ(house().credits.count(), 0);
}

TEST_F(CreditsTest, CoinsAreAnyTextAndNeverWrap) {
  Start();
  const std::pair<const char*, int> cases[] = {
      {"abc", 0},    {"", 0},      {"1.5", 2},          {"2.5", 4},   {"0.5", 4},
      {"-1", 3},     {"1e2", 103}, {"99999999", 32767}, {"1", 32767}, {"-99999999", -32768},
      {"-1", -32768}};
  for (const auto& [text, count] : cases) {
    house().credits.Receive(text);
    EXPECT_EQ(house().credits.count(), count) << text;
  }
  EXPECT_NE(Caption(), "CREDITS: -32768");
  Advance(0.1);
  EXPECT_EQ(Caption(), "CREDITS: -32768");
}

TEST_F(CreditsTest, ThePlayOptionsShowPricesAndAskForThatOfPlayNext) {
  const std::string path = WriteTrack("A", "1.wav");
  Start();
  PlayOptionsScreen& screen = form().play_options;
  const struct {
    int kind;
    const char *coins, *message, *add_to_queue, *play_now;
    bool stays;  // after a touch beside the buttons
  } cases[] = {
      {kAudio, "0", "Insert Coins To Play AUDIO", " 1 Credits Add To Queue", " 7 Credits Play NOW",
       false},
      // Adding would cost 2, but 3 are asked for; with some in hand a touch leaves nothing.
      {kVideo, "2", "Insert Coins To Play VIDEO", " 3 Credits Add To Queue", " 8 Credits Play NOW",
       true}};
  for (const auto& c : cases) {
    house().cursor.media_kind = c.kind;
    house().credits.Receive(c.coins);
    house().play_options.show_play_options(path, screen::kTrackList);
    EXPECT_EQ(screen.message.caption(), c.message);
    EXPECT_FALSE(screen.play_now.visible() || screen.cancel.visible());
    EXPECT_EQ(screen.prices[0].caption(), c.add_to_queue);
    EXPECT_EQ(screen.prices[2].caption(), c.play_now);
    Click(screen.message);
    EXPECT_EQ(screen.panel.visible(), c.stays);
  }
  house().credits.Receive("1");
  house().play_options.show_play_options(path, screen::kTrackList);
  EXPECT_EQ(screen.message.caption(), "");
  EXPECT_TRUE(screen.play_now.visible());
}

TEST_F(CreditsTest, SwitchedOffTheCountIsKeptUnseenAndOnAgainStartsAnotherFeeder) {
  Start();
  house().credits.Receive("4");
  const auto switch_to = [&](bool on) {
    settings.enable_credit_mode = on;
    WriteDefaults();
    jukebox->effects.LoadConfig();
  };
  switch_to(true);
  EXPECT_EQ(machine.processes.started,
            std::vector<std::string>{folder.path() + "\\creditmodule.exe"});
  switch_to(false);
  EXPECT_EQ(Caption(), "FREEPLAY");
  EXPECT_EQ(form().play_caption.caption(), "Play NOW");
  EXPECT_EQ(machine.processes.started.size(), 1U);
  switch_to(true);
  EXPECT_EQ(Caption(), "CREDITS:  4");
  EXPECT_EQ(machine.processes.started.size(), 2U);
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
