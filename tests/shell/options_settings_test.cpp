// Each setting of sonotik.ini: from its control to its line and, through a restart, back.
#include "support/options_test.h"

namespace sonotik {
namespace {

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

}  // namespace
}  // namespace sonotik
