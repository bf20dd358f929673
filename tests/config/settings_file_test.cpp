#include "config/settings_file.h"

#include <gtest/gtest.h>

#include "config/settings_table.h"
#include "files/files.h"
#include "files/runtime_failure.h"
#include "support/temp_folder.h"
#include "support/test_machine.h"

namespace sonotik {
namespace {

constexpr char kWrongVersion[] = "INI File was not the correct version, loading the defaults...";

class SettingsFileTest : public testing::Test {
 protected:
  SettingsFileTest() : path(folder.path()) {
    folder.Write("sonotik.def", ReadWholeFile(ProgramPath(SONOTIK_SOURCE "/app/sonotik.def")));
    lists.FillFixed(2);
  }

  void WriteLines(const std::vector<std::string>& lines, size_t count) const {
    std::string text;
    for (size_t i = 0; i < count; ++i) text += lines[i] + "\n";
    folder.Write("sonotik.ini", text);
  }

  // What a jukebox that starts now would say and take.
  std::vector<std::string> Load(Settings& read) const {
    OptionLists fresh;
    fresh.FillFixed(2);
    TestMessages said;
    SettingsFile(path, read, fresh, said).LoadConfig();
    return said.shown;
  }

  TempFolder folder;
  std::string path;
  Settings settings;
  OptionLists lists;
  TestMessages messages;
  SettingsFile file{path, settings, lists, messages};
};

TEST_F(SettingsFileTest, TheDeliveredDefaultsLoadAndStandInTheirLines) {
  file.LoadConfig();
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(lists.skins, (ItemList{"Classic", "Neon", "Plain"}));
  EXPECT_EQ(settings.current_skin, "Neon");
  // The delivered file can't know the folder it lies in.
  EXPECT_EQ(settings.attract_path, path);
  EXPECT_EQ(settings.jingle_path, path + "\\jingles");
  const auto lines = folder.Lines("sonotik.def");
  ASSERT_EQ(lines.size(), 185U);
  EXPECT_EQ(lines[183], "Add all to queue\r");
}

TEST_F(SettingsFileTest, WhatIsSavedLoadsAgainUnchanged) {
  file.LoadConfig();
  settings.enable_credit_mode = !settings.enable_credit_mode;
  settings.wait_between_tracks = "2.5";
  settings.attract_path = "\\pictures\\of the house";
  settings.main_volume = -1230;
  settings.second_monitor = 1;
  settings.power_reboot = true;
  settings.exit_time = -1;
  settings.current_skin = "Unknown";
  settings.hide_mouse = true;
  file.SaveConfig();
  const auto lines = folder.Lines("sonotik.ini");
  EXPECT_EQ(lines[2], " 0 \r");
  EXPECT_NE(folder.Read("sonotik.ini").find("Dead Air Time\r\n 2.5 \r\n"), std::string::npos);
  // 1 hides the mouse, whatever the label says.
  EXPECT_NE(folder.Read("sonotik.ini").find("Show mouse\r\n 1 \r\n"), std::string::npos);

  Settings again;
  EXPECT_TRUE(Load(again).empty());
  EXPECT_EQ(again, settings);
}

TEST_F(SettingsFileTest, AFileCutAnywhereButBeforeItsLastRowGivesTheDefaults) {
  file.LoadConfig();
  const Settings defaults = settings;
  Settings changed = settings;
  changed.add_all_to_queue = true;
  changed.enable_random_play = true;
  changed.mute_line_in_on_play = true;
  SettingsFile(path, changed, lists, messages).SaveConfig();
  const auto lines = folder.Lines("sonotik.ini");
  for (size_t count = 0; count < lines.size(); ++count) {
    WriteLines(lines, count);
    Settings read;
    const std::vector<std::string> said = Load(read);
    if (count == lines.size() - 2) {
      EXPECT_TRUE(said.empty());
      EXPECT_TRUE(read.mute_line_in_on_play);
      EXPECT_FALSE(read.add_all_to_queue);
    } else {
      EXPECT_EQ(said, std::vector<std::string>{kWrongVersion}) << count;
      EXPECT_EQ(read, defaults) << count;
    }
  }
}

TEST_F(SettingsFileTest, ABadLineAnywhereShowsOneMessageAndNeverMore) {
  file.LoadConfig();
  file.SaveConfig();
  const auto lines = folder.Lines("sonotik.ini");
  for (const std::string& bad :
       {std::string("-32769\r"), std::string("a,b,c\r"), std::string("\"\r"),
        std::string(70000, '9') + "\r", std::string("\0\xFF\x80\r", 4)}) {
    for (size_t at = 0; at < lines.size(); ++at) {
      auto damaged = lines;
      damaged[at] = bad;
      WriteLines(damaged, damaged.size());
      Settings read;
      EXPECT_LE(Load(read).size(), 1U);
      EXPECT_GE(read.second_monitor, -1);
      EXPECT_LT(read.second_monitor, 2);
    }
  }
}

TEST_F(SettingsFileTest, ACommaInAValueSlipsAllBehindIt) {
  file.LoadConfig();
  settings.cover_image_name = "front,back.jpg";
  file.SaveConfig();
  file.LoadConfig();
  EXPECT_EQ(messages.shown, std::vector<std::string>{kWrongVersion});
  EXPECT_EQ(settings.cover_image_name, "Cover.jpg");
}

TEST_F(SettingsFileTest, IndexesOutsideTheirListsAreErrorsAndNoneIsLegal) {
  for (const int style : {-1, 0, 14, -2, 15}) {
    messages.shown.clear();
    settings.animation_style = style;
    file.SaveConfig();
    file.LoadConfig();
    EXPECT_EQ(messages.shown.size(), style < -1 || style > 14 ? 1U : 0U) << style;
  }
}

TEST_F(SettingsFileTest, OfABadFileOnlyTheValuesThatDoNotWaitStay) {
  file.LoadConfig();
  settings.shuffle_queue_each_play = true;
  settings.main_volume = -700;
  file.SaveConfig();
  auto lines = folder.Lines("sonotik.ini");
  WriteLines(lines, 150);
  folder.Write("sonotik.def", "nothing");
  settings = Settings();
  EXPECT_THROW(file.LoadConfig(), RuntimeFailure);
  EXPECT_EQ(messages.shown, std::vector<std::string>{kWrongVersion});
  EXPECT_TRUE(settings.shuffle_queue_each_play);
  EXPECT_EQ(settings.main_volume, 0);
}

}  // namespace
}  // namespace sonotik
