#include "forms/OptionsScreen.h"

namespace sonotik {

using namespace design;

namespace {

// Height of the page buttons in the design, and the margin around them.
constexpr float kFoot = 60;
constexpr float kFootMargin = 6;

}  // namespace

OptionsScreen::OptionsScreen(Panel& screen) : panel(screen), picker(pages), keyboard(pages) {
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
  for (size_t i = 0; i < section_panels.size(); ++i) {
    AddPanel(pages, section_panels[i], {0, 0, 984, 580}, kPanel);
    section_panels[i].SetVisible(i == 0);
    settings[i].panel = &section_panels[i];
  }
  AddOption(pages, page_back, {});
  AddLabel(pages, page_caption, {}, 12, kMuted, Align::kCenter);
  AddOption(pages, page_forward, {});
  picker.panel.BringToFront();
  keyboard.panel.BringToFront();
  skin_preview.SetFit(PictureFit::kContain);
  skin_resolution.SetFont({.points = 11});
  skin_resolution.SetForeColor(kMuted);
  AddLabel(panel, version, {272, 606, 984, 26}, 11, kMuted, Align::kRight);
  LayOut();
}

size_t OptionsScreen::front() const {
  for (size_t i = kOptionSections; i-- > 0;) {
    if (section_panels[i].visible()) return i;
  }
  return kOptionSections;
}

void OptionsScreen::LayOut() {
  for (OptionPage& page : settings) {
    page.LayOut(0);
    if (page.pages() > 1) page.LayOut((kFoot + kFootMargin) * page.scale());
  }
  calendar.LayOut();
  picker.LayOut();
  keyboard.LayOut();
  const float scale = settings[0].scale();
  const Rect whole = pages.place();
  const float height = (kFoot - kFootMargin) * scale, width = 150 * scale;
  const float top = whole.height - height - kFootMargin * scale, middle = whole.width / 2;
  page_back.SetPlace({middle - width * 1.5F, top, width, height});
  page_caption.SetPlace({middle - width / 2, top, width, height});
  page_forward.SetPlace({middle + width / 2, top, width, height});
  ShowFront();
}

void OptionsScreen::ShowFront() {
  const size_t front = this->front();
  for (size_t i = 0; i < sections.size(); ++i) {
    Font font = sections[i].font();
    font.bold = i == front;
    sections[i].SetFont(font);
  }
  const OptionPage* page = front < kOptionSections ? &settings[front] : nullptr;
  const bool several = page != nullptr && page->pages() > 1;
  page_back.SetVisible(several);
  page_forward.SetVisible(several);
  page_caption.SetCaption(
      several ? std::to_string(page->page() + 1) + " / " + std::to_string(page->pages()) : "");
}

}  // namespace sonotik
