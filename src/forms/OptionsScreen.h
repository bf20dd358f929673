// The operator's screen: a column of sections, and a panel of settings for each.
#ifndef SONOTIK_FORMS_OPTIONSSCREEN_H_
#define SONOTIK_FORMS_OPTIONSSCREEN_H_

#include <array>

#include "forms/OptionOverlays.h"
#include "forms/OptionPage.h"
#include "forms/design.h"

namespace sonotik {

inline constexpr size_t kOptionSections = 8;

struct OptionsScreen {
  explicit OptionsScreen(Panel& panel);

  Panel& panel;
  // "General Settings" to "LED SIGN".
  std::array<lvButtons_H, kOptionSections> sections;
  lvButtons_H save_settings;
  lvButtons_H power_off;
  lvButtons_H back;
  // Holds the panels of the sections.
  Panel pages;
  std::array<Panel, kOptionSections> section_panels;
  Label version;
  // On the panel of the appearance: what the skin that is picked in the list looks like.
  PictureBox skin_preview;
  Label skin_resolution;  // "Resolution: 1920 x 1080"
  // The settings on each of them, and the buttons that turn the pages of the one in front.
  std::array<OptionPage, kOptionSections> settings;
  OptionField page_back{OptionKind::kCommand, "<<"};
  OptionField page_forward{OptionKind::kCommand, ">>"};
  Label page_caption;  // "1 / 2"
  OptionPicker picker;
  OptionKeyboard keyboard;
  OptionCalendar calendar;

  // The section in front: of several that show it is the last one; kOptionSections for none.
  size_t front() const;
  // All of it anew by the sizes of the panels.
  void LayOut();
  // Marks the section in front, with the page buttons that it needs.
  void ShowFront();
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_OPTIONSSCREEN_H_
