#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class StartUpTest : public JukeboxTest {
 protected:
  std::vector<std::string> Milestones() const {
    std::vector<std::string> texts;
    for (const std::string& line : folder.Lines("debug.log")) {
      EXPECT_EQ(line.substr(0, 20), "01/15/2024 12:00:00 ");
      texts.push_back(line.substr(20, line.size() - 21));
    }
    return texts;
  }
};

TEST_F(StartUpTest, LogsItsMilestonesBehindThoseOfOtherRuns) {
  Start();
  const size_t milestones = Milestones().size();
  EXPECT_EQ(milestones, 18U);
  EXPECT_EQ(Milestones()[7], "Start UP Complete");
  EXPECT_EQ(Milestones().back(), "Random PLAY Load Complete");
  EXPECT_TRUE(house().state_timer.enabled() && house().timer1.enabled());
  // A second instance ends without a word.
  machine.displays.calls.clear();
  EXPECT_EQ(Jukebox(folder.path(), machine.machine).Start(), StartUpResult::kSecondInstance);
  EXPECT_TRUE(machine.displays.calls.empty()) << "the mode is the first one's";
  EXPECT_EQ(Milestones().size(), milestones);
  EXPECT_TRUE(machine.messages.shown.empty());
  Start();
  EXPECT_EQ(Milestones().size(), 2 * milestones);
}

TEST_F(StartUpTest, WithoutACatalogueTheConfigurationProgramIsStartedAndItEnds) {
  folder.Remove("Records.rec");
  folder.Write("skins/Plain/resolution.ini", "a\nb\nc\n1024\n768\n");
  settings.full_screen = true;
  Start();
  EXPECT_EQ(result, StartUpResult::kNoCatalogue);
  EXPECT_EQ(machine.displays.calls.back(), "RestoreResolution 0 0");
  EXPECT_EQ(
      machine.messages.shown,
      std::vector<std::string>{"You don't have any databases created, Click OK to run the CONFIG"});
  EXPECT_EQ(machine.processes.started, std::vector<std::string>{folder.path() + "\\Config 3.exe"});
  EXPECT_FALSE(house().state_timer.enabled());
  EXPECT_EQ(Milestones().back(), "Skin Load Complete");
  EXPECT_FALSE(folder.Has("Records.rec"));
}

TEST_F(StartUpTest, AnyOneOfTheThreeTrackFilesIsEnough) {
  for (const char* name : {"Records.rec", "videos.rec", "KARAOKE.REC", "records.rec"}) {
    folder.Write(name, "");
    Start();
    EXPECT_EQ(result, StartUpResult::kRunning) << name;
    folder.Remove(name);
  }
}

TEST_F(StartUpTest, FillsTheListsThatOthersPickFrom) {
  machine.displays.monitors.resize(3);
  machine.clock.date = {1999, 12, 31};
  folder.Write("genres/Rock.cvr", "");
  folder.Write("genres/blues.CVR", "");
  Start();
  const OptionLists& lists = house().lists;
  EXPECT_EQ(lists.available_genres, (ItemList{"blues", "Rock"}));
  EXPECT_EQ(lists.monitors, (ItemList{"1", "2", "3"}));
  // The years to come have no button.
  EXPECT_EQ(form().decades.year_buttons[46].caption(), "1999");
  EXPECT_TRUE(form().decades.year_buttons[47].visible());
  EXPECT_FALSE(form().decades.year_buttons[48].visible());
  // Genres that were chosen replace those of the folder.
  folder.Write("random.dat", " 1 \r\nJazz\r\n\r\n 2 \r\nPop\r\nSka\r\n\r\n");
  Start();
  EXPECT_EQ(house().lists.available_genres, ItemList{"Jazz"});
  EXPECT_EQ(house().lists.selected_genres, (ItemList{"Pop", "Ska"}));
}

TEST_F(StartUpTest, TheStartSoundIsTheMachinesOwnAndNotATerminals) {
  folder.Write("startup.mp3", "x");
  Start();
  EXPECT_EQ(Playing(), folder.path() + "\\startup.mp3");
  EXPECT_EQ(Plays(kRandomHistory), 1U);
  EXPECT_FALSE(house().playback.random_in_progress);
  EXPECT_EQ(house().playback.play_now_flag, 0);
  machine.player.file.clear();
  folder.Write("terminal.ini", "Terminal \\ Master config\r\n\r\nFalse\r\nTrue\r\n");
  Start();
  EXPECT_EQ(Playing(), "");
}

TEST_F(StartUpTest, ACoverLayoutOfTheSkinIsTakenBeforeTheFirstPage) {
  std::string layout = "Covers\r\n 2 \r\n 1 \r\n 0 \r\n";
  for (int i = 0; i < 12; ++i) layout += " 10 \r\n 20 \r\n 30 \r\n 40 \r\n";
  folder.Write("skins/Plain/B.cov", layout);
  folder.Write("skins/Plain/a.COV", "Covers\r\n 1 \r\n 0 \r\n 0 \r\n");
  WriteAlbums({{"1", "A"}, {"2", "B"}, {"3", "C"}});
  settings.cover_layout = 1;
  Start();
  EXPECT_TRUE(form().album.covers[1].reflection.visible());
  EXPECT_FALSE(form().album.covers[2].cover.visible());
  // Reading the settings again leaves the guest's page alone.
  house().cursor.SetPosition(3);
  jukebox->effects.LoadConfig();
  EXPECT_EQ(house().cursor.position(), 3);
  // One that isn't there is an error of the settings; a damaged one is its own fault alone.
  const std::string path = folder.path();
  OptionLists lists;
  for (const auto& [index, taken, covers] : {std::tuple(0, 0, kDesignCovers), {2, 1, 2}}) {
    settings.cover_layout = index;
    SettingsFile(path, settings, lists, machine.messages).SaveConfig();
    machine.messages.shown.clear();
    Start();
    EXPECT_EQ(machine.messages.shown.empty(), index == taken);
    EXPECT_EQ(house().cover_layout.covers_per_page, covers);
    EXPECT_EQ(house().settings.cover_layout, taken);
  }
}

TEST_F(StartUpTest, APageThatCanNotBePaintedIsNoFaultOfTheSettings) {
  settings.show_new_on_recent_albums = true;
  settings.startup_database = 1;
  settings.main_volume = -9000;
  WriteAlbums({{"Odd", "A", "05.01.2024"}}, "videos.cvr");
  Start();
  EXPECT_TRUE(machine.messages.shown.empty());
  EXPECT_EQ(result, StartUpResult::kRunning);
  EXPECT_EQ(house().cursor.source, CatalogueSource::kVideos);
  // What counts is the slider, and that keeps within its range.
  EXPECT_EQ(house().settings.main_volume, kLeastVolume);
  EXPECT_EQ(house().settings.cover_layout, -1);
}

TEST_F(StartUpTest, AFullDiskTakesTheLogAndNotTheJukebox) {
  std::filesystem::create_symlink("/dev/full", folder.native() / "debug.log");
  Start();
  EXPECT_EQ(result, StartUpResult::kRunning);
  EXPECT_TRUE(house().timer1.enabled());
}

TEST_F(StartUpTest, StartedSafelyWearsTheDeliveredSkinInAWindow) {
  settings.full_screen = true;
  folder.Write("safe.txt", "");
  Start();
  EXPECT_EQ(house().settings.current_skin, "Neon");
  EXPECT_FALSE(machine.displays.full_screen);
  // For one start only.
  EXPECT_FALSE(folder.Has("safe.txt"));
}

}  // namespace
}  // namespace sonotik
