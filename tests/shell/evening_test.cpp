// The guest's road through a running jukebox, and what the jukebox does by itself.
#include <gtest/gtest.h>

#include "files/files.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class EveningTest : public DayTest {
 protected:
  std::string Title() { return form().now_playing_title.caption(); }
  void Press(PlayerButton button) { Click(form().player_buttons[static_cast<size_t>(button)]); }
};

TEST_F(EveningTest, AGuestPicksACoverATrackAndHearsIt) {
  Start();
  OpenOptions(1);
  EXPECT_EQ(form().track_list.rows[1].title.caption(), "Noon");
  EXPECT_EQ(form().play_options.title.caption(), "Noon");
  Click(form().play_options.play_now);
  EXPECT_EQ(Playing(), tracks[1]);
  EXPECT_EQ(Title(), "Noon");
  EXPECT_FALSE(form().panel(screen::kPlayOptions).visible());
  EXPECT_EQ(form().length.caption(), "0:30");
  Advance(5);
  EXPECT_EQ(form().position.caption().substr(0, 3), "0:0");
  EXPECT_NE(form().position.caption(), "0:00");
  EXPECT_EQ(Plays(), 1U);
  Click(form().track_list.back);
  EXPECT_EQ(Shown(), Screens{screen::kAlbum});
}

TEST_F(EveningTest, TheNextEntryStartsOnTheTickThatEndsTheOneBefore) {
  Start();
  for (const std::string& track : tracks) Choose(track, PlayWay::kAddToQueue);
  for (const std::string& track : tracks) {
    Advance(1);
    EXPECT_EQ(Playing(), track);
    EXPECT_EQ(form().now_playing.next_song.visible(), track != tracks[2]);
    machine.player.Add(30);
  }
  Advance(1);
  EXPECT_FALSE(machine.player.playing());
  EXPECT_EQ(Title(), kNoSongPlaying);
  EXPECT_EQ(form().position.caption(), "0:00");
  EXPECT_EQ(Plays(), 3U);
}

TEST_F(EveningTest, TheIndicatorMovesOnlyWhileSomethingSounds) {
  const std::string frame("\x2c\0\0\0\0\1\0\1\0\0\2\2\x44\1\0", 15);
  Start();
  ucAniGIF& indicator = form().now_playing_indicator;
  ASSERT_TRUE(indicator.LoadAnimatedGIF_Array(
      std::string("GIF89a\1\0\1\0\x80\0\0\0\0\0\xff\xff\xff", 19) + frame + frame + ";"));
  indicator.SetAction(GifAction::kPlay);
  Advance(1);
  EXPECT_FALSE(indicator.playing());
  Choose(tracks[0]);
  Advance(1);
  EXPECT_TRUE(indicator.playing());
  Press(PlayerButton::kPause);
  Advance(1);
  EXPECT_FALSE(indicator.playing());
}

TEST_F(EveningTest, FilesThatAreGoneOrDamagedNeverStopTheQueue) {
  // A damaged tag costs its names alone, on the screen and in the list for others.
  folder.Write("music/Day/1 Dawn.wav.tag", "too short");
  Start();
  machine.player.lengths[tracks[1]] = -1;
  jukebox->navigation.Choose(tracks[0], PlayWay::kAddToQueue);
  house().queue.Append(folder.path() + "\\gone.wav", "");
  house().queue.Append(tracks[1], "");
  jukebox->navigation.Choose(tracks[2], PlayWay::kAddToQueue);
  EXPECT_NE(folder.Read("queue.upl").find("Cover.jpg\r\nAda\r\nDusk\r\n"), std::string::npos);
  Advance(1);
  EXPECT_EQ(Playing(), tracks[0]);
  EXPECT_EQ(Title(), "No Tag");
  machine.player.Add(30);
  Advance(4);
  EXPECT_EQ(Playing(), tracks[2]);
  EXPECT_TRUE(machine.player.playing());
  EXPECT_EQ(house().queue.count(), 0);
}

TEST_F(EveningTest, APausedTrackNeverEndsAndDropsPlayNow) {
  StartPaid(5);
  Choose(tracks[0]);
  Press(PlayerButton::kPause);
  EXPECT_TRUE(form().paused.visible());
  machine.player.SetPosition(30);
  Advance(3);
  EXPECT_EQ(Plays(), 1U);
  Choose(tracks[1]);
  EXPECT_EQ(Playing(), tracks[0]);
  EXPECT_EQ(house().queue.count(), 0);
  EXPECT_EQ(house().credits.count(), 1) << "dropped, and paid all the same";
  machine.player.SetPosition(10);
  Press(PlayerButton::kPause);
  EXPECT_TRUE(machine.player.playing());
  Press(PlayerButton::kNext);
  house().queue.Append(tracks[2], "");
  Advance(1);
  EXPECT_EQ(Playing(), tracks[2]);
}

