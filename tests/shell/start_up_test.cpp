#include <gtest/gtest.h>

#include <sstream>

#include "catalogue/charts.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class StartUpTest : public JukeboxTest {
 protected:
  std::vector<std::string> Milestones() const {
    std::vector<std::string> texts;
    std::istringstream log(folder.Read("debug.log"));
    for (std::string line; std::getline(log, line);) {
      EXPECT_EQ(line.substr(0, 20), "01/15/2024 12:00:00 ");
      texts.push_back(line.substr(20, line.size() - 21));
    }
    return texts;
  }
};

const std::vector<std::string> kAllMilestones = {"***SONGFACTS NOTLOADED***",
                                                 "Genres Check Complete",
                                                 "Combo Buttons Set Up",
                                                 "History Set Up",
                                                 "Keyboard Shortcuts Loaded",
                                                 "Set app Path",
                                                 "Year Buttons Set Up",
                                                 "Start UP Complete",
                                                 "INI File load Complete",
                                                 "Skin Load Complete",
                                                 "QUEUE Load Complete",
                                                 "Key Load Complete",
                                                 "Permissions Load Complete",
                                                 "CostLoad Complete",
                                                 "BETABRITE Settings Load Complete",
                                                 "Teminal/Master Load Complete",
                                                 "History CHART Load Complete",
                                                 "Random PLAY Load Complete"};

TEST_F(StartUpTest, ReachesItsMilestonesInOrderAndKeepsThoseOfOtherRuns) {
  Start();
  EXPECT_EQ(Milestones(), kAllMilestones);
  EXPECT_TRUE(house().state_timer.enabled());
  EXPECT_TRUE(house().timer1.enabled());
  jukebox.reset();
  Start();
  EXPECT_EQ(Milestones().size(), 2 * kAllMilestones.size());
}

TEST_F(StartUpTest, ASecondInstanceEndsWithoutAWord) {
  Start();
  Jukebox second(folder.path(), machine.machine);
  EXPECT_EQ(second.Start(), StartUpResult::kSecondInstance);
  EXPECT_EQ(Milestones().size(), kAllMilestones.size());
  EXPECT_TRUE(machine.messages.shown.empty());
}

TEST_F(StartUpTest, WithoutACatalogueTheConfigurationProgramIsStartedAndItEnds) {
  std::filesystem::remove(folder.native() / "Records.rec");
  Start();
  EXPECT_EQ(result, StartUpResult::kNoCatalogue);
  EXPECT_EQ(
      machine.messages.shown,
      std::vector<std::string>{"You don't have any databases created, Click OK to run the CONFIG"});
  EXPECT_EQ(machine.processes.started, std::vector<std::string>{folder.path() + "\\Config 3.exe"});
  EXPECT_FALSE(house().state_timer.enabled());
  EXPECT_EQ(Milestones().back(), "Skin Load Complete");
  EXPECT_FALSE(folder.Has("Records.rec"));
}

TEST_F(StartUpTest, AnyOneOfTheThreeTrackFilesIsEnough) {
  std::filesystem::remove(folder.native() / "Records.rec");
  for (const char* name : {"videos.rec", "KARAOKE.REC", "records.rec"}) {
    folder.Write(name, "");
    Start();
    EXPECT_EQ(result, StartUpResult::kRunning) << name;
    jukebox.reset();
    std::filesystem::remove(folder.native() / name);
  }
}

TEST_F(StartUpTest, WithoutAnySettingsThereIsNoJukebox) {
  std::filesystem::remove(folder.native() / "sonotik.def");
  EXPECT_THROW(Start(), RuntimeFailure);
  EXPECT_EQ(Milestones().back(), "Start UP Complete");
}

TEST_F(StartUpTest, DamagedDataFilesCostOnlyWhatTheyHold) {
  for (const char* name : {"queue.dat", "keyboard.dat", "permissions.ini", "cost.dat", "random.dat",
                           "songfacts.dat", "User_history.dat", "Records.cvr"}) {
    for (const char* bytes : {"", "\r\n", "nonsense", " 3 \r\n", "\"", "\0\0\0"}) {
      folder.Write(name, bytes);
      Start();
      EXPECT_EQ(result, StartUpResult::kRunning) << name << ": " << bytes;
      EXPECT_TRUE(house().timer1.enabled());
      jukebox.reset();
    }
    std::filesystem::remove(folder.native() / name);
  }
}

TEST_F(StartUpTest, FillsTheListsThatOthersPickFrom) {
  machine.displays.monitors.resize(3);
  folder.Write("genres/Rock.cvr", "");
  folder.Write("genres/blues.CVR", "");
  Start();
  const OptionLists& lists = house().lists;
  EXPECT_EQ(lists.available_genres, (ItemList{"blues", "Rock"}));
  EXPECT_EQ(lists.monitors, (ItemList{"1", "2", "3"}));
  EXPECT_EQ(lists.jingle_song_counts.front(), " 1 Songs");
  EXPECT_EQ(lists.no_repeat_counts.back(), " 11 Songs");
  EXPECT_EQ(lists.exit_times.size(), 48U);
  EXPECT_EQ(lists.exit_times[47], "23:30");
  EXPECT_EQ(lists.key_codes.size(), 131U);
  EXPECT_EQ(lists.key_codes[65], "CHR 65 - A");
  EXPECT_EQ(form().decades.month_caption.caption(), "JANUARY");
  EXPECT_EQ(form().decades.year_buttons[0].caption(), "1953");
  EXPECT_EQ(form().decades.year_buttons[56].caption(), "2009");
}

