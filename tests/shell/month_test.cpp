// The jukebox alone in the room, for a month.
#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class AloneTest : public JukeboxTest {
 protected:
  void WriteCollection(int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i) {
      bytes += TrackBytes(WriteTrack("Mix", std::to_string(i) + ".wav"), "");
    }
    folder.Write("Records.rec", bytes);
  }
  void WriteDay(const std::string& day, const std::string& attract, const std::string& skin) {
    folder.Write("CALENDER/" + day + ".DAT",
                 "Attract Mode Path\r\n" + attract + "\r\nHoliday Skin\r\n" + skin +
                     "\r\nLED Sign Path\r\na\r\nJingles Path\r\nb\r\nDatabase Path\r\nc\r\n");
  }
};

TEST_F(AloneTest, AttractPicturesTakeTurnsWithWhatPlaysUntilATouch) {
  settings.now_playing_wait = "5";
  settings.attract_enabled = true;
  settings.attract_delay = "10";
  settings.animation_amount = "3";
  folder.Write("pictures/a.jpg", "x");
  Start();
  house().settings.attract_path = folder.path() + "\\pictures";
  const std::string track = WriteTrack("Mix", "long.wav");
  machine.player.lengths[track] = 9000;
  Choose(track);
  Advance(17);
  EXPECT_FALSE(form().attract_picture.visible());
  Advance(3);
  EXPECT_TRUE(form().attract_picture.visible());
  EXPECT_EQ(form().attract_picture.picture(), folder.path() + "\\pictures\\a.jpg");
  Advance(11);
  EXPECT_FALSE(form().attract_picture.visible());
  EXPECT_EQ(Shown(), Screens{screen::kNowPlaying});
  EXPECT_FALSE(form().panel(screen::kNowPlaying).region());
  // An empty folder swaps with the last picture.
  folder.Remove("pictures/a.jpg");
  Advance(11);
  Click(form().attract_picture);
  EXPECT_FALSE(form().attract_picture.visible());
  EXPECT_EQ(Shown(), Screens{screen::kAlbum});
  // Over silence a change comes each tick.
  house().engine.MediaStop();
  Advance(8);
  const bool shown = form().attract_picture.visible();
  Advance(1);
  EXPECT_NE(form().attract_picture.visible(), shown);
}

TEST_F(AloneTest, ADayOfItsOwnHoldsUntilAnotherSaysOtherwise) {
  WriteDay("01-15-2024", "\\today", "Holly");
  WriteDay("01-17-2024", "", "");
  folder.Write("CALENDER/01-18-2024.DAT", "Attract Mode Path\r\n\\cut\r\nHoliday Skin\r\n");
  Start();
  std::vector<std::string> skins;
  house().calendar.swap_skin = [&](const std::string& name) { skins.push_back(name); };
  EXPECT_EQ(house().settings.attract_path, folder.path());
  const std::pair<int, const char*> days[] = {
      {15, "\\today"}, {16, "\\today"}, {17, ""}, {18, "\\cut"}, {19, "\\cut"}};
  for (const auto& [day, attract] : days) {
    machine.clock.date = {2024, 1, day};
    for (int i = 0; i < 2; ++i) {
      Advance(1);
      EXPECT_EQ(house().settings.attract_path, attract) << day;
      // Saved during the day for that day, it waits for a restart.
      if (day == 16) WriteDay("01-16-2024", "\\late", "Late");
    }
    EXPECT_TRUE(house().state_timer.enabled());
  }
  EXPECT_EQ(skins, std::vector<std::string>{"Holly"});
  EXPECT_EQ(house().boundary.failures(), 1);
  DaySettings page;
  EXPECT_TRUE(house().calendar.Load({2024, 1, 15}, page));
  EXPECT_EQ(page.database_path, "c");
  house().calendar.Save({2024, 2, 1}, page);
  EXPECT_EQ(folder.Read("CALENDER/02-01-2024.DAT"), folder.Read("CALENDER/01-15-2024.DAT"));
}

TEST_F(AloneTest, AMonthIsNeverSilentForLongerThanTheWait) {
  settings.enable_random_play = true;
  settings.wait_between_tracks = "7";
  settings.do_not_repeat = true;
  settings.do_not_repeat_count = 4;
  settings.enable_jingles = true;
  settings.jingle_song_count = 3;
  settings.jingle_path = folder.path() + "\\jingles";
  settings.attract_enabled = true;
  settings.attract_delay = "300";
  WriteCollection(20);
  folder.Write("jingles/j.wav", "x");
  folder.Write("jingles/j.wav.tag", Sidecar("Us", "Jingle", "", "0:30"));
  folder.Write("pictures/a.jpg", "x");
  machine.clock.date = {2024, 3, 15};
  Start();
  std::mt19937 draw{99};
  const auto music = folder.native() / "music";
  const auto away = folder.native() / "away";
  int silence = 0, longest = 0;
  std::vector<std::string> played;
  for (int day = 0; day < 30; ++day) {
    const bool gone = day % 7 == 3;
    if (gone) std::filesystem::rename(music, away);
    if (day % 4 == 0) WriteDay("03-" + std::to_string(15 + day % 15) + "-2024", "\\none", "");
    for (int second = 0; second < 1000; ++second) {
      // Summer time comes and goes, once the clock is set to yesterday, and hours pass in between.
      if (second == 500 && day == 16) machine.clock.date.day -= 1;
      machine.clock.Add(1000);
      machine.player.Add(1);
      machine.timers.FireDue();
      const bool playing = machine.player.playing();
      silence = playing || gone ? 0 : silence + 1;
      longest = std::max(longest, silence);
      if (playing && (played.empty() || played.back() != machine.player.file)) {
        played.push_back(machine.player.file);
      }
      if (draw() % 500 == 0) form().form.Click({640, 400});
    }
    if (gone) std::filesystem::rename(away, music);
    machine.clock.date.day = machine.clock.date.day % 28 + 1;
    machine.clock.Add((day == 10 ? 3600 : day == 20 ? 7200 : 60) * 1000);
    ASSERT_TRUE(house().state_timer.enabled());
    ASSERT_FALSE(house().playback.random_in_progress);
  }
  // The wait, the tick that ends the track, and a jingle or a repeat that comes to nothing.
  EXPECT_LE(longest, 2 * 7 + 2);
  EXPECT_GT(played.size(), 400u);
  EXPECT_EQ(house().queue.count(), 0);
  EXPECT_GT(std::count(played.begin(), played.end(), folder.path() + "\\jingles\\j.wav"), 50);
}

}  // namespace
}  // namespace sonotik
