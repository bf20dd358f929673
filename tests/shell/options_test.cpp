// The operator's pages: from each control through the files and a restart to what it does.
#include <sys/resource.h>

#include <csignal>

#include "support/options_test.h"

namespace sonotik {
namespace {

TEST_F(OptionsTest, ASkinIsPreviewedWhenItIsPickedAndWornFromItsApplyingOn) {
  folder.Write("skins/New/preview.jpg", "x");
  Open();
  Advance(1);
  const std::string worn = house().settings.current_skin;
  Press(kLooks, "Appearance Options", "Refresh Skin List", K::kCommand);
  const ItemList& skins = house().lists.skins;
  Press(kLooks, "Appearance Options", "Selected Skin:", K::kList);
  Pick(static_cast<size_t>(std::find(skins.begin(), skins.end(), "New") - skins.begin()));
  EXPECT_TRUE(form().options.skin_preview.picture().ends_with("New\\preview.jpg"));
  EXPECT_EQ(house().settings.current_skin, worn);
  Press(kLooks, "Appearance Options", "Apply Skin", K::kCommand);
  EXPECT_THAT(form().now_playing_cover.picture(), testing::HasSubstr("\\New\\"));
  Save();
  Start();
  EXPECT_EQ(house().settings.current_skin, "New");
}

TEST_F(OptionsTest, TheOtherFilesHoldTheirControlsToo) {
  Open();
  Save();
  const ItemList ini = Lines("sonotik.ini");
  const ItemList costs = Lines("cost.dat"), rights = Lines("permissions.ini");
  Press(kGeneral, "Option Screen Settings", "Enable Coin Settings", K::kCheck);
  // Rows are ways and columns are kinds; the file goes by columns.
  Press(kCoins, "Video", "Play Next", K::kList);
  Pick(2);
  Press(kKeys, "Menu Key Mappings", "Show Queue", K::kList);
  EXPECT_TRUE(form().options.picker.items[13].caption().ends_with("(Enter)"));
  while (form().options.picker.items[0].caption() != "CHR 63 - ?") {
    Click(form().options.picker.forward);
  }
  Pick(18);
  EXPECT_EQ(Show(kKeys, "Menu Key Mappings", "Show Queue", K::kList).value(), "CHR 81 - Q (Q)");
  Press(kRandom, "Random Play Options", ">>", K::kList);
  Pick(1);
  Click(form().options.picker.done);
  // The sign's section first, since opening it takes back what isn't saved.
  Press(kSign, "Networked Settings", "Terminal", K::kChoice);
  Press(kSign, "BETABRITE Config Settings", "Port", K::kList);
  Pick(3);
  Press(kSign, "BETABRITE Message Settings", "Enable LED Sign", K::kCheck);
  EXPECT_FALSE(house().playback.random_play_available);
  Save();
  EXPECT_EQ(Lines("sonotik.ini"), ini);
  EXPECT_EQ(ChangedLines("permissions.ini", rights), std::vector<size_t>{6});
  EXPECT_EQ(ChangedLines("cost.dat", costs), std::vector<size_t>{4});
  EXPECT_EQ(Lines("keyboard.dat")[16], " 81 \r");
  EXPECT_EQ(folder.Read("random.dat"), " 1 \r\nBlues\r\n\r\n 1 \r\nJazz\r\n\r\n");
  EXPECT_EQ(folder.Read("betabrite.ini"),
            "Betabrite config\r\n9600,n,8,1\r\n 3 \r\n 0 \r\n 1 \r\n");
  EXPECT_EQ(folder.Read("terminal.ini"), "Terminal \\ Master config\r\n\r\nFalse\r\nTrue\r\n");
  Start();
  EXPECT_TRUE(house().permissions.allowed(6));
  EXPECT_EQ(house().credits.ShownPrice(1, PlayWay::kPlayNext), 3);
  EXPECT_TRUE(house().network.terminal());
  EXPECT_FALSE(house().playback.random_play_available);
  EXPECT_EQ(house().sign.port, 3);
  machine.keys.down = {81};
  machine.events.on_pump = [this] { machine.keys.down.clear(); };
  jukebox->keys.PollKeys();
  EXPECT_TRUE(form().panel(screen::kQueue).visible());
  // A key that was given is taken back.
  OpenPages();
  Press(kKeys, "Menu Key Mappings", "Show Queue", K::kList);
  Click(form().options.picker.none);
  Save();
  EXPECT_EQ(Lines("keyboard.dat")[16], "-1 \r");
}

TEST_F(OptionsTest, AFileThatCannotBeWrittenIsToldOfAndHoldsUpNoOther) {
  Open();
  // A folder stands where the file would go.
  folder.Write("keyboard.dat/in the way", "");
  folder.Write("cost.dat", "old");
  Press(kCoins, "Audio", "Play Now", K::kList);
  Pick(0);
  Save();
  EXPECT_EQ(machine.messages.shown,
            ItemList{"These files were not saved.\nIs a directory: keyboard.dat"});
  EXPECT_TRUE(folder.Has("sonotik.ini") && folder.Has("terminal.ini"));
  EXPECT_EQ(Lines("cost.dat")[2], " 0 \r");
  EXPECT_TRUE(form().panel(screen::kOptions).visible());
  folder.Remove("keyboard.dat");
  Save();
  EXPECT_EQ(machine.messages.shown.size(), 1U);
}

TEST_F(OptionsTest, ADiskThatTakesNothingLeavesTheOldFilesWholeAndIsToldOfOnce) {
  Open();
  Save();
  const char* const files[] = {"sonotik.ini", "random.dat",    "keyboard.dat", "permissions.ini",
                               "cost.dat",    "betabrite.ini", "terminal.ini"};
  std::vector<std::string> before;
  for (const char* file : files) before.push_back(folder.Read(file));
  Press(kKeys, "Power Off", "Disable Keymapping", K::kCheck);
  // No file takes a byte, as on a disk without room.
  struct rlimit limit;
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
  const struct rlimit none { 0, limit.rlim_max };
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &none), 0);
  Save();
  setrlimit(RLIMIT_FSIZE, &limit);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(machine.messages.shown,
            std::vector<std::string>{"These files were not saved.\nFile too large: sonotik.ini, "
                                     "random.dat, keyboard.dat, permissions.ini, cost.dat, "
                                     "betabrite.ini, terminal.ini"});
  for (size_t i = 0; i < before.size(); ++i) EXPECT_EQ(folder.Read(files[i]), before[i]);
  Save();
  EXPECT_NE(folder.Read("sonotik.ini"), before[0]);
  EXPECT_EQ(machine.messages.shown.size(), 1U);
}

