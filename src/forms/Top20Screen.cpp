#include "forms/Top20Screen.h"

namespace sonotik {

using namespace design;

Top20Screen::Top20Screen(Panel& screen) : panel(screen) {
  for (size_t i = 0; i < rows.size(); ++i) {
    Top20Row& row = rows[i];
    // Down the left column first, as a chart reads.
    const float left = 24 + 480 * static_cast<float>(i / 5);
    const float top = 16 + 122 * static_cast<float>(i % 5);
    AddLabel(panel, row.number, {left, top + 30, 44, 44}, 16, kMuted, Align::kCenter);
    AddPicture(panel, row.cover, {left + 50, top, 106, 106});
    AddLabel(panel, row.track, {left + 168, top + 6, 296, 32}, 14, kText, Align::kLeft, true);
    AddLabel(panel, row.artist, {left + 168, top + 40, 296, 28}, 12, kAmber);
    AddLabel(panel, row.played, {left + 168, top + 72, 296, 26}, 11, kMuted);
  }
  AddButton(panel, up, {kSideLeft, 20, 122, 60}, "Up", 14);
  AddButton(panel, down, {kSideLeft + 134, 20, 122, 60}, "Down", 14);
  static constexpr const char* kCaptions[] = {"Add To Queue", "Play NEXT", "Play NOW"};
  for (size_t i = 0; i < commands.size(); ++i) {
    // What costs most stands on top.
    const float top = 270 - 70 * static_cast<float>(i);
    AddButton(panel, commands[i], {kSideLeft, top, kSideWidth, 60}, kCaptions[i], 14);
  }
  AddMainButton(panel, back, kBackPlace, "BACK");
}

}  // namespace sonotik
