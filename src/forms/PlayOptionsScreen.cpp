#include "forms/PlayOptionsScreen.h"

namespace sonotik {

using namespace design;

PlayOptionsScreen::PlayOptionsScreen(Panel& screen) : panel(screen) {
  panel.SetPlace({190, kMenuHeight + 60, 900, 500});
  panel.SetBackColor(kRaised);
  AddPicture(panel, cover, {32, 32, 300, 300});
  AddLabel(panel, title, {364, 32, 504, 40}, 19, kText, Align::kLeft, true);
  AddLabel(panel, artist, {364, 76, 504, 32}, 14, kAmber);
  AddLabel(panel, message, {364, 122, 504, 44}, 15, kCoral, Align::kLeft, true);
  AddMainButton(panel, play_now, {364, 178, 246, 72}, "Play Now", 16);
  AddButton(panel, play_next, {622, 178, 246, 72}, "Play Next", 15);
  AddButton(panel, add_to_queue, {364, 262, 246, 72}, "Add To Queue", 15);
  AddButton(panel, download, {622, 262, 246, 72}, "DOWNLOAD", 15);
  for (size_t i = 0; i < prices.size(); ++i) {
    AddLabel(panel, prices[i], {364, 178 + 52 * static_cast<float>(i), 504, 44}, 15, kAmber);
    prices[i].SetVisible(false);
  }
  AddButton(panel, cancel, {364, 398, 504, 70}, "Cancel", 15);
  AddLabel(panel, queue_line, {32, 344, 300, 32}, 12, kMuted, Align::kCenter);
}

}  // namespace sonotik