TEST_F(OptionsTest, PinBoxesSpeakAtEachOtherCharacterAndGoWhileAPinIsAskedFor) {
  Open();
  Press(kGeneral, "Option Screen Settings", "Admin Access", K::kPin);
  TypeKeys("1a0");
  EXPECT_EQ(machine.messages.shown, ItemList(2, "Only use numbers 1 - 9"));
  // A keyboard that is there types as well. What is cancelled stays out.
  form().form.TypeCharacter('2');
  EXPECT_EQ(form().options.keyboard.entry.caption(), "1a02|");
  Command(KeyboardCommand::kCancel);
  EXPECT_EQ(house().settings.admin_pin, "");
  Press(kGeneral, "Option Screen Settings", "Prompt for pin", K::kCheck);
  const OptionField* admin =
      jukebox->options.Find(kGeneral, "Option Screen Settings", "Admin Access", K::kPin);
  EXPECT_FALSE(admin->visible());
  Press(kGeneral, "Option Screen Settings", "Prompt for pin", K::kCheck);
  Show(kGeneral, "Option Screen Settings", "Admin Access", K::kPin);
  EXPECT_TRUE(admin->visible());
}

TEST_F(OptionsTest, ADelegateChangesNeitherRightsNorTheEndOfTheSessionAndSavesAllTheSame) {
  settings.prompt_for_pin = true;
  settings.admin_pin = "1";
  settings.delegate_pin = "2";
  folder.Write("permissions.ini",
               " 1 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n");
  Start();
  const auto enter = [this](size_t digit) {
    OpenPages();
    Click(form().pin.keys[digit]);
    Click(form().pin.keys[0]);
  };
  enter(2);
  const OptionField& choice = Show(kGeneral, "Power Down Options", "Reboot", K::kChoice);
  EXPECT_FALSE(choice.enabled());
  Click(choice);
  EXPECT_FALSE(house().settings.power_reboot);
  OptionField* right =
      jukebox->options.Find(kGeneral, "Option Screen Settings", "Enable Coin Settings", K::kCheck);
  EXPECT_FALSE(right->enabled());
  Save();
  EXPECT_TRUE(folder.Has("terminal.ini"));
  enter(1);
  EXPECT_TRUE(right->enabled());
  EXPECT_TRUE(Show(kGeneral, "Option Screen Settings", "Prompt for pin", K::kCheck).showing());
}

