// What opens over the settings: a list to pick from, and a keyboard for a cabinet without one. And
// the calendar that stands among them.
#ifndef SONOTIK_FORMS_OPTIONOVERLAYS_H_
#define SONOTIK_FORMS_OPTIONOVERLAYS_H_

#include <array>
#include <functional>
#include <string>

#include "forms/design.h"

namespace sonotik {

// Where a text is typed. It takes a keyboard's characters too, if the cabinet has one.
class EntryBox : public Label {
 public:
  std::function<void(int character)> on_character = [](int) {};
  bool TakesFocus() const override { return true; }
  bool TakesMouse() const override { return true; }
  void KeyPress(int character) override { on_character(character); }
};

inline constexpr size_t kPickerColumns = 3;
inline constexpr size_t kPickerRows = 7;

struct OptionPicker {
  explicit OptionPicker(Panel& pages);
  void LayOut();

  Panel panel;
  Label heading;
  std::array<OptionField, kPickerColumns * kPickerRows> items;
  OptionField back;     // a page of items back
  OptionField forward;  // and on
  OptionField choose;   // takes what stands in the heading: "Choose"
  OptionField none;     // in the same place, takes no item: "None"
  OptionField done;     // closes the list: "Cancel"
};

// The keys' characters, without shift and with it.
inline constexpr size_t kKeyboardColumns = 12;
inline constexpr char kKeyboardLower[] = "1234567890-=qwertyuiop[]asdfghjkl;'\\zxcvbnm,./_:";
inline constexpr char kKeyboardUpper[] = "!@#$%^&*()+~QWERTYUIOP{}ASDFGHJKL:\"|ZXCVBNM<>?_;";
inline constexpr size_t kKeyboardKeys = sizeof kKeyboardLower - 1;

enum class KeyboardCommand { kShift, kSpace, kBackspace, kClear, kCancel, kOk };

struct OptionKeyboard {
  explicit OptionKeyboard(Panel& pages);
  void LayOut();
  // Captions of the keys.
  void SetShift(bool shift);
  bool shifted() const { return commands[0].checked(); }

  Panel panel;
  Label heading;
  EntryBox entry;
  std::array<OptionField, kKeyboardKeys> keys;
  std::array<OptionField, 6> commands;  // by KeyboardCommand
};

inline constexpr size_t kWeekDays = 7;
inline constexpr size_t kCalendarDays = 6 * kWeekDays;

// A month of the calendar, in weeks from Sunday on.
struct OptionCalendar {
  OptionCalendar();
  void LayOut();

  Panel panel;
  OptionField month_back;
  OptionField month_forward;
  Label month;  // "January 2024"
  std::array<Label, kWeekDays> weekdays;
  std::array<OptionField, kCalendarDays> days;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_OPTIONOVERLAYS_H_
