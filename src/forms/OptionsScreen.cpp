#include "forms/OptionsScreen.h"

namespace sonotik {

using namespace design;

OptionsScreen::OptionsScreen(Panel& screen) : panel(screen) {
  static constexpr const char* kSections[] = {
      "General Settings", "Appearence Settings", "Random Play Settings", "Button Settings",
      "Attract Mode",     "Key Shortcuts",       "Coin Settings",        "LED SIGN"};
  for (size_t i = 0; i < sections.size(); ++i) {
    AddButton(panel, sections[i], {24, 20 + 52 * static_cast<float>(i), 232, 46}, kSections[i]);
  }
  AddButton(panel, save_settings, {24, 448, 232, 50}, "Save Settings");
  AddButton(panel, power_off, {24, 506, 232, 50}, "Power OFF");
  AddMainButton(panel, back, {24, 574, 232, 54}, "BACK");
  AddPanel(panel, pages, {272, 20, 984, 580}, kPanel);
  for (Panel& section : section_panels) {
    AddPanel(pages, section, {0, 0, 984, 580}, kPanel);
    section.SetVisible(false);
  }
  AddPicture(section_panels[1], skin_preview, {676, 16, 292, 180}, PictureFit::kContain);
  AddLabel(section_panels[1], skin_resolution, {676, 200, 292, 30}, 11, kMuted);
  AddLabel(panel, version, {272, 606, 984, 26}, 11, kMuted, Align::kRight);
}

}  // namespace sonotik
