// The PinScreen: who may pass to the options, and what is written down of each attempt.
#ifndef SONOTIK_ACCESS_PIN_ENTRY_H_
#define SONOTIK_ACCESS_PIN_ENTRY_H_

#include <functional>
#include <string>

#include "access/permissions.h"
#include "config/settings.h"
#include "forms/Form1.h"
#include "platform/clock.h"

namespace sonotik {

class PinEntry {
 public:
  PinEntry(const std::string& app_path, const Clock& clock, const Settings& settings,
           const Permissions& permissions, Form1& form);

  // What stands on the options pages: the boxes in which the two PINs are edited, and those that
  // only the Admin may change. Nothing until the pages are there.
  std::function<void(bool visible)> show_pin_boxes = [](bool) {};
  std::function<void(bool admin)> restrict_pages = [](bool) {};

  // The pages have come to show.
  std::function<void()> pages_shown = [] {};

  // The options, at once or behind the PIN. Callers have hidden the screens.
  void EnterOptions(size_t target = screen::kOptions);
  // Always asks: a track for adults wants the PIN whether or not the options do.
  void Ask(size_t target);

  // Keys 1 to 9 of the screen.
  void PressDigit(int digit);
  // Compares with the Admin's PIN first. There is no lock-out.
  void Enter();

 private:
  void Log(const std::string& text) const;
  void LetIn(bool admin);

  const std::string& app_path_;
  const Clock& clock_;
  const Settings& settings_;
  const Permissions& permissions_;
  Form1& form1_;
  size_t target_ = screen::kOptions;
};

}  // namespace sonotik

#endif  // SONOTIK_ACCESS_PIN_ENTRY_H_
