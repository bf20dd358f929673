#include "access/pin_entry.h"

#include "files/files.h"
#include "files/runtime_failure.h"
#include "text/dates.h"

namespace sonotik {

PinEntry::PinEntry(const std::string& app_path, const Clock& clock, const Settings& settings,
                   const Permissions& permissions, Form1& form)
    : app_path_(app_path),
      clock_(clock),
      settings_(settings),
      permissions_(permissions),
      form1_(form) {}

void PinEntry::EnterOptions(size_t target) {
  if (settings_.prompt_for_pin) return Ask(target);
  target_ = target;
  form1_.pin.entry.SetCaption("");
  form1_.pin_screen.SetVisible(false);
  show_pin_boxes(true);
  form1_.ShowScreen(screen::kOptions);
  pages_shown();
}

void PinEntry::Ask(size_t target) {
  target_ = target;
  form1_.pin.entry.SetCaption("");
  show_pin_boxes(false);
  form1_.pin_screen.SetVisible(true);
  form1_.pin_screen.BringToFront();
}

void PinEntry::PressDigit(int digit) {
  // The digits are shown as they are; that is meant.
  Label& entry = form1_.pin.entry;
  entry.SetCaption(entry.caption() + std::to_string(digit));
}

void PinEntry::Enter() {
  const std::string entered = form1_.pin.entry.caption();
  // An empty entry is one too, and matches a PIN that is empty.
  if (entered == settings_.admin_pin) {
    Log(" Correct ADMIN pin entered... ");
    return LetIn(true);
  }
  if (entered == settings_.delegate_pin) {
    Log(" Correct DELEGATE pin entered... ");
    return LetIn(false);
  }
  // In clear, for the operator who wonders what was tried.
  Log(" Incorrect pin entered... " + entered);
  form1_.pin_screen.SetVisible(false);
  form1_.HideAllScreens();
  form1_.ShowScreen(screen::kAlbum);
}

void PinEntry::Log(const std::string& text) const {
  const DateTime now = clock_.Now();
  try {
    AppendToFile(app_path_ + "\\password.txt",
                 DateText(now.date) + " " + TimeText(now) + text + "\r\n", FileAccess::kOwnerOnly);
  } catch (const RuntimeFailure&) {
    // A full disk must not lock the operator out.
  }
}

void PinEntry::LetIn(bool admin) {
  OptionsScreen& options = form1_.options;
  restrict_pages(admin);
  form1_.HideAllScreens();
  form1_.pin_screen.SetVisible(false);
  form1_.ShowScreen(target_);
  // The Admin's way shows the first seven alone, one upon the other; the delegate's decides all
  // eight. Both are meant.
  const size_t sections = admin ? kOptionSections - 1 : kOptionSections;
  for (size_t i = 0; i < sections; ++i) {
    const bool shown = admin || permissions_.allowed(i);
    options.sections[i].SetVisible(shown);
    options.section_panels[i].SetVisible(shown);
  }
  options.power_off.SetVisible(admin || permissions_.allowed(8));
  pages_shown();
}

}  // namespace sonotik
