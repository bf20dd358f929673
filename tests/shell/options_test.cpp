// The operator's pages: from each control through the files and a restart to what it does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "config/settings_table.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

using K = OptionKind;

enum Section : size_t { kGeneral, kLooks, kRandom, kButtons, kAttract, kKeys, kCoins, kSign };

class OptionsTest : public JukeboxTest {
 protected:
  OptionsTest() {
    folder.Write("genres/Blues.cvr", "");
    folder.Write("genres/Jazz.cvr", "");
    machine.displays.monitors.push_back(machine.displays.monitors[0]);
  }

  void Open() {
    Start();
    OpenPages();
  }
  void OpenPages() { jukebox->menu.Open(MenuButton::kOptions); }

  // Brings the field's section to the front, and its page.
  OptionField& Show(size_t section, const char* frame, const char* caption, K kind) {
    OptionsScreen& screen = form().options;
    if (screen.front() != section) Click(screen.sections[section]);
    OptionField* field = jukebox->options.Find(section, frame, caption, kind);
    if (field == nullptr) throw std::runtime_error(caption);
    while (screen.page_back.visible() && screen.settings[section].page() > 0) {
      Click(screen.page_back);
    }
    for (int i = 1; i < screen.settings[section].pages() && !field->showing(); ++i) {
      Click(screen.page_forward);
    }
    return *field;
  }
  void Press(size_t section, const char* frame, const char* caption, K kind) {
    Click(Show(section, frame, caption, kind));
  }
  void Pick(size_t item) { Click(form().options.picker.items[item]); }
  void TypeKeys(const std::string& text) {
    const std::string keys = kKeyboardLower;
    for (const char c : text) Click(form().options.keyboard.keys[keys.find(c)]);
  }
  void Command(KeyboardCommand command) {
    Click(form().options.keyboard.commands[static_cast<size_t>(command)]);
  }
  void TypeText(const std::string& text) {
    Command(KeyboardCommand::kClear);
    TypeKeys(text);
    Command(KeyboardCommand::kOk);
  }
  void Save() { Click(form().options.save_settings); }

  // Gives a control another value, by its kind.
  void Change(OptionField& field) {
    Click(field);
    switch (field.kind()) {
      case K::kList:
        Pick(form().options.picker.items[0].checked() ? 1 : 0);
        break;
      case K::kFolder:
        // The folder above.
        Pick(0);
        Click(form().options.picker.choose);
        break;
      case K::kText:
      case K::kNumber:
      case K::kPin:
        TypeText("7");
        break;
      default:
        break;
    }
  }

  std::vector<std::string> Lines(const std::string& file) const {
    std::istringstream text(folder.Read(file));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
  }
  std::vector<size_t> ChangedLines(const std::string& file, const std::string& before) const {
    std::istringstream text(before);
    std::vector<size_t> changed;
    size_t number = 0;
    for (const std::string& line : Lines(file)) {
      std::string old;
      std::getline(text, old);
      if (line != old) changed.push_back(number);
      ++number;
    }
    return changed;
  }
};

struct SettingCase {
  size_t section;
  const char* frame;
  const char* caption;
  K kind;
  int row;       // of sonotik.ini
  size_t value;  // in the row
};

