// What a setting does at the moment it takes its place, beside being read later.
#ifndef SONOTIK_SHELL_SETTINGS_EFFECTS_H_
#define SONOTIK_SHELL_SETTINGS_EFFECTS_H_

#include <array>
#include <string>

#include "shell/assembly.h"
#include "shell/display_effects.h"

namespace sonotik {

class SettingsEffects {
 public:
  explicit SettingsEffects(Assembly& house);

  // Of the monitors.
  DisplayEffects displays;

  // Reads the settings, their effects included.
  void LoadConfig();
  // Puts on the skin that is picked in the list, with its first cover layout. Nothing happens
  // before the settings have been read, or with none picked.
  void ApplySelectedSkin();
  // The same for the skin of this name.
  // The skin in force, with all that others take from it.
  void ApplySkin();
  void PutOnSkin(const std::string& skin);
  // The skin's layouts, and the one with the setting's index; one that isn't in a list with items
  // throws RuntimeFailure.
  void SelectCoverLayout();

  // What the operator's click on a setting of the pages does at once.
  void SwitchCreditMode();
  void ShowMenu();
  // The tabs by their boxes. Reading the settings only ever hides them.
  void ShowTabs();
  void ShowDisplays();

 private:
  void Apply(int row, bool changed);
  void ShowCoverLayout(const std::string& path);
  std::array<bool, 6> Tabs() const;
  void HideTabs();

  Assembly& house_;
  std::string shown_layout_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_SETTINGS_EFFECTS_H_