TEST_F(EveningTest, ATouchWhileThePlayOptionsAppearPlaysAndPaysOnce) {
  settings.use_animated_covers = true;
  StartPaid(5);
  Click(form().album.covers[0].cover);
  const PlayOptionsScreen& screen = form().play_options;
  machine.events.on_pump = [&] {
    if (screen.panel.visible()) form().form.Click(Middle(screen.play_now));
  };
  Click(form().track_list.rows[1].title);
  machine.events.on_pump = [] {};
  EXPECT_EQ(Playing(), tracks[1]);
  EXPECT_EQ(house().credits.count(), 3);
  EXPECT_EQ(Plays() + Queued().size(), 1U);
  EXPECT_FALSE(screen.panel.visible() || screen.panel.region());
}

TEST_F(EveningTest, AButtonThatStartsAMissingFileLeavesTheTickOffUntilAStartSucceeds) {
  StartPaid(5);
  Choose(folder.path() + "\\gone.wav");
  EXPECT_FALSE(house().state_timer.enabled());
  EXPECT_EQ(house().credits.count(), 3) << "paid all the same";
  Choose(tracks[0]);
  EXPECT_TRUE(house().state_timer.enabled());
}

TEST_F(EveningTest, KaraokePlaysTheCdgUnderTheNamesOfTheMp3) {
  folder.Write("music/Day/Song.mp3", "x");
  folder.Write("music/Day/Song.cdg", "x");
  Start();
  Choose(AlbumPath("Day") + "Song.mp3");
  EXPECT_EQ(Playing(), AlbumPath("Day") + "Song.CDG");
  EXPECT_TRUE(form().now_playing.video.visible());
  EXPECT_EQ(house().playback.current_track_path, AlbumPath("Day") + "Song.CDG");
  // The sidecar's name plays its file, as audio.
  Choose(tracks[0] + ".tag");
  EXPECT_EQ(Playing(), tracks[0]);
  EXPECT_FALSE(form().now_playing.video.visible());
  Advance(2);
  // An M4A counts as a video.
  folder.Write("music/Day/x.m4a", std::string(70000, '\0'));
  Choose(AlbumPath("Day") + "x.m4a");
  EXPECT_TRUE(form().now_playing.video.visible());
}

TEST_F(EveningTest, RestartDoesNothingToAPausedTrack) {
  Start();
  Choose(tracks[0]);
  Advance(5);
  Press(PlayerButton::kPause);
  const double position = house().engine.MediaPosition();
  EXPECT_GT(position, 4);
  Press(PlayerButton::kRestart);
  EXPECT_EQ(house().engine.MediaPosition(), position);
  EXPECT_TRUE(house().playback.paused);
  Press(PlayerButton::kPause);
  Press(PlayerButton::kRestart);
  EXPECT_LT(house().engine.MediaPosition(), 1);
  EXPECT_TRUE(machine.player.playing());
}

TEST_F(EveningTest, IdleTimeLeadsToTheNowPlayingScreenUnlessATouchOrTheOptionsHoldIt) {
  settings.now_playing_wait = "5";
  Start();
  Advance(5);
  form().form.PressMouse({2, 2});
  Advance(5);
  EXPECT_FALSE(form().panel(screen::kNowPlaying).visible());
  Advance(3);
  EXPECT_EQ(Shown(), Screens{screen::kNowPlaying});
  jukebox->menu.Open(MenuButton::kOptions);
  Advance(20);
  EXPECT_FALSE(form().panel(screen::kNowPlaying).visible());
  form().HideAllScreens();
  Advance(1);
  EXPECT_TRUE(form().panel(screen::kNowPlaying).visible());
}

TEST_F(EveningTest, ThePositionLabelStandsStillFromAThousandSecondsOn) {
  machine.player.lengths[tracks[0]] = 4000;
  Start();
  Choose(tracks[0]);
  for (const double position : {998.0, 2000.0}) {
    machine.player.SetPosition(position);
    Advance(1);
    EXPECT_EQ(form().position.caption(), "16:39");
  }
}

TEST_F(EveningTest, TheTimedExitSavesTheQueueAndLeaves) {
  settings.exit_program_at = true;
  settings.exit_time = 25;  // 12:30
  settings.save_queue_on_shutdown = true;
  settings.shutdown_command = "/bin/sync";
  Start();
  Choose(tracks[0]);
  machine.player.lengths[tracks[0]] = 9000;
  Choose(tracks[1], PlayWay::kAddToQueue);
  Advance(5);
  EXPECT_FALSE(machine.events.left);
  EXPECT_FALSE(jukebox->MayClose());
  machine.clock.Add(30 * 60 * 1000);
  machine.timers.FireDue();
  EXPECT_TRUE(machine.events.left);
  EXPECT_TRUE(jukebox->MayClose());
  EXPECT_EQ(machine.processes.started, std::vector<std::string>{"/bin/sync"});
  EXPECT_NE(folder.Read("queue.dat").find(tracks[1]), std::string::npos);
  EXPECT_EQ(machine.timers.UntilNext(), -1);
}

