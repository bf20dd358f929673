#include "forms/HistoryScreen.h"

namespace sonotik {

using namespace design;

HistoryScreen::HistoryScreen(Panel& screen) : panel(screen) {
  for (size_t i = 0; i < rows.size(); ++i) {
    const float left = 24 + 320 * static_cast<float>(i % 3);
    const float top = 12 + 198 * static_cast<float>(i / 3);
    AddPicture(panel, rows[i].cover, {left, top, 112, 112});
    AddLabel(panel, rows[i].text, {left + 116, top, 194, 186}, 11);
    rows[i].text.SetPlate(kPanel);
    rows[i].text.SetWrap(true);
  }
  AddLabel(panel, total, {24, 606, 640, 30}, 12, kMuted);

  AddButton(panel, steps[0], {kSideLeft, 20, kSideWidth, 60}, "Previous", 14);
  AddButton(panel, steps[1], {kSideLeft, 90, kSideWidth, 60}, "Next", 14);
  AddButton(panel, steps[2], {kSideLeft, 180, kSideWidth, 60}, "Page Up", 14);
  AddButton(panel, steps[3], {kSideLeft, 250, kSideWidth, 60}, "Page Down", 14);
  AddMainButton(panel, back, kBackPlace, "BACK");
}

}  // namespace sonotik
