// What a setting does at the moment it takes its place, beside being read later.
#ifndef SONOTIK_SHELL_SETTINGS_EFFECTS_H_
#define SONOTIK_SHELL_SETTINGS_EFFECTS_H_

#include "shell/assembly.h"

namespace sonotik {

class SettingsEffects {
 public:
  explicit SettingsEffects(Assembly& house);

  // Reads the settings, their effects included.
  void LoadConfig();
  // A layout of the skin's list; an index that isn't in a list with items throws RuntimeFailure.
  void SelectCoverLayout(int index);

 private:
  void Apply(int row, bool changed);
  void SwitchCreditMode();
  void ListCoverLayouts();
  void ShowMenu();
  void HideTabs();
  void ShowDisplays();

  Assembly& house_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_SETTINGS_EFFECTS_H_