const SettingCase kSettings[] = {
    {kGeneral, "Play Options...", "Shuffle Queue Each Play", K::kCheck, 6, 0},
    {kGeneral, "Play Options...", "Mute LINE IN on Play", K::kCheck, 31, 0},
    {kGeneral, "Play Options...", "Enable MIC on Videos", K::kCheck, 78, 0},
    {kGeneral, "Play Options...", "Allow duplicates in queue", K::kCheck, 23, 0},
    {kGeneral, "Track List Options...", "Auto Back On Selection...", K::kCheck, 54, 0},
    {kGeneral, "Track List Options...", "Enable Double Click...", K::kCheck, 62, 0},
    {kGeneral, "Track List Options...", "Enable Double Click...", K::kList, 62, 1},
    {kGeneral, "Switch to now playing...", "Time to wait before switching....", K::kNumber, 56, 0},
    {kGeneral, "Power Down Options", "Save Queue On Shutdown", K::kCheck, 24, 0},
    {kGeneral, "Power Down Options", "Exit Program at:", K::kCheck, 59, 1},
    {kGeneral, "Power Down Options", "Exit Program at:", K::kList, 59, 0},
    {kGeneral, "Power Down Options", "Run Command On Shutdown:", K::kText, 51, 0},
    {kGeneral, "Power Down Options", "Shutdown", K::kChoice, 70, 1},
    {kGeneral, "Power Down Options", "Reboot", K::kChoice, 70, 2},
    {kGeneral, "Power Down Options", "Log Off", K::kChoice, 70, 3},
    {kGeneral, "Power Down Options", "Power Down ATX", K::kChoice, 70, 4},
    {kGeneral, "Option Screen Settings", "Admin Access", K::kPin, 52, 0},
    {kGeneral, "Option Screen Settings", "Delegate Access", K::kPin, 53, 0},
    {kGeneral, "Option Screen Settings", "Prompt for pin", K::kCheck, 26, 0},
    {kGeneral, "Default Database", "Database to use on startup...", K::kList, 74, 0},
    {kLooks, "Appearance Options", "Update Skins On Load", K::kCheck, 50, 0},
    {kLooks, "Appearance Options", "Hide Mouse", K::kCheck, 25, 0},
    {kLooks, "Appearance Options", "Show Album/Arist Names", K::kCheck, 15, 0},
    {kLooks, "Appearance Options", "Full Screen Mode...", K::kCheck, 27, 0},
    {kLooks, "Album Options", "Hide QUICKJUMP Covers", K::kCheck, 48, 0},
    {kLooks, "Album Options", "Show New On Recent Albums", K::kCheck, 47, 0},
    {kLooks, "Animation Options", "Use Animated Covers", K::kCheck, 28, 0},
    {kLooks, "Animation Options", "Animation Style:", K::kList, 29, 0},
    {kLooks, "Animation Options", "Animation Speed", K::kSlider, 63, 0},
    {kLooks, "Cover Filename Options", "Cover image name", K::kText, 7, 0},
    {kLooks, "Cover Filename Options", "Use folder name...", K::kCheck, 8, 0},
    {kLooks, "Cover Filename Options", "Display 1st image found", K::kCheck, 9, 0},
    {kLooks, "Track Display Options", "Use Filename If No Tag Found", K::kCheck, 41, 0},
    {kLooks, "Track Display Options", "Display Track Numbers", K::kCheck, 42, 0},
    {kLooks, "Track Display Options", "Show Track First Compilations", K::kCheck, 57, 0},
    {kLooks, "Video\\Visualisations Options", "Use second monitor", K::kCheck, 34, 0},
    {kLooks, "Video\\Visualisations Options", "Second Monitor ID:", K::kList, 35, 0},
    {kLooks, "Video\\Visualisations Options", "Use WINAMP visualizations for AUDIO", K::kCheck, 36,
     0},
    {kRandom, "Random Play Options", "Enable Random Play", K::kCheck, 19, 0},
    {kRandom, "Random Play Options", "Wait Time Between Tracks:", K::kNumber, 37, 0},
    {kRandom, "Random Play Options", "Video", K::kCheck, 46, 1},
    {kRandom, "Random Play Options", "Audio", K::kCheck, 46, 0},
    {kRandom, "Random Play Options", "Karaoke", K::kCheck, 46, 2},
    {kRandom, "Random Play Options", "Use Selected Genres", K::kCheck, 46, 3},
    {kRandom, "Random Play Options", "Use This Volume For Random", K::kCheck, 71, 0},
    {kRandom, "Random Play Options", "Volume For Random Play Songs:", K::kSlider, 21, 0},
    {kRandom, "Random Play Options", "Do Not Repeat song for:", K::kCheck, 61, 0},
    {kRandom, "Random Play Options", "Do Not Repeat song for:", K::kList, 61, 1},
    {kRandom, "Jingles....", "Enable Jingles", K::kCheck, 68, 0},
    {kRandom, "Jingles....", "Song Count:", K::kList, 69, 0},
    {kRandom, "Jingles....", "Jingle Path", K::kFolder, 70, 0},
    {kButtons, "Menu Button Options", "History", K::kCheck, 30, 0},
    {kButtons, "Menu Button Options", "Top 20", K::kCheck, 30, 1},
    {kButtons, "Menu Button Options", "Search", K::kCheck, 30, 2},
    {kButtons, "Menu Button Options", "Queue", K::kCheck, 30, 3},
    {kButtons, "Menu Button Options", "Options", K::kCheck, 30, 4},
    {kButtons, "Menu Button Options", "Decades", K::kCheck, 30, 5},
    {kButtons, "Menu Button Options", "Carousel View", K::kCheck, 30, 6},
    {kButtons, "Menu Button Options", "Genres", K::kCheck, 30, 7},
    {kButtons, "Misc Button Options", "Display Player Controls", K::kCheck, 30, 8},
    {kButtons, "Misc Button Options", "Display Menu Bar", K::kCheck, 30, 9},
    {kButtons, "Misc Button Options", "Volume Slider", K::kCheck, 30, 10},
    {kButtons, "Misc Button Options", "Volume Buttons", K::kCheck, 30, 11},
    {kButtons, "Misc Button Options", "Player Buttons", K::kCheck, 30, 12},
    {kButtons, "Tab Display Options", "Audio", K::kCheck, 43, 0},
    {kButtons, "Tab Display Options", "Video", K::kCheck, 43, 1},
    {kButtons, "Tab Display Options", "Karaoke", K::kCheck, 43, 2},
    {kButtons, "Tab Display Options", "Most Played", K::kCheck, 43, 3},
    {kButtons, "Tab Display Options", "Newly Added", K::kCheck, 43, 4},
    {kButtons, "Tab Display Options", "SPIN on THIS", K::kCheck, 43, 5},
    {kButtons, "Play Button Options", "Play It Now", K::kCheck, 45, 0},
    {kButtons, "Play Button Options", "Play Next", K::kCheck, 45, 1},
    {kButtons, "Play Button Options", "Add To Queue", K::kCheck, 45, 2},
    {kButtons, "Play Button Options", "Add Entire Album", K::kCheck, 45, 3},
    {kButtons, "Play Button Options", "Add Album To Carousel", K::kCheck, 45, 4},
    {kButtons, "Misc Button Options", "Show Ratings Thumbs", K::kCheck, 45, 5},
    {kButtons, "Misc Button Options", "Show Credits Display", K::kCheck, 45, 6},
    {kButtons, "Misc Button Options", "Show Now Playing", K::kCheck, 45, 7},
    {kButtons, "Misc Button Options", "ShowTime And Date", K::kCheck, 45, 8},
    {kButtons, "Play Button Options", "BurnCD", K::kCheck, 45, 9},
    {kButtons, "Play Button Options", "Download Track", K::kCheck, 45, 10},
    {kButtons, "Play Button Options", "Hide Add Carousel / Album on track select", K::kCheck, 58,
     0},
    {kButtons, "Queue Display Options", "Set Queue Read Only", K::kCheck, 75, 0},
    {kButtons, "Keypad Display Options", "Show Entry Digits", K::kCheck, 76, 0},
    {kButtons, "Keypad Display Options", "Show Album Digits", K::kCheck, 77, 0},
    {kButtons, "Search Results Options", "Add All To Queue", K::kCheck, 79, 0},
    {kAttract, "General Attract Mode Options", "Attract Mode Enabled", K::kCheck, 66, 0},
    {kAttract, "General Attract Mode Options", "Attract Delay:", K::kNumber, 13, 1},
    {kAttract, "General Attract Mode Options", "Animation Amount:", K::kNumber, 13, 0},
    {kAttract, "General Attract Mode Options", "Animation Speed", K::kSlider, 64, 0},
    {kAttract, "General Attract Mode Options", "Attract AnimationStyle:", K::kList, 65, 0},
    {kAttract, "General Attract Mode Options", "Alphabetical Order", K::kChoice, 65, 2},
    {kAttract, "General Attract Mode Options", "Attract Mode Path:", K::kFolder, 67, 0},
    {kKeys, "Power Off", "Disable Keymapping", K::kCheck, 60, 0},
    {kCoins, "Credit Mode", "Enable Credit mode", K::kCheck, 12, 0},
};