TEST_F(StartUpTest, YearsToComeHaveNoButton) {
  machine.clock.date = {1999, 12, 31};
  Start();
  EXPECT_TRUE(form().decades.year_buttons[2000 - 1953].visible());
  EXPECT_FALSE(form().decades.year_buttons[2001 - 1953].visible());
}

TEST_F(StartUpTest, GenresOfTheRandomListReplaceThoseOfTheFolder) {
  folder.Write("genres/Rock.cvr", "");
  folder.Write("random.dat", " 1 \r\nJazz\r\n\r\n 2 \r\nPop\r\nSka\r\n\r\n");
  Start();
  EXPECT_EQ(house().lists.available_genres, ItemList{"Jazz"});
  EXPECT_EQ(house().lists.selected_genres, (ItemList{"Pop", "Ska"}));
}

TEST_F(StartUpTest, TheStartSoundIsTheMachinesOwnAndNotATerminals) {
  folder.Write("startup.mp3", "x");
  Start();
  EXPECT_EQ(machine.player.file, folder.path() + "\\startup.mp3");
  EXPECT_TRUE(folder.Has("Random_history.dat"));
  EXPECT_FALSE(house().playback.random_in_progress);
  EXPECT_EQ(house().playback.play_now_flag, 0);
  jukebox.reset();
  machine.player.file.clear();
  jukebox = std::make_unique<Jukebox>(folder.path(), machine.machine);
  folder.Write("terminal.ini", "Terminal \\ Master config\r\n\r\nFalse\r\nTrue\r\n");
  jukebox->Start();
  EXPECT_EQ(machine.player.file, "");
}

TEST_F(StartUpTest, TheSeamsRunAtTheirPlaces) {
  jukebox = std::make_unique<Jukebox>(folder.path(), machine.machine);
  std::vector<std::string> seen;
  const auto note = [&](const char* name) {
    return [&seen, name, this] {
      seen.push_back(std::string(name) + " after " + std::to_string(Milestones().size()));
    };
  };
  StartUpHooks& hooks = jukebox->start_up.hooks;
  hooks.genre_scroll_show = note("genre bar");
  hooks.read_window_style = note("style");
  hooks.ApplySkin = note("skin");
  hooks.load_sign = note("sign");
  hooks.load_history_chart = [&](const std::string& path) { note(path.c_str())(); };
  jukebox->Start();
  EXPECT_EQ(seen, (std::vector<std::string>{"genre bar after 1", "style after 7", "skin after 9",
                                            "sign after 14",
                                            folder.path() + "\\history\\2024\\01.txt after 16"}));
}

TEST_F(StartUpTest, ACoverLayoutOfTheSkinIsTakenBeforeTheFirstPage) {
  std::string layout = "Covers\r\n 2 \r\n 1 \r\n 0 \r\n";
  for (int i = 0; i < 12; ++i) layout += " 10 \r\n 20 \r\n 30 \r\n 40 \r\n";
  folder.Write("skins/Plain/B.cov", layout);
  folder.Write("skins/Plain/a.COV", "Covers\r\n 1 \r\n 0 \r\n 0 \r\n");
  WriteAlbums({{"1", "A"}, {"2", "B"}, {"3", "C"}});
  settings.cover_layout = 1;
  WriteDefaults();
  Start();
  EXPECT_EQ(house().lists.cover_layouts, (ItemList{"a.COV", "B.cov"}));
  EXPECT_EQ(house().cover_layout.covers_per_page, 2);
  EXPECT_EQ(form().album.covers[1].cover.place(), (Rect{20, 10, 40, 30}));
  EXPECT_TRUE(form().album.covers[1].reflection.visible());
  EXPECT_FALSE(form().album.covers[2].cover.visible());
  // Reading the settings again leaves the guest's page alone.
  house().cursor.SetPosition(3);
  jukebox->effects.LoadConfig();
  EXPECT_EQ(house().cursor.position(), 3);
  jukebox.reset();
  // One that isn't there is an error of the settings; a damaged one is its own fault alone.
  const std::string path = folder.path();
  for (const int index : {0, 2}) {
    settings.cover_layout = index;
    OptionLists lists;
    SettingsFile(path, settings, lists, machine.messages).SaveConfig();
    machine.messages.shown.clear();
    Start();
    EXPECT_EQ(machine.messages.shown.size(), index == 2 ? 1U : 0U) << index;
    EXPECT_EQ(house().cover_layout.covers_per_page, index == 2 ? 2 : kDesignCovers);
    EXPECT_EQ(house().settings.cover_layout, index == 2 ? 1 : 0);
    jukebox.reset();
  }
}

TEST_F(StartUpTest, APageThatCanNotBePaintedIsNoFaultOfTheSettings) {
  settings.show_new_on_recent_albums = true;
  settings.startup_database = 1;
  settings.main_volume = -9000;
  WriteDefaults();
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

TEST(Charts, LieUnderTwoDigitMonths) {
  EXPECT_EQ(ChartPath("\\j", 9, 1999), "\\j\\history\\1999\\09.txt");
  EXPECT_EQ(ChartPath("\\j", 10, 1999), "\\j\\history\\1999\\10.txt");
}

TEST_F(StartUpTest, StartedSafelyWearsTheDeliveredSkinInAWindow) {
  settings.full_screen = true;
  WriteDefaults();
  folder.Write("safe.txt", "");
  Start();
  EXPECT_EQ(house().settings.current_skin, "Neon");
  EXPECT_FALSE(machine.displays.full_screen);
  // For one start only.
  EXPECT_FALSE(folder.Has("safe.txt"));
}

}  // namespace
}  // namespace sonotik