TEST_F(EveningTest, LeavingBeforeTheQueueWasReadLeavesItsFileAlone) {
  settings.save_queue_on_shutdown = true;
  folder.Remove("Records.rec");
  const std::string saved = " 1 \r\na\r\nb\r\n\r\n\r\n";
  folder.Write("queue.dat", saved);
  machine.messages.on_show = [this] { jukebox->LeaveInOrder(); };
  Start();
  EXPECT_EQ(result, StartUpResult::kLeft);
  EXPECT_EQ(folder.Read("queue.dat"), saved);
  EXPECT_TRUE(machine.processes.started.empty());
}

TEST_F(EveningTest, AskedToEndDuringTheStartSoundItStaysEnded) {
  folder.Write("startup.mp3", "x");
  machine.events.on_pump = [this] { jukebox->LeaveInOrder(); };
  Start();
  EXPECT_EQ(result, StartUpResult::kLeft);
  EXPECT_TRUE(machine.events.left);
  Advance(3);
  EXPECT_FALSE(form().panel(screen::kNowPlaying).visible());
  EXPECT_EQ(machine.timers.UntilNext(), -1);
}

TEST_F(EveningTest, WhatFailsBehindAnAddIsChargedAndAddedOnceAndTheScreenGoes) {
  // queue.upl can't be written over a folder.
  folder.Write("queue.upl/x", "");
  StartPaid(12);
  OpenOptions(0);
  Click(form().play_options.add_to_queue);
  EXPECT_FALSE(form().panel(screen::kPlayOptions).visible());
  EXPECT_EQ(Queued().size(), 1U);
  EXPECT_EQ(house().credits.count(), 10);
  // A whole album is taken once.
  for (int i = 0; i < 2; ++i) Click(form().track_list.add_entire_album);
  EXPECT_EQ(Queued().size(), 4U);
  EXPECT_EQ(house().credits.count(), 4);
  EXPECT_EQ(house().boundary.failures(), 4);
}

TEST_F(EveningTest, AHistoryThatCanNotBeWrittenCostsItsRecordAlone) {
  folder.Write("User_history.dat/x", "");
  Start();
  int facts = 0;
  house().tracks.hooks.start_song_facts = [&] { ++facts; };
  house().queue.Append(tracks[0], AlbumPath("Day") + "other.jpg");
  house().queue.Append(tracks[1], "");
  folder.Write("music/Day/other.jpg", "x");
  Advance(1);
  EXPECT_EQ(Playing(), tracks[0]);
  EXPECT_EQ(facts, 1);
  EXPECT_EQ(form().now_playing.next_song_title.caption(), "Noon");
  // The queue's cover stands over the one that the start has found.
  EXPECT_EQ(form().now_playing_cover.picture(), AlbumPath("Day") + "other.jpg");
  jukebox->navigation.Choose(tracks[2], PlayWay::kPlayNow);
  EXPECT_EQ(facts, 2);
  EXPECT_EQ(folder.Read("queue.upl").substr(0, 3), " 1 ");
}

TEST_F(EveningTest, AFailingHandlerGivesItsTimerBack) {
  Start();
  jukebox->ticks.hooks.ticker_visible = []() -> bool { throw RuntimeFailure("no ticker"); };
  house().settings.use_second_monitor = true;
  jukebox->ticks.hooks.PollKeys = [] { throw RuntimeFailure("no keys"); };
  house().queue.Append(tracks[0], "");
  Advance(3);
  EXPECT_EQ(Playing(), tracks[0]);
  EXPECT_GE(house().boundary.failures(), 6);
  EXPECT_TRUE(house().state_timer.enabled());
  EXPECT_TRUE(house().timer1.enabled());
}

TEST_F(EveningTest, ADuplicateCanBeLeftByATouchOnly) {
  settings.allow_duplicates_in_queue = false;
  Start();
  machine.player.lengths[tracks[0]] = 9000;
  Choose(tracks[0]);
  Choose(tracks[1], PlayWay::kAddToQueue);
  OpenOptions(1);
  const PlayOptionsScreen& screen = form().play_options;
  EXPECT_EQ(screen.message.caption(), "Track Already In Queue");
  EXPECT_FALSE(screen.add_to_queue.visible());
  EXPECT_TRUE(screen.cancel.visible());
  EXPECT_EQ(screen.queue_line.caption(), "(1) Songs In Queue");
  Click(screen.message);
  EXPECT_FALSE(form().panel(screen::kPlayOptions).visible());
}

}  // namespace
}  // namespace sonotik
