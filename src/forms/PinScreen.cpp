#include "forms/PinScreen.h"

namespace sonotik {

using namespace design;

PinScreen::PinScreen(Panel& screen) : panel(screen) {
  AddLabel(panel, entry, {24, 20, 352, 64}, 26, kText, Align::kCenter, true);
  entry.SetPlate(kNight);
  for (size_t i = 1; i < keys.size(); ++i) {
    const float left = 24 + 120 * static_cast<float>((i - 1) % 3);
    const float top = 100 + 92 * static_cast<float>((i - 1) / 3);
    AddButton(panel, keys[i], {left, top, 112, 84}, std::to_string(i), 22);
  }
  AddMainButton(panel, keys[0], {24, 380, 352, 84}, "ENTER", 20);
}

}  // namespace sonotik
