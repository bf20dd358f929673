#include "shell/display_effects.h"

#include "peripherals/clsStyle.h"

namespace sonotik {
namespace {

// What a window that fills the screen doesn't have.
constexpr StyleFlag kFrameFlags[] = {StyleFlag::ControlBox, StyleFlag::MaxButton,
                                     StyleFlag::MinButton, StyleFlag::Sizable, StyleFlag::Titlebar};

}  // namespace

DisplayEffects::DisplayEffects(Assembly& house) : house_(house) {
  house_.machine.displays.on_monitors_changed =
      house_.boundary.Guarded("monitors", [this] { MonitorsChanged(); });
}

void DisplayEffects::ReadWindowStyle() {
  const clsStyle style(house_.machine.displays);
  for (size_t i = 0; i < kStyleFlags; ++i) {
    house_.form2.style[i].value = style.Get(static_cast<StyleFlag>(i));
  }
}

void DisplayEffects::ApplyWindowStyle() {
  started_ = true;
  const bool full_screen = house_.settings.full_screen;
  for (StyleCheck& check : house_.form2.style) check.enabled = full_screen;
  clsStyle style(house_.machine.displays);
  for (const StyleFlag flag : kFrameFlags) {
    house_.form2.style[static_cast<size_t>(flag)].value = !full_screen;
    style.Set(flag, !full_screen);
  }
  // Also with a skin that doesn't tell its size.
  if (full_screen) house_.machine.displays.SetTaskbarVisible(false);
}

void DisplayEffects::SwitchFullScreen() {
  // Until then the skin and the window's style bring it.
  if (!started_) return;
  house_.skins.screens.SwitchFullScreen();
  // Nothing shows of it: they are the hidden form's.
  for (StyleCheck& check : house_.form2.style) check.enabled = house_.settings.full_screen;
  if (house_.settings.use_second_monitor) house_.video_window.SetDisplay();
}

void DisplayEffects::MoveSecondMonitor() { house_.video_window.Move(); }

void DisplayEffects::GiveBack() {
  house_.machine.displays.SetTaskbarVisible(true);
  if (house_.skins.screens.mode_changed()) house_.machine.displays.RestoreResolution();
}

void DisplayEffects::MonitorsChanged() {
  // The window of a monitor that was unplugged comes home to the first, and goes back with it.
  if (house_.settings.full_screen) {
    house_.machine.displays.FitWindow(clsStyle(house_.machine.displays).Get(StyleFlag::TopMost));
  }
  if (house_.settings.use_second_monitor) {
    house_.video_window.SetDisplay();
    house_.engine.FitVideoWindow();
  }
}

}  // namespace sonotik
