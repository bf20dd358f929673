#include "forms/CarouselScreen.h"

namespace sonotik {

using namespace design;

CarouselScreen::CarouselScreen(Panel& screen, Panel& strip_of_screen)
    : panel(screen), strip(strip_of_screen) {
  for (size_t c = 0; c < columns.size(); ++c) {
    const float left = 24 + 206 * static_cast<float>(c);
    AddLabel(panel, columns[c].artist, {left, 10, 194, 30}, 12, kText, Align::kCenter, true);
    for (size_t i = 0; i < columns[c].covers.size(); ++i) {
      AddPicture(panel, columns[c].covers[i],
                 {left + 41, 46 + 118 * static_cast<float>(i), 112, 112});
    }
  }
  AddButton(panel, up, {1070, 46, 186, 90}, "UP", 16);
  AddButton(panel, down, {1070, 148, 186, 90}, "DOWN", 16);
  AddMainButton(panel, back, {1070, 566, 186, 60}, "BACK");

  AddPanel(panel, strip, {1070, 250, 186, 304}, kRaised);
  for (size_t i = 0; i < strip_rows.size(); ++i) {
    AddLabel(strip, strip_rows[i], {8, 8 + 46 * static_cast<float>(i), 170, 40}, 11);
  }
  AddButton(strip, strip_up, {8, 242, 82, 54}, "UP");
  AddButton(strip, strip_down, {96, 242, 82, 54}, "DOWN");
  strip.SetVisible(false);
}

}  // namespace sonotik
