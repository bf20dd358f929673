// The operator's pages: what a touch on a setting, a list, a key or a command of them does.
#ifndef SONOTIK_SHELL_OPTIONS_H_
#define SONOTIK_SHELL_OPTIONS_H_

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "shell/option_entry.h"
#include "shell/option_month.h"
#include "shell/options_table.h"

namespace sonotik {

class Options {
 public:
  Options(Assembly& house, SettingsEffects& effects);
  Options(const Options&) = delete;
  Options& operator=(const Options&) = delete;

  // Hands the sign's port its settings at once; nothing while there is none.
  std::function<void()> commit_sign = [] {};

  // Has the fields show what the settings hold.
  void Refresh();

  // A field by its section, frame and caption; nullptr for none.
  OptionField* Find(size_t section, std::string_view frame, std::string_view caption,
                    OptionKind kind) const;
  // The slider that lies on a field; nullptr for none.
  Slider* SliderOn(const OptionField& field) const;

 private:
  // One setting on its page.
  struct Shown {
    size_t section;
    const Label* frame;
    OptionRow row;
    std::unique_ptr<OptionField> field;
    std::unique_ptr<Slider> slider;
  };

  void FillCommands();
  void Build();
  void Wire();
  void Opened();
  OptionField& FieldOf(const void* value) const;

  void Show(const Shown& item) const;
  std::string ItemText(const ItemList& items, size_t index) const;
  std::string ListValue(const OptionRow& row) const;
  static int SelectedOf(const OptionRow& row);

  void Press(Shown& item);
  void Changed(const Shown& item);
  void PickFrom(const Shown& item);
  void Type(const Shown& item);
  std::function<void(const std::string&)> TakeText(const Shown& item);

  void OpenSection(size_t section);
  void ShowPinBoxes(bool visible);
  void RestrictPages(bool admin);
  void MoveGenre(ItemList& from, ItemList& to, const char* heading);

  void SelectDay(const Date& day);

  Assembly& house_;
  SettingsEffects& effects_;
  OptionsScreen& screen_;
  OptionEntry entry_;
  OptionMonth month_;
  OptionsState state_;
  OptionCommands commands_;
  std::vector<std::unique_ptr<Shown>> shown_;
  Label* calendar_heading_ = nullptr;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_OPTIONS_H_
