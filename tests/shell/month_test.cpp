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

TEST_F(AloneTest, AnyFolderMayBeMissingEmptyOrAFileAndTheMusicGoesOn) {
  settings.enable_random_play = true;
  settings.wait_between_tracks = "2";
  settings.enable_jingles = true;
  settings.jingle_song_count = 0;
  settings.attract_enabled = true;
  settings.now_playing_wait = settings.attract_delay = "3";
  settings.animation_amount = "2";
  WriteCollection(3);
  folder.Write("file", "x");
  WriteDay("01-16-2024", "", "Gone");
  for (const char* name : {"", "\\", "gone", "file", "file\\in it", "skins"}) {
    for (const bool by_genre : {false, true}) {
      machine.clock.Set({2024, 1, 15}, 23, 59);
      Start();
      Settings& now = house().settings;
      now.attract_path = now.jingle_path = *name == 0 ? name : folder.path() + "\\" + name;
      now.random_from_genres = by_genre;
      house().lists.selected_genres = {name};
      int heard = 0;
      for (int second = 0; second < 120; ++second) {
        Advance(1);
        heard += machine.player.playing();
      }
      // A round in two is a jingle's, and comes to nothing.
      EXPECT_EQ(heard > 60, !by_genre) << name;
      EXPECT_EQ(house().boundary.failures(), 0) << name;
      house().engine.MediaStop();
      EXPECT_EQ(now.attract_path, "");
      EXPECT_EQ(now.current_skin, "Gone");
      EXPECT_TRUE(house().state_timer.enabled() && house().timer1.enabled());
    }
  }
}

// Half an hour around each midnight, with all that a month brings.
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
  WriteCollection(200);
  folder.Write("jingles/j.wav", "x");
  folder.Write("jingles/j.wav.tag", Sidecar("Us", "Jingle", "", "0:30"));
  folder.Write("pictures/a.jpg", "x");
  machine.clock.Set({2024, 3, 1}, 23, 50);
  Start();
  house().settings.attract_path = folder.path() + "\\pictures";
  std::mt19937 draw{99};
  const auto music = folder.native() / "music";
  const auto away = folder.native() / "away";
  const std::string jingle = folder.path() + "\\jingles\\j.wav";
  int silence = 0, longest = 0, midnights = 0;
  Date today{2024, 3, 1};
  std::string attract = house().settings.attract_path;
  for (int day = 1; day <= 30; ++day) {
    machine.clock.Set({2024, 3, day}, 23, 50);
    const bool gone = day % 7 == 3;
    if (gone) std::filesystem::rename(music, away);
    const std::string tomorrow = DateText({2024, 3, day + 1}).replace(2, 1, "-").replace(5, 1, "-");
    if (day % 4 == 0) WriteDay(tomorrow, "\\day " + std::to_string(day + 1), "");
    if (day % 8 == 5) folder.Remove("CALENDER/" + tomorrow + ".DAT");
    for (int second = 0; second < 1800; ++second) {
      // Summer time comes before midnight, and ends after it; once somebody sets the clock back.
      if (day == 10 && second == 300) machine.clock.Set({2024, 3, day + 1}, 0, 55);
      if (day == 20 && second == 900) machine.clock.Set({2024, 3, day}, 23, 5);
      if (day == 25 && second == 900) machine.clock.Set({2024, 3, day}, 0, 5);
      machine.clock.Add(1000);
      machine.player.Add(1);
      machine.timers.FireDue();
      if (const Date now = machine.clock.Now().date; now != today) {
        midnights += now.day > today.day;
        today = now;
        if (now.day % 4 == 1 && now.day > 1) attract = "\\day " + std::to_string(now.day);
        EXPECT_EQ(house().settings.attract_path, attract) << day;
      }
      silence = machine.player.playing() || gone ? 0 : silence + 1;
      longest = std::max(longest, silence);
      if (draw() % 500 == 0) form().form.Click({640, 400});
    }
    if (gone) std::filesystem::rename(away, music);
    ASSERT_TRUE(house().state_timer.enabled());
    ASSERT_FALSE(house().playback.random_in_progress);
  }
  EXPECT_GE(midnights, 30);
  EXPECT_EQ(house().boundary.failures(), 0);
  // The wait, the tick that ends the track, and a jingle or a repeat that comes to nothing.
  EXPECT_LE(longest, 2 * 7 + 2);
  EXPECT_EQ(house().queue.count(), 0);
  // None of the last four songs comes again; jingles do, after every few.
  RecordFile log(folder.path() + "\\" + kRandomHistory, HistoryRecord::kSize);
  std::vector<std::string> songs;
  for (int64_t n = 1; n <= log.count(); ++n) {
    const std::string path =
        house().catalogue.ReadHistoryRecord(log, n).Trimmed(HistoryRecord::kPath);
    if (path == jingle) continue;
    const auto last = songs.end() - std::min<ptrdiff_t>(4, std::ssize(songs));
    EXPECT_EQ(std::find(last, songs.end(), path), songs.end()) << n;
    songs.push_back(path);
  }
  EXPECT_GT(songs.size(), 800u);
  EXPECT_GT(static_cast<size_t>(log.count()) - songs.size(), 150u);
}

}  // namespace
}  // namespace sonotik
