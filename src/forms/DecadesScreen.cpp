#include "forms/DecadesScreen.h"

namespace sonotik {

using namespace design;

DecadesScreen::DecadesScreen(Panel& screen) : panel(screen) {
  AddLabel(panel, month_caption, {320, 10, 314, 40}, 18, kText, Align::kRight, true);
  AddLabel(panel, year_caption, {646, 10, 314, 40}, 18, kAmber, Align::kLeft, true);
  AddPanel(panel, month_picker, {0, 60, kWidth, 580}, kPanel);
  AddPanel(panel, year_picker, {0, 60, kWidth, 580}, kPanel);
  for (size_t i = 0; i < year_buttons.size(); ++i) {
    AddButton(
        year_picker, year_buttons[i],
        {56 + 118 * static_cast<float>(i % 10), 16 + 86 * static_cast<float>(i / 10), 110, 76}, "",
        14);
  }
}

}  // namespace sonotik
