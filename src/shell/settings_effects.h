// What a setting does at the moment it takes its place, beside being read later.
#ifndef SONOTIK_SHELL_SETTINGS_EFFECTS_H_
#define SONOTIK_SHELL_SETTINGS_EFFECTS_H_

#include <functional>
#include <string>

#include "shell/assembly.h"

namespace sonotik {

class SettingsEffects {
 public:
  explicit SettingsEffects(Assembly& house);

  // Reads the settings, their effects included.
  void LoadConfig();
  // Shows the skin that a name stands for; the page for settings fills it in.
  std::function<void()> preview_skin = [] {};

 private:
  void Apply(int row, bool changed);
  void SwitchCreditMode();
  // The skin's layouts, and the one with the setting's index; one that isn't in a list with items
  // throws RuntimeFailure.
  void SelectCoverLayout();
  void ShowCoverLayout(const std::string& path);
  void ShowMenu();
  void HideTabs();
  void ShowDisplays();

  Assembly& house_;
  std::string shown_layout_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_SETTINGS_EFFECTS_H_