// The line of a value in a file without skins in its list, counted by the file's own table.
size_t LineOf(int number, size_t value) {
  size_t line = 0;
  for (const SettingRow& row : SettingRows()) {
    if (row.label != nullptr) ++line;
    if (row.number == number) return line + value;
    line += row.values.size();
  }
  return 0;
}

TEST_F(OptionsTest, EachControlChangesItsOwnLineAndComesBackFromIt) {
  Open();
  Save();
  std::vector<std::pair<std::string, bool>> values;
  for (const SettingCase& c : kSettings) {
    SCOPED_TRACE(std::string(c.frame) + " " + c.caption);
    const std::string before = folder.Read("sonotik.ini");
    OptionField& field = Show(c.section, c.frame, c.caption, c.kind);
    const bool checked = field.checked();
    if (c.kind == K::kSlider) {
      Click(*jukebox->options.SliderOn(field));
    } else {
      Change(field);
    }
    Save();
    const auto changed = ChangedLines("sonotik.ini", before);
    EXPECT_THAT(changed, testing::Contains(LineOf(c.row, c.value)));
    // Of choices another one goes.
    EXPECT_EQ(changed.size(), c.kind == K::kChoice ? 2U : 1U);
    EXPECT_TRUE(c.kind != K::kCheck || field.checked() != checked);
  }
  for (const SettingCase& c : kSettings) {
    const OptionField* field = jukebox->options.Find(c.section, c.frame, c.caption, c.kind);
    values.emplace_back(field->value(), field->checked());
  }
  jukebox.reset();
  Start();
  jukebox->options.Refresh();
  size_t at = 0;
  for (const SettingCase& c : kSettings) {
    const OptionField* field = jukebox->options.Find(c.section, c.frame, c.caption, c.kind);
    EXPECT_EQ(field->value(), values[at].first) << c.frame << " " << c.caption;
    EXPECT_EQ(field->checked(), values[at].second) << c.frame << " " << c.caption;
    ++at;
  }
}

