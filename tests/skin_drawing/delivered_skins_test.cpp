#include <gtest/gtest.h>

#include <QGuiApplication>

#include "forms/Form1.h"
#include "shell/jukebox.h"
#include "support/temp_folder.h"
#include "support/test_machine.h"
#include "tools/skins/screens.h"

namespace sonotik::skins {
namespace {

class DeliveredSkins : public testing::TestWithParam<const Design*> {
 protected:
  DeliveredSkins() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "test";
    static char* arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments);
    Make(*GetParam(), QString::fromStdString(folder.native().string()));
    skin = folder.path() + "\\" + GetParam()->name;
  }

  TempFolder folder;
  std::string skin;
};

// All settings of all pages, each large enough for a finger.
TEST_P(DeliveredSkins, KeepEverySettingOnItsPageApartAndAtLeast48High) {
  TestMachine machine;
  folder.Write("Records.rec", "");
  std::filesystem::create_directory(folder.native() / "skins");
  std::filesystem::rename(folder.native() / GetParam()->name,
                          folder.native() / "skins" / GetParam()->name);
  Settings settings;
  settings.current_skin = GetParam()->name;
  OptionLists lists;
  const std::string path = folder.path();
  SettingsFile(path, settings, lists, machine.messages).SaveConfig();
  Jukebox jukebox(path, machine.machine);
  ASSERT_EQ(jukebox.Start(), StartUpResult::kRunning);
  OptionsScreen& screen = jukebox.house.form1.options;
  for (size_t section = 0; section < kOptionSections; ++section) {
    const Panel& panel = screen.section_panels[section];
    const Rect inside{0, 0, panel.place().width, panel.place().height};
    OptionPage& page = screen.settings[section];
    size_t fields = 0;
    for (int number = 0; number < page.pages(); ++number) {
      page.ShowPage(number);
      std::vector<const Control*> shown;
      for (const Control* child : panel.children()) {
        if (!child->visible() || dynamic_cast<const Slider*>(child) != nullptr) continue;
        const Rect place = child->place();
        SCOPED_TRACE(testing::Message() << section << " " << shown.size());
        EXPECT_TRUE(inside.Contains(place));
        EXPECT_TRUE(page.pages() == 1 || place.bottom() <= screen.page_forward.place().top);
        if (const auto* field = dynamic_cast<const OptionField*>(child)) {
          EXPECT_GE(place.height, 48) << field->caption();
          ++fields;
        }
        for (const Control* other : shown) {
          EXPECT_TRUE(place.Intersected(other->place()).empty());
        }
        shown.push_back(child);
      }
    }
    EXPECT_GT(fields, 5U) << section;
  }
  const Control* const others[] = {&screen.picker.items[0], &screen.picker.done,
                                   &screen.keyboard.keys[0], &screen.page_forward,
                                   &screen.calendar.days[0]};
  for (const Control* other : others) EXPECT_GE(other->place().height, 48);
}

INSTANTIATE_TEST_SUITE_P(All, DeliveredSkins, testing::Values(&Neon(), &Classic()),
                         [](const auto& skin) { return std::string(skin.param->name); });

}  // namespace
}  // namespace sonotik::skins
