// The operator at his pages: opens them, presses what stands there, saves and starts anew.
#ifndef SONOTIK_TESTS_SUPPORT_OPTIONS_TEST_H_
#define SONOTIK_TESTS_SUPPORT_OPTIONS_TEST_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "config/settings_table.h"
#include "support/jukebox_test.h"

namespace sonotik {

using K = OptionKind;

enum Section : size_t { kGeneral, kLooks, kRandom, kButtons, kAttract, kKeys, kCoins, kSign };

class OptionsTest : public JukeboxTest {
 protected:
  OptionsTest() {
    folder.Write("genres/Blues.cvr", "");
    folder.Write("genres/Jazz.cvr", "");
    machine.displays.monitors.push_back(machine.displays.monitors[0]);
  }

  void Open() {
    Start();
    OpenPages();
  }
  void OpenPages() { jukebox->menu.Open(MenuButton::kOptions); }

  // Brings the field's section to the front, and its page.
  OptionField& Show(size_t section, const char* frame, const char* caption, K kind) {
    OptionsScreen& screen = form().options;
    if (screen.front() != section) Click(screen.sections[section]);
    OptionField* field = jukebox->options.Find(section, frame, caption, kind);
    if (field == nullptr) throw std::runtime_error(caption);
    while (screen.page_back.visible() && screen.settings[section].page() > 0) {
      Click(screen.page_back);
    }
    for (int i = 1; i < screen.settings[section].pages() && !field->showing(); ++i) {
      Click(screen.page_forward);
    }
    return *field;
  }
  void Press(size_t section, const char* frame, const char* caption, K kind) {
    Click(Show(section, frame, caption, kind));
  }
  void Pick(size_t item) { Click(form().options.picker.items[item]); }
  void TypeKeys(const std::string& text) {
    const std::string keys = kKeyboardLower;
    for (const char c : text) Click(form().options.keyboard.keys[keys.find(c)]);
  }
  void Command(KeyboardCommand command) {
    Click(form().options.keyboard.commands[static_cast<size_t>(command)]);
  }
  void TypeText(const std::string& text) {
    Command(KeyboardCommand::kClear);
    TypeKeys(text);
    Command(KeyboardCommand::kOk);
  }
  void Save() { Click(form().options.save_settings); }

  // Gives a control another value, by its kind.
  void Change(OptionField& field) {
    Click(field);
    switch (field.kind()) {
      case K::kList:
        Pick(form().options.picker.items[0].checked() ? 1 : 0);
        break;
      case K::kFolder:
        // The folder above.
        Pick(0);
        Click(form().options.picker.choose);
        break;
      case K::kText:
      case K::kNumber:
      case K::kPin:
        TypeText("7");
        break;
      case K::kSlider:
        Click(*jukebox->options.SliderOn(field));
        break;
      default:
        break;
    }
  }

  std::vector<std::string> Lines(const std::string& file) const { return folder.Lines(file); }
  // Of a file that was like this before.
  std::vector<size_t> ChangedLines(const std::string& file,
                                   const std::vector<std::string>& before) const {
    std::vector<size_t> changed;
    const std::vector<std::string> lines = Lines(file);
    for (size_t i = 0; i < lines.size(); ++i) {
      if (i >= before.size() || lines[i] != before[i]) changed.push_back(i);
    }
    return changed;
  }
};

}  // namespace sonotik

#endif  // SONOTIK_TESTS_SUPPORT_OPTIONS_TEST_H_