TEST_F(OptionsTest, AClickThatShowsOrHidesDoesSoAtOnceAndAfterARestart) {
  settings.show_ratings_thumbs = true;
  WriteDefaults();
  Open();
  const auto menu = [this](MenuButton b) { return &form().menu_buttons[static_cast<size_t>(b)]; };
  const auto player = [this](PlayerButton b) {
    return &form().player_buttons[static_cast<size_t>(b)];
  };
  const auto tab = [this](AlbumTab t) { return &form().album.tabs[static_cast<size_t>(t)]; };
  const struct {
    const char* frame;
    const char* caption;
    std::function<Control*()> control;
  } cases[] = {
      {"Menu Button Options", "History", [&] { return menu(MenuButton::kHistory); }},
      {"Menu Button Options", "Top 20", [&] { return menu(MenuButton::kTop20); }},
      {"Menu Button Options", "Search", [&] { return menu(MenuButton::kSearch); }},
      {"Menu Button Options", "Queue", [&] { return menu(MenuButton::kShowQueue); }},
      {"Menu Button Options", "Options", [&] { return menu(MenuButton::kOptions); }},
      {"Menu Button Options", "Decades", [&] { return menu(MenuButton::kDecades); }},
      {"Menu Button Options", "Carousel View", [&] { return menu(MenuButton::kCarousel); }},
      {"Menu Button Options", "Genres", [&] { return menu(MenuButton::kGenres); }},
      {"Misc Button Options", "Display Player Controls", [&] { return &form().player; }},
      {"Misc Button Options", "Display Menu Bar", [&] { return &form().menu; }},
      {"Misc Button Options", "Volume Slider", [&] { return &form().volume; }},
      {"Misc Button Options", "Volume Buttons", [&] { return player(PlayerButton::kVolumeUp); }},
      {"Misc Button Options", "Player Buttons", [&] { return player(PlayerButton::kPause); }},
      {"Misc Button Options", "Show Ratings Thumbs", [&] { return &form().now_playing.rating_up; }},
      {"Misc Button Options", "Show Credits Display", [&] { return &form().credits; }},
      {"Misc Button Options", "Show Now Playing", [&] { return &form().now_playing_title; }},
      {"Misc Button Options", "ShowTime And Date", [&] { return &form().clock; }},
      {"Tab Display Options", "Audio", [&] { return tab(AlbumTab::kAudio); }},
      {"Tab Display Options", "Video", [&] { return tab(AlbumTab::kVideo); }},
      {"Tab Display Options", "Karaoke", [&] { return tab(AlbumTab::kKaraoke); }},
      {"Tab Display Options", "SPIN on THIS", [&] { return tab(AlbumTab::kSpinOnThis); }},
  };
  for (const auto& c : cases) {
    Press(kButtons, c.frame, c.caption, K::kCheck);
    EXPECT_FALSE(c.control()->visible()) << c.caption;
    Press(kButtons, c.frame, c.caption, K::kCheck);
    EXPECT_TRUE(c.control()->visible()) << c.caption;
    Press(kButtons, c.frame, c.caption, K::kCheck);
  }
  Save();
  jukebox.reset();
  Start();
  for (const auto& c : cases) EXPECT_FALSE(c.control()->visible()) << c.caption;
}

