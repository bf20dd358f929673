#include "forms/QueueScreen.h"

namespace sonotik {
namespace {

using namespace design;

void AddRow(Panel& panel, QueueRow& row, float top) {
  AddLabel(panel, row.touch, {24, top, 950, 92}, 11);
  row.touch.SetPlate(kPanel);
  AddPicture(panel, row.cover, {80, top + 6, 80, 80});
  AddLabel(panel, row.number, {32, top + 26, 44, 40}, 15, kMuted, Align::kCenter);
  AddLabel(panel, row.track, {176, top + 6, 660, 28}, 13, kText, Align::kLeft, true);
  AddLabel(panel, row.artist, {176, top + 34, 660, 26}, 12, kAmber);
  AddLabel(panel, row.album, {176, top + 60, 660, 24}, 11, kMuted);
  AddLabel(panel, row.time, {846, top + 26, 112, 40}, 13, kMuted, Align::kRight);
}

}  // namespace

QueueScreen::QueueScreen(Panel& screen) : panel(screen) {
  AddLabel(panel, next_song_caption, {24, 8, 400, 32}, 14, kText, Align::kLeft, true);
  next_song_caption.SetCaption("Next Song...");
  AddRow(panel, rows[0], 42);
  AddLabel(panel, followed_by_caption, {24, 142, 400, 32}, 14, kText, Align::kLeft, true);
  followed_by_caption.SetCaption("Followed By...");
  for (size_t i = 1; i < rows.size(); ++i) {
    AddRow(panel, rows[i], 176 + 100 * static_cast<float>(i - 1));
  }
  AddLabel(panel, remaining, {24, 584, 950, 36}, 12, kMuted);

  static constexpr const char* kCaptions[] = {
      "Move Up", "Move Down", "Remove Song", "Play Now", "Clear Queue", "Burn CD", "Shuffle Queue"};
  // "Burn CD" is the one that few cabinets show: it stands last.
  static constexpr float kPlaces[] = {0, 1, 2, 3, 5, 6, 4};
  for (size_t i = 0; i < commands.size(); ++i) {
    AddButton(panel, commands[i], {1000, 20 + 62 * kPlaces[i], 256, 54}, kCaptions[i]);
  }
  AddButton(panel, up, {1000, 470, 122, 60}, "Up", 14);
  AddButton(panel, down, {1134, 470, 122, 60}, "Down", 14);
  AddMainButton(panel, back, {1000, 562, 256, 62}, "BACK");
}

}  // namespace sonotik
