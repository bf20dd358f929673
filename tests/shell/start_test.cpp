// What guests, stations and coins do while a track starts: the start lets events run.
#include <gtest/gtest.h>

#include "files/files.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class StartTest : public JukeboxTest {
 protected:
  StartTest() {
    for (const char* title : {"Dawn", "Noon", "Dusk"}) {
      tracks.push_back(WriteTrack("Day", std::to_string(tracks.size() + 1) + " " + title + ".wav",
                                  "Ada", title));
    }
    WriteAlbums({{"Day", "Ada"}});
  }
  // Everything costs two credits, and the guest has ten.
  void OpenPaid() {
    settings.enable_credit_mode = true;
    WriteDefaults();
    folder.Write("cost.dat", " 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n");
    Start();
    house().credits.Receive("10");
  }
  // Once, in the given round of pending events.
  void InRound(int round, std::function<void()> action) {
    machine.events.on_pump = [this, round, action, count = 0]() mutable {
      if (++count != round) return;
      const auto act = action;
      act();
    };
  }
  std::string Playing() { return machine.player.file; }
  int Plays() {
    const std::string path = folder.path() + "\\" + kUserHistory;
    return FileExists(path) ? static_cast<int>(FileLength(path) / 1070) : 0;
  }
  std::vector<std::string> Queued() {
    std::vector<std::string> paths;
    for (int i = 0; i < house().queue.count(); ++i) paths.push_back(house().queue.path(i));
    return paths;
  }
  std::vector<std::string> tracks;
};

TEST_F(StartTest, ADoubleTapPaysOnceAndEventsDuringAStartChangeNoRecord) {
  settings.enable_credit_mode = true;
  WriteDefaults();
  folder.Write("cost.dat", " 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n");
  WriteTrack("Night", "1.wav", "Bob", "Moon");
  Start();
  house().credits.Receive("4\r\n");
  Click(form().album.covers[0].cover);
  Click(form().track_list.rows[0].title);
  const Rect button = form().play_options.play_now.AbsolutePlace();
  machine.events.on_pump = [&] {
    form().form.Click({button.left + 5, button.top + 5});
    house().track_list.track_List2(AlbumPath("Night"));
    jukebox->navigation.PressPlayer(PlayerButton::kPause);
    machine.events.on_pump = [] {};
  };
  Click(form().play_options.play_now);
  EXPECT_EQ(house().credits.count(), 2);
  EXPECT_EQ(Plays(), 1);
  EXPECT_EQ(folder.Read("User_history.dat").substr(255, 5), "Dawn ");
  EXPECT_FALSE(house().playback.paused);
  EXPECT_FALSE(form().paused.visible());
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
  house().selection.Choose(tracks[0], PlayWay::kPlayNow);
  house().selection.Choose(tracks[1], PlayWay::kAddToQueue);
  house().selection.Choose(tracks[2], PlayWay::kAddToQueue);
  Click(form().menu_buttons[static_cast<size_t>(MenuButton::kShowQueue)]);
  Click(form().queue.rows[1].touch);
  bool came = false;
  machine.events.on_pump = [&] {
    if (!came) house().selection.Choose(tracks[0], PlayWay::kPlayNext);
    came = true;
  };
  Click(form().queue.commands[static_cast<size_t>(QueueCommand::kPlayNow)]);
  EXPECT_EQ(Playing(), tracks[2]);
  ASSERT_EQ(house().queue.count(), 2);
  EXPECT_EQ(house().queue.path(0), tracks[0]);
  EXPECT_EQ(house().queue.path(1), tracks[1]);
}

TEST_F(StartTest, PlayNowInTheStartOfAnotherTrackTakesNothingAndCanBeTouchedAgain) {
  for (int round = 1; round <= 2; ++round) {
    OpenPaid();
    house().queue.Append(tracks[0], "");
    Click(form().album.covers[0].cover);
    Click(form().track_list.rows[1].title);
    InRound(round, [&] { Click(form().play_options.play_now); });
    Advance(1);
    machine.events.on_pump = [] {};
    EXPECT_EQ(Playing(), tracks[0]);
    EXPECT_EQ(house().credits.count(), 10);
    Click(form().play_options.play_now);
    EXPECT_EQ(Playing(), tracks[1]);
    EXPECT_EQ(house().credits.count(), 8);
    jukebox.reset();
    machine.player = TestPlayer();
  }
}

