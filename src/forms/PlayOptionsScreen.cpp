#include "forms/PlayOptionsScreen.h"

namespace sonotik {

using namespace design;

PlayOptionsScreen::PlayOptionsScreen(Panel& screen) : panel(screen) {
  AddPicture(panel, cover, {120, 90, 380, 380});
  AddLabel(panel, queue_line, {120, 486, 380, 36}, 13, kMuted, Align::kCenter);
  AddLabel(panel, title, {560, 90, 600, 56}, 24, kText, Align::kLeft, true);
  AddLabel(panel, artist, {560, 148, 600, 40}, 17, kAmber);
  AddLabel(panel, message, {560, 204, 600, 44}, 17, kCoral, Align::kLeft, true);
  AddMainButton(panel, play_now, {560, 262, 294, 84}, "Play Now", 18);
  AddButton(panel, play_next, {866, 262, 294, 84}, "Play Next", 16);
  AddButton(panel, add_to_queue, {560, 358, 294, 84}, "Add To Queue", 16);
  AddButton(panel, download, {866, 358, 294, 84}, "DOWNLOAD", 16);
  for (size_t i = 0; i < prices.size(); ++i) {
    AddLabel(panel, prices[i], {560, 262 + 60 * static_cast<float>(i), 600, 48}, 17, kAmber);
    prices[i].SetVisible(false);
  }
  AddButton(panel, cancel, {560, 466, 600, 76}, "Cancel", 16);
}

}  // namespace sonotik