TEST_F(OptionsTest, TheOtherFilesHoldTheirControlsToo) {
  Open();
  Save();
  const std::string ini = folder.Read("sonotik.ini");
  const std::string costs = folder.Read("cost.dat"), rights = folder.Read("permissions.ini");
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
  EXPECT_FALSE(
      jukebox->options.Find(kRandom, "Random Play Options", "Enable Random Play", K::kCheck)
          ->enabled());
  Save();
  EXPECT_EQ(folder.Read("sonotik.ini"), ini);
  EXPECT_EQ(ChangedLines("permissions.ini", rights), std::vector<size_t>{6});
  EXPECT_EQ(ChangedLines("cost.dat", costs), std::vector<size_t>{4});
  EXPECT_EQ(Lines("keyboard.dat")[16], " 81 \r");
  EXPECT_EQ(folder.Read("random.dat"), " 1 \r\nBlues\r\n\r\n 1 \r\nJazz\r\n\r\n");
  EXPECT_EQ(folder.Read("betabrite.ini"),
            "Betabrite config\r\n9600,n,8,1\r\n 3 \r\n 0 \r\n 1 \r\n");
  EXPECT_EQ(folder.Read("terminal.ini"), "Terminal \\ Master config\r\n\r\nFalse\r\nTrue\r\n");
  jukebox.reset();
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
}

TEST_F(OptionsTest, AFileThatCannotBeWrittenIsToldOfAndHoldsUpNoOther) {
  Open();
  // A folder stands where the file would go.
  folder.Write("keyboard.dat/in the way", "");
  folder.Write("cost.dat", "old");
  Press(kCoins, "Audio", "Play Now", K::kList);
  Pick(0);
  Save();
  ASSERT_EQ(machine.messages.shown.size(), 1U);
  EXPECT_THAT(machine.messages.shown[0], testing::HasSubstr("keyboard.dat"));
  EXPECT_THAT(machine.messages.shown[0], testing::Not(testing::HasSubstr("cost.dat")));
  for (const char* file :
       {"sonotik.ini", "random.dat", "permissions.ini", "betabrite.ini", "terminal.ini"}) {
    EXPECT_TRUE(folder.Has(file)) << file;
  }
  EXPECT_EQ(Lines("cost.dat")[2], " 0 \r");
  EXPECT_TRUE(form().panel(screen::kOptions).visible());
  std::filesystem::remove_all(folder.native() / "keyboard.dat");
  Save();
  EXPECT_EQ(machine.messages.shown.size(), 1U);
}

TEST_F(OptionsTest, PinBoxesSpeakAtEachOtherCharacterAndGoWhileAPinIsAskedFor) {
  Open();
  Press(kGeneral, "Option Screen Settings", "Admin Access", K::kPin);
  TypeKeys("1a0");
  EXPECT_EQ(machine.messages.shown,
            (std::vector<std::string>{"Only use numbers 1 - 9", "Only use numbers 1 - 9"}));
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
  WriteDefaults();
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
  machine.displays.calls.clear();
  Press(kLooks, "Appearance Options", "Full Screen Mode...", K::kCheck);
  Press(kLooks, "Appearance Options", "Full Screen Mode...", K::kCheck);
  EXPECT_EQ(
      machine.displays.calls,
      (std::vector<std::string>{"FitWindow 1 0", "SetTaskbarVisible 0 0", "RestoreResolution 0 0",
                                "FitWindow 0 0", "SetTaskbarVisible 1 0"}));
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

TEST_F(OptionsTest, GenresGoOverAndComeBackTogether) {
  Open();
  for (int i = 0; i < 2; ++i) {
    Press(kRandom, "Random Play Options", ">>", K::kList);
    Pick(0);
    if (form().options.picker.panel.visible()) Click(form().options.picker.done);
  }
  EXPECT_EQ(house().lists.selected_genres, (ItemList{"Blues", "Jazz"}));
  Press(kRandom, "Random Play Options", "Reset GENRE Lists", K::kCommand);
  EXPECT_EQ(house().lists.available_genres, (ItemList{"Blues", "Jazz"}));
  EXPECT_TRUE(house().lists.selected_genres.empty());
}

// Their files cut at every line, with words and with numbers of any size: the pages open all the
// same, and no list shows an item that it doesn't have.
TEST_F(OptionsTest, DamagedFilesCostWhatTheyHold) {
  const struct {
    const char* file;
    int lines;
  } files[] = {{"permissions.ini", 10}, {"keyboard.dat", 35}, {"cost.dat", 9}};
  for (const auto& f : files) {
    for (const char* bad : {"", "word", " 99999999999 ", "-7 ", " 200 "}) {
      for (const int good : {0, 1, f.lines - 1}) {
        std::string text;
        for (int i = 0; i < good; ++i) text += " 1 \r\n";
        folder.Write(f.file, *bad == '\0' ? text : text + bad + "\r\n");
        Open();
        EXPECT_EQ(result, StartUpResult::kRunning) << f.file << good << bad;
        Click(form().options.sections[kKeys]);
        jukebox.reset();
      }
    }
    std::filesystem::remove(folder.native() / f.file);
  }
}

}  // namespace
}  // namespace sonotik
