#include "shell/save_settings.h"

#include "playback/genre_lists.h"

namespace sonotik {
namespace {

// "cannot write \\jukebox\\x: No space left on device": the file has been named already, and where
// the jukebox lies tells the operator nothing.
std::string ReasonOf(const RuntimeFailure& failure) {
  const std::string words = failure.what();
  const size_t colon = words.rfind(": ");
  return colon == std::string::npos ? words : words.substr(colon + 2);
}

}  // namespace

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
  // A full disk fails them all, and says so once.
  std::string failed, reason;
  for (const auto& item : files) {
    try {
      item.save();
    } catch (const RuntimeFailure& failure) {
      const std::string why = ReasonOf(failure);
      if (why == reason) {
        failed += std::string(", ") + item.file;
      } else {
        failed += "\n" + why + ": " + item.file;
      }
      reason = why;
    }
  }
  if (!failed.empty()) house.machine.messages.Show("These files were not saved." + failed);
}

}  // namespace sonotik
