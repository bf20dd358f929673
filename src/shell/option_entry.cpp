#include "shell/option_entry.h"

#include <algorithm>

#include "files/file_list.h"
#include "text/text.h"

namespace sonotik {
namespace {

constexpr char kUp[] = "..";

std::string Parent(const std::string& folder) {
  const size_t end = folder.find_last_of('\\');
  return end == std::string::npos || end == 0 ? "\\" : folder.substr(0, end);
}

}  // namespace

OptionEntry::OptionEntry(OptionsScreen& screen, Boundary& boundary) : screen_(screen) {
  OptionPicker& picker = screen_.picker;
  for (size_t i = 0; i < picker.items.size(); ++i) {
    picker.items[i].on_click = boundary.Guarded("list", [this, i] { PressItem(i); });
  }
  const auto turn = [this](bool forward) {
    const size_t page = screen_.picker.items.size();
    if (forward && first_ + page < items_.size()) first_ += page;
    if (!forward) first_ -= std::min(first_, page);
    ShowItems();
  };
  picker.back.on_click = [turn] { turn(false); };
  picker.forward.on_click = [turn] { turn(true); };
  picker.done.on_click = [this] { Close(); };
  picker.choose.on_click = boundary.Guarded("folder", [this] {
    const auto chosen = chosen_;
    Close();
    chosen(folder_);
  });
  picker.none.on_click = boundary.Guarded("list", [this] {
    const auto picked = picked_;
    Close();
    picked(-1);
  });
  // Keeps touches from what lies below.
  picker.panel.on_click = screen_.keyboard.panel.on_click = [] {};

  OptionKeyboard& keyboard = screen_.keyboard;
  for (size_t i = 0; i < keyboard.keys.size(); ++i) {
    keyboard.keys[i].on_click = boundary.Guarded("key", [this, i] {
      TypeCharacter((screen_.keyboard.shifted() ? kKeyboardUpper : kKeyboardLower)[i]);
    });
  }
  for (size_t i = 0; i < keyboard.commands.size(); ++i) {
    keyboard.commands[i].on_click =
        boundary.Guarded("keyboard", [this, i] { PressCommand(static_cast<KeyboardCommand>(i)); });
  }
  keyboard.entry.on_character =
      boundary.Guarded("keyboard", [this](int character) { TypeCharacter(character); });
}

void OptionEntry::Pick(const std::string& heading, std::vector<std::string> items, int selected,
                       std::function<void(int)> picked, bool may_be_none) {
  OptionPicker& picker = screen_.picker;
  items_ = std::move(items);
  selected_ = selected;
  first_ =
      selected > 0 ? static_cast<size_t>(selected) / picker.items.size() * picker.items.size() : 0;
  picked_ = std::move(picked);
  picker.heading.SetCaption(heading);
  picker.choose.SetVisible(false);
  picker.none.SetVisible(may_be_none && selected >= 0);
  picker.panel.SetVisible(true);
  ShowItems();
}

void OptionEntry::PickFolder(const std::string& folder,
                             std::function<void(const std::string&)> chosen) {
  chosen_ = std::move(chosen);
  Pick("", {}, -1, [](int) {});
  screen_.picker.choose.SetVisible(true);
  ShowFolder(folder);
}

void OptionEntry::ShowFolder(const std::string& folder) {
  folder_ =
      folder.size() > 1 && folder.back() == '\\' ? folder.substr(0, folder.size() - 1) : folder;
  screen_.picker.heading.SetCaption(DoubleAmpersands(folder_));
  items_ = {kUp};
  for (std::string& name : FoldersIn(folder_)) items_.push_back(std::move(name));
  first_ = 0;
  ShowItems();
}

void OptionEntry::ShowItems() {
  OptionPicker& picker = screen_.picker;
  for (size_t i = 0; i < picker.items.size(); ++i) {
    const size_t index = first_ + i;
    const bool there = index < items_.size();
    picker.items[i].SetVisible(there);
    if (!there) continue;
    picker.items[i].SetCaption(items_[index]);
    picker.items[i].SetChecked(static_cast<int>(index) == selected_);
  }
  picker.back.SetVisible(first_ > 0);
  picker.forward.SetVisible(first_ + picker.items.size() < items_.size());
}

void OptionEntry::PressItem(size_t place) {
  const size_t index = first_ + place;
  if (!screen_.picker.choose.visible()) {
    const auto picked = picked_;
    Close();
    return picked(static_cast<int>(index));
  }
  const std::string name = items_[index];
  ShowFolder(name == kUp ? Parent(folder_) : (folder_ == "\\" ? "" : folder_) + "\\" + name);
}

void OptionEntry::Type(const std::string& heading, std::string text,
                       std::function<void(const std::string&)> each,
                       std::function<void(const std::string&)> done) {
  OptionKeyboard& keyboard = screen_.keyboard;
  each_ = std::move(each);
  done_ = std::move(done);
  text_ = std::move(text);
  keyboard.heading.SetCaption(heading);
  keyboard.entry.SetCaption(DoubleAmpersands(text_) + "|");
  keyboard.SetShift(false);
  keyboard.panel.SetVisible(true);
  if (Form* form = keyboard.panel.form()) form->SetFocus(&keyboard.entry);
}

void OptionEntry::Close() {
  screen_.picker.panel.SetVisible(false);
  screen_.keyboard.panel.SetVisible(false);
}

void OptionEntry::SetText(std::string text) {
  text_ = std::move(text);
  screen_.keyboard.entry.SetCaption(DoubleAmpersands(text_) + "|");
  each_(text_);
}

void OptionEntry::TypeCharacter(int character) {
  switch (character) {
    case key::kEnter:
      return PressCommand(KeyboardCommand::kOk);
    case key::kEscape:
      return PressCommand(KeyboardCommand::kCancel);
    case '\b':
      return PressCommand(KeyboardCommand::kBackspace);
    default:
      // A value is one line of its file.
      if (character >= ' ') SetText(text_ + static_cast<char>(character));
  }
}

void OptionEntry::PressCommand(KeyboardCommand command) {
  switch (command) {
    case KeyboardCommand::kShift:
      return screen_.keyboard.SetShift(!screen_.keyboard.shifted());
    case KeyboardCommand::kSpace:
      return TypeCharacter(' ');
    case KeyboardCommand::kBackspace:
      if (!text_.empty()) SetText(text_.substr(0, text_.size() - 1));
      return;
    case KeyboardCommand::kClear:
      return SetText("");
    case KeyboardCommand::kCancel:
      return Close();
    case KeyboardCommand::kOk:
      break;
  }
  const auto done = done_;
  Close();
  done(text_);
}

}  // namespace sonotik
