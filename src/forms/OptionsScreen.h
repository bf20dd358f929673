// The operator's screen: a column of sections, and a panel of settings for each.
#ifndef SONOTIK_FORMS_OPTIONSSCREEN_H_
#define SONOTIK_FORMS_OPTIONSSCREEN_H_

#include <array>

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
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_OPTIONSSCREEN_H_
