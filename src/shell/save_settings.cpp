#include "shell/save_settings.h"

#include "playback/genre_lists.h"

namespace sonotik {

void SaveSettings(Assembly& house) {
  const struct {
    const char* file;
    std::function<void()> save;
  } files[] = {
      {"sonotik.ini", [&] { house.settings_file.SaveConfig(); }},
      {"random.dat", [&] { SaveGenreLists(house.app_path, house.lists); }},
      {"keyboard.dat", [&] { house.key_map.SaveKeyMap(); }},
      {"permissions.ini", [&] { house.permissions.SavePermissions(); }},
      {"cost.dat", [&] { house.credits.SaveCost(); }},
      {"betabrite.ini", [&] { house.sign.SaveSign(); }},
      {"terminal.ini", [&] { house.network.SaveTerminal(); }},
  };
  std::string failed;
  for (const auto& item : files) {
    try {
      item.save();
    } catch (const RuntimeFailure& failure) {
      failed += std::string("\n") + item.file + ": " + failure.what();
    }
  }
  if (!failed.empty()) house.machine.messages.Show("These settings were not saved:" + failed);
}

}  // namespace sonotik
