// The list and the keyboard that open over the options pages.
#ifndef SONOTIK_SHELL_OPTION_ENTRY_H_
#define SONOTIK_SHELL_OPTION_ENTRY_H_

#include <functional>
#include <string>
#include <vector>

#include "forms/OptionsScreen.h"
#include "shell/boundary.h"

namespace sonotik {

class OptionEntry {
 public:
  OptionEntry(OptionsScreen& screen, Boundary& boundary);

  // The items to pick from, beginning with the page of the selected one (-1 for none). A pick
  // closes the list before `picked` gets its index; -1 if none is to be selected any more, which is
  // offered where it may be.
  void Pick(const std::string& heading, std::vector<std::string> items, int selected,
            std::function<void(int index)> picked, bool may_be_none = false);
  // The folders from this one on, up and down; `chosen` gets the folder's path.
  void PickFolder(const std::string& folder, std::function<void(const std::string& path)> chosen);
  // A text. `each` hears of it at each key, `done` once it is taken over.
  void Type(const std::string& heading, std::string text,
            std::function<void(const std::string& text)> each,
            std::function<void(const std::string& text)> done);
  void Close();

 private:
  void ShowItems();
  void ShowFolder(const std::string& folder);
  void PressItem(size_t place);
  void TypeCharacter(int character);
  void PressCommand(KeyboardCommand command);
  void SetText(std::string text);

  OptionsScreen& screen_;
  std::vector<std::string> items_;
  int selected_ = -1;
  size_t first_ = 0;
  std::function<void(int)> picked_;
  std::string folder_;
  std::function<void(const std::string&)> chosen_;
  std::string text_;
  std::function<void(const std::string&)> each_;
  std::function<void(const std::string&)> done_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_OPTION_ENTRY_H_
