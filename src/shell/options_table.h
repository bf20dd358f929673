// The options pages as a table: one row a setting, in the order of the sections and their frames.
#ifndef SONOTIK_SHELL_OPTIONS_TABLE_H_
#define SONOTIK_SHELL_OPTIONS_TABLE_H_

#include <array>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "shell/settings_effects.h"
#include "widgets/OptionField.h"

namespace sonotik {

// What the pages hold beside the settings of the files.
struct OptionsState {
  bool master = false;
  bool terminal = false;
  std::string shared_folder;
  int shown_skin = -1;  // in "Selected Skin:", which is not yet the skin in force
  bool limit_queue = false;
  int queue_limit = -1;
  bool not_used = false;
  ItemList monitor_uses;
  // The calendar's page.
  Date day;
  DaySettings of_day;
  int holiday_skin = -1;
};

struct OptionRow {
  const char* caption;
  OptionKind kind;
  // Where the value lives. A list over a truth value has the true one first.
  std::variant<std::monostate, bool*, int*, std::string*> value{};
  const ItemList* items = nullptr;
  bool may_be_none = false;  // whether none of the items is a choice too
  // What happens at the click, once the value stands.
  std::function<void()> changed = [] {};
  int least = 0;  // of a slider
  int most = 0;
  // A control of another kind in the row's place, and its height in the forms' design.
  Control* control = nullptr;
  float height = 0;
};

struct OptionFrame {
  std::string caption;
  std::vector<OptionRow> rows;
  bool new_column = false;
};

using OptionSections = std::array<std::vector<OptionFrame>, kOptionSections>;

// What the commands of the pages do; filled in by whoever owns the pages.
struct OptionCommands {
  std::function<void()> refresh_skins = [] {};
  std::function<void()> apply_skin = [] {};
  std::function<void()> add_genre = [] {};
  std::function<void()> remove_genre = [] {};
  std::function<void()> reset_genres = [] {};
  std::function<void()> holiday_skin = [] {};
  std::function<void()> save_day = [] {};
  std::function<void()> commit_sign = [] {};
  std::function<void()> role_changed = [] {};
  std::function<void()> prompt_changed = [] {};
  Control* calendar = nullptr;
};

// The rows point into the house and the state, which must outlive them.
OptionSections MakeOptionSections(Assembly& house, SettingsEffects& effects, OptionsState& state,
                                  const OptionCommands& commands);

}  // namespace sonotik

#endif  // SONOTIK_SHELL_OPTIONS_TABLE_H_
