// What guests, stations and coins do while a track starts: the start lets events run.
#include <gtest/gtest.h>

#include "files/files.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class StartTest : public DayTest {
 protected:
  // Once, in the given round of pending events.
  void InRound(int round, std::function<void()> action) {
    machine.events.on_pump = [this, round, action, count = 0]() mutable {
      if (++count != round) return;
      const auto act = action;
      act();
    };
  }
  void Press(QueueCommand command) { Click(form().queue.commands[static_cast<size_t>(command)]); }
  // The queue's screen with this entry chosen.
  void ChooseEntry(size_t row) {
    PressMenu(MenuButton::kShowQueue);
    Click(form().queue.rows[row].touch);
  }
  using Paths = std::vector<std::string>;
};

TEST_F(StartTest, ADoubleTapPaysOnceAndEventsDuringAStartChangeNoRecord) {
  WriteTrack("Night", "1.wav", "Bob", "Moon");
  StartPaid(4);
  OpenOptions(0);
  const Point button = Middle(form().play_options.play_now);
  InRound(1, [&] {
    form().form.Click(button);
    house().track_list.track_List2(AlbumPath("Night"));
    jukebox->navigation.PressPlayer(PlayerButton::kPause);
  });
  Click(form().play_options.play_now);
  EXPECT_EQ(house().credits.count(), 2);
  EXPECT_EQ(Plays(), 1U);
  EXPECT_EQ(folder.Read("User_history.dat").substr(255, 5), "Dawn ");
  EXPECT_FALSE(house().playback.paused || form().paused.visible());
  EXPECT_TRUE(machine.player.playing());
}

TEST_F(StartTest, AStartWithinAStartLeavesTheTickOffUntilTheOuterOneIsDone) {
  Start();
  int inner = 0;
  machine.events.on_pump = [&] {
    if (++inner != 1) return;
    house().tracks.Play_track3(tracks[1]);
    EXPECT_FALSE(house().state_timer.enabled());
  };
  house().queue.Append(tracks[0], "");
  Advance(1);
  EXPECT_GT(inner, 1);
  EXPECT_TRUE(house().state_timer.enabled());
}

TEST_F(StartTest, TheQueueEntryPlayedNowIsTheOneThatGoesWhateverCameBefore) {
  Start();
  Choose(tracks[0]);
  for (size_t i : {1U, 2U}) Choose(tracks[i], PlayWay::kAddToQueue);
  ChooseEntry(1);
  InRound(1, [&] { Choose(tracks[0], PlayWay::kPlayNext); });
  Press(QueueCommand::kPlayNow);
  EXPECT_EQ(Playing(), tracks[2]);
  EXPECT_EQ(Queued(), (Paths{tracks[0], tracks[1]}));
}

TEST_F(StartTest, PlayNowInTheStartOfAnotherTrackTakesNothingAndCanBeTouchedAgain) {
  for (int round = 1; round <= 2; ++round) {
    StartPaid(10);
    house().queue.Append(tracks[0], "");
    OpenOptions(1);
    InRound(round, [&] { Click(form().play_options.play_now); });
    Advance(1);
    machine.events.on_pump = [] {};
    EXPECT_EQ(Playing(), tracks[0]);
    EXPECT_EQ(house().credits.count(), 10);
    Click(form().play_options.play_now);
    EXPECT_EQ(Playing(), tracks[1]);
    EXPECT_EQ(house().credits.count(), 8);
    machine.player = TestPlayer();
  }
}

TEST_F(StartTest, AddToQueueInTheStartOfAnotherTrackIsPaidAndQueued) {
  StartPaid(10);
  house().queue.Append(tracks[0], "");
  OpenOptions(1);
  InRound(1, [&] { Click(form().play_options.add_to_queue); });
  Advance(1);
  EXPECT_EQ(house().credits.count(), 8);
  EXPECT_FALSE(form().panel(screen::kPlayOptions).visible());
  EXPECT_EQ(Playing(), tracks[0]);
  EXPECT_EQ(Queued(), Paths{tracks[1]});
}

TEST_F(StartTest, AGuestWhoGoesElsewhereIsNotBroughtBack) {
  Start();
  OpenOptions(1);
  InRound(1, [&] { jukebox->menu.Show(screen::kQueue); });
  Click(form().play_options.play_now);
  EXPECT_EQ(Playing(), tracks[1]);
  EXPECT_EQ(Shown(), Screens{screen::kQueue});
}

TEST_F(StartTest, AnotherTracksOptionsOpenedMeanwhileStayOpen) {
  settings.auto_back_on_selection = true;
  Start();
  OpenOptions(0);
  InRound(1, [&] { house().play_options.show_play_options(tracks[2], screen::kTrackList); });
  Click(form().play_options.play_now);
  EXPECT_TRUE(form().panel(screen::kPlayOptions).visible());
  EXPECT_EQ(form().play_options.title.caption(), "Dusk");
}

TEST_F(StartTest, PlayNowOfAQueuedSongIsPaidAgainAndTakesItOutEvenIfItIsRefused) {
  for (const int coins : {0, 10}) {
    StartPaid(coins);
    machine.player.lengths[tracks[0]] = 9000;
    house().tracks.Play_track3(tracks[0]);
    house().queue.Append(tracks[1], "");
    ChooseEntry(0);
    Press(QueueCommand::kPlayNow);
    EXPECT_EQ(house().queue.count(), 0);
    EXPECT_EQ(Playing(), tracks[coins == 0 ? 0 : 1]);
    EXPECT_EQ(house().credits.count(), coins == 0 ? 0 : 8);
    machine.player = TestPlayer();
  }
}

TEST_F(StartTest, ASpoolFileWaitsForTheEndOfTheMachinesOwnStartAndIsPaid) {
  folder.Write("terminal.ini", "x\r\n\r\nTrue\r\nFalse\r\n");
  StartPaid(10);
  InRound(1, [&] {
    folder.Write("Queue.QUE", " 1 \r\n 0 \r\n" + tracks[1] + "\r\n");
    Poll();
    EXPECT_TRUE(folder.Has("Queue.QUE"));
  });
  house().playback.random_in_progress = true;
  house().tracks.Play_track3(tracks[0]);
  house().playback.random_in_progress = false;
  EXPECT_EQ(house().credits.count(), 10);
  EXPECT_EQ(Playing(), tracks[0]);
  Advance(0.1);
  EXPECT_EQ(Playing(), tracks[1]);
  EXPECT_EQ(house().credits.count(), 8);
}

TEST_F(StartTest, TheTickTakesTheFirstEntryAlsoIfTheStartedOneWasRemovedMeanwhile) {
  Start();
  for (const std::string& track : tracks) house().queue.Append(track, "");
  ChooseEntry(0);
  InRound(1, [&] {
    Press(QueueCommand::kRemove);
    EXPECT_EQ(Queued(), (Paths{tracks[1], tracks[2]}));
  });
  Advance(1);
  EXPECT_EQ(Playing(), tracks[0]);
  EXPECT_EQ(Queued(), Paths{tracks[2]});
}

}  // namespace
}  // namespace sonotik