TEST_F(OptionsTest, TheLastKindThatRandomPlayMayTakeFromStays) {
  Open();
  Press(kRandom, "Random Play Options", "Audio", K::kCheck);
  EXPECT_TRUE(Show(kRandom, "Random Play Options", "Audio", K::kCheck).checked());
  Press(kRandom, "Random Play Options", "Karaoke", K::kCheck);
  Press(kRandom, "Random Play Options", "Audio", K::kCheck);
  EXPECT_FALSE(house().settings.random_from_audio);
}

TEST_F(OptionsTest, TheSignsSectionTakesBackWhatIsNotSavedAndListsTheSkinsOnceMore) {
  Open();
  house().lists.skins = {"Plain"};
  Save();
  const size_t skins = house().lists.skins.size();
  Press(kGeneral, "Play Options...", "Shuffle Queue Each Play", K::kCheck);
  Click(form().options.sections[kSign]);
  EXPECT_FALSE(house().settings.shuffle_queue_each_play);
  EXPECT_EQ(house().lists.skins.size(), 2 * skins);
}

TEST_F(OptionsTest, CreditModeAndFullScreenActAtTheClick) {
  Open();
  Press(kCoins, "Credit Mode", "Enable Credit mode", K::kCheck);
  EXPECT_EQ(form().credits.caption(), "CREDITS:  0");
  EXPECT_EQ(machine.processes.started.back(), folder.path() + "\\creditmodule.exe");
  for (const bool on : {true, false}) {
    Press(kLooks, "Appearance Options", "Full Screen Mode...", K::kCheck);
    EXPECT_EQ(machine.displays.full_screen, on);
  }
}

TEST_F(OptionsTest, ADayOfTheCalendarKeepsItsPage) {
  Open();
  const char* frame = "Calendar Settings For: 02/29/2024";
  Click(form().options.sections[kAttract]);
  Click(form().options.calendar.month_forward);
  // February of 2024 begins on a Thursday and ends on the 29th.
  EXPECT_EQ(form().options.calendar.days[4].caption(), "1");
  EXPECT_FALSE(form().options.calendar.days[33].visible());
  Click(form().options.calendar.days[32]);
  Press(kAttract, frame, "LED Sign Path:", K::kText);
  TypeText("hello");
  Press(kAttract, frame, "Save Date Info", K::kCommand);
  EXPECT_EQ(folder.Read("CALENDER/02-29-2024.DAT"),
            "Attract Mode Path\r\n\r\nHoliday Skin\r\n\r\nLED Sign Path\r\nhello\r\n"
            "Jingles Path\r\n\r\nDatabase Path\r\n\r\n");
}

TEST_F(OptionsTest, ADamagedFileOfTodayLeavesThePagesFilled) {
  settings.enable_random_play = true;
  folder.Write("CALENDER/01-15-2024.DAT", "Attract Mode Path\r\n\\half\r\nHoliday Skin\r\n");
  Open();
  EXPECT_TRUE(form().panel(screen::kOptions).visible());
  // Before any section is pressed, which would fill them too.
  EXPECT_TRUE(jukebox->options
                  .Find(kRandom, "Random Play Options", "Enable Random Play", K::kCheck)
                  ->checked());
}

TEST_F(OptionsTest, GenresGoOverAndComeBackTogether) {
  Open();
  for (int i = 0; i < 2; ++i) {
    Press(kRandom, "Random Play Options", ">>", K::kList);
    Pick(0);
    if (form().options.picker.panel.visible()) Click(form().options.picker.done);
  }
  EXPECT_EQ(house().lists.selected_genres, (ItemList{"Blues", "Jazz"}));
  folder.Write("genres/Polka.cvr", "");
  Press(kRandom, "Random Play Options", "Reset GENRE Lists", K::kCommand);
  EXPECT_EQ(house().lists.available_genres, (ItemList{"Blues", "Jazz", "Polka"}));
  EXPECT_TRUE(house().lists.selected_genres.empty());
}

}  // namespace
}  // namespace sonotik
