#include "forms/GenreScreen.h"

namespace sonotik {

using namespace design;

GenreScreen::GenreScreen(Panel& screen) : panel(screen) {
  for (size_t i = 0; i < labels.size(); ++i) {
    const float left = 24 + 240 * static_cast<float>(i / 7);
    const float top = 20 + 88 * static_cast<float>(i % 7);
    AddLabel(panel, labels[i], {left, top, 230, 78}, 14, kText, Align::kCenter);
    labels[i].SetPlate(kPanel);
  }
  labels[0].SetCaption("ALL GENRES");
  AddButton(panel, up, {kSideLeft, 20, kSideWidth, 60}, "Up", 14);
  AddButton(panel, down, {kSideLeft, 90, kSideWidth, 60}, "Down", 14);
  AddButton(panel, unused, {kSideLeft, 180, kSideWidth, 60}, "", 14);
  unused.SetVisible(false);
  AddMainButton(panel, back, kBackPlace, "BACK");
}

GenreBar::GenreBar(Panel& bar) : panel(bar) {
  for (size_t i = 0; i < buttons.size(); ++i) {
    AddButton(panel, buttons[i], {8 + 127 * static_cast<float>(i), 8, 120, 48}, "", 11);
  }
  buttons[0].SetCaption("UP");
  buttons[8].SetCaption("DOWN");
  buttons[9].SetCaption("Back");
}

}  // namespace sonotik
