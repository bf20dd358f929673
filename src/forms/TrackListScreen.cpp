#include "forms/TrackListScreen.h"

namespace sonotik {
namespace {

using namespace design;

constexpr float kRowsLeft = 380;
constexpr float kRowsWidth = 640;
constexpr float kRowHeight = 42;
constexpr float kButtonsLeft = 1040;
constexpr float kButtonsWidth = 224;

}  // namespace

TrackListScreen::TrackListScreen(Panel& screen) : panel(screen) {
  AddPicture(panel, cover, {24, 20, 332, 332});
  AddLabel(panel, album_heading, {24, 360, 332, 30}, 14, kText, Align::kLeft, true);
  AddLabel(panel, artist_heading, {24, 392, 332, 26}, 12, kAmber);
  AddLabel(panel, released_heading, {24, 420, 332, 24}, 11, kMuted);

  for (size_t i = 0; i < quick_jump.size(); ++i) {
    AddPicture(panel, quick_jump[i], {24 + 84 * static_cast<float>(i), 462, 76, 76});
  }
  AddButton(panel, quick_jump_left, {24, 550, 160, 44}, "<", 14);
  AddButton(panel, quick_jump_right, {196, 550, 160, 44}, ">", 14);

  for (size_t i = 0; i < rows.size(); ++i) {
    const float top = 20 + kRowHeight * static_cast<float>(i);
    AddLabel(panel, rows[i].title, {kRowsLeft, top, kRowsWidth - 92, kRowHeight - 4}, 13);
    AddLabel(panel, rows[i].time, {kRowsLeft + kRowsWidth - 88, top, 88, kRowHeight - 4}, 12,
             kMuted, Align::kRight);
    rows[i].title.SetPlate(kPanel);
    rows[i].time.SetPlate(kPanel);
  }
  AddButton(panel, up, {kRowsLeft, 576, 312, 50}, "Up", 14);
  AddButton(panel, down, {kRowsLeft + 328, 576, 312, 50}, "Down", 14);

  float top = 20;
  const auto command = [&](lvButtons_H& button, const char* caption) {
    AddButton(panel, button, {kButtonsLeft, top, kButtonsWidth, 60}, caption);
    top += 68;
  };
  command(play_now, "Play NOW");
  command(play_next, "Play NEXT");
  command(add_to_queue, "Add To Queue");
  command(add_entire_album, "Add Entire Album");
  command(add_to_carousel, "Add To Carousel");
  command(burn_cd, "Burn CD");
  command(download, "DOWNLOAD");
  AddMainButton(panel, back, {kButtonsLeft, 566, kButtonsWidth, 60}, "BACK");
}

}  // namespace sonotik