TEST_F(StartTest, AddToQueueInTheStartOfAnotherTrackIsPaidAndQueued) {
  OpenPaid();
  house().queue.Append(tracks[0], "");
  Click(form().album.covers[0].cover);
  Click(form().track_list.rows[1].title);
  InRound(1, [&] { Click(form().play_options.add_to_queue); });
  Advance(1);
  EXPECT_EQ(house().credits.count(), 8);
  EXPECT_FALSE(form().panel(screen::kPlayOptions).visible());
  EXPECT_EQ(Playing(), tracks[0]);
  EXPECT_EQ(Queued(), std::vector<std::string>{tracks[1]});
}

TEST_F(StartTest, AGuestWhoGoesElsewhereIsNotBroughtBack) {
  Start();
  Click(form().album.covers[0].cover);
  Click(form().track_list.rows[1].title);
  InRound(1, [&] { jukebox->menu.Show(screen::kQueue); });
  Click(form().play_options.play_now);
  EXPECT_EQ(Playing(), tracks[1]);
  EXPECT_TRUE(form().panel(screen::kQueue).visible());
  EXPECT_FALSE(form().panel(screen::kTrackList).visible());
}

TEST_F(StartTest, AnotherTracksOptionsOpenedMeanwhileStayOpen) {
  settings.auto_back_on_selection = true;
  WriteDefaults();
  Start();
  Click(form().album.covers[0].cover);
  Click(form().track_list.rows[0].title);
  InRound(1, [&] { house().play_options.show_play_options(tracks[2], screen::kTrackList); });
  Click(form().play_options.play_now);
  EXPECT_TRUE(form().panel(screen::kPlayOptions).visible());
  EXPECT_EQ(form().play_options.title.caption(), "Dusk");
}

TEST_F(StartTest, PlayNowOfAQueuedSongIsPaidAgainAndTakesItOutEvenIfItIsRefused) {
  for (const int coins : {0, 10}) {
    OpenPaid();
    house().credits.Receive(std::to_string(coins - 10));
    machine.player.lengths[tracks[0]] = 9000;
    house().tracks.Play_track3(tracks[0]);
    house().queue.Append(tracks[1], "");
    jukebox->menu.Open(MenuButton::kShowQueue);
    Click(form().queue.rows[0].touch);
    Click(form().queue.commands[static_cast<size_t>(QueueCommand::kPlayNow)]);
    EXPECT_EQ(house().queue.count(), 0);
    EXPECT_EQ(Playing(), coins == 0 ? tracks[0] : tracks[1]);
    EXPECT_EQ(house().credits.count(), coins == 0 ? 0 : 8);
    jukebox.reset();
    machine.player = TestPlayer();
  }
}

TEST_F(StartTest, ASpoolFileWaitsForTheEndOfTheMachinesOwnStartAndIsPaid) {
  folder.Write("terminal.ini", "x\r\n\r\nTrue\r\nFalse\r\n");
  OpenPaid();
  InRound(1, [&] {
    folder.Write("Queue.QUE", " 1 \r\n 0 \r\n" + tracks[1] + "\r\n");
    machine.clock.Add(10);
    machine.timers.FireDue();
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
  jukebox->menu.Open(MenuButton::kShowQueue);
  Click(form().queue.rows[0].touch);
  InRound(1, [&] {
    Click(form().queue.commands[static_cast<size_t>(QueueCommand::kRemove)]);
    EXPECT_EQ(Queued(), (std::vector<std::string>{tracks[1], tracks[2]}));
  });
  Advance(1);
  EXPECT_EQ(Playing(), tracks[0]);
  EXPECT_EQ(Queued(), std::vector<std::string>{tracks[2]});
}

}  // namespace
}  // namespace sonotik
