#include "forms/SearchScreen.h"

namespace sonotik {
namespace {

using namespace design;

constexpr float kKey = 94;  // with the gap behind it
constexpr float kKeyRow = 72;
constexpr float kKeysTop = 244;

Rect KeyPlace(size_t column, size_t row) {
  return {24 + kKey * static_cast<float>(column), kKeysTop + kKeyRow * static_cast<float>(row),
          kKey - 8, kKeyRow - 8};
}

}  // namespace

SearchScreen::SearchScreen(Panel& screen) : panel(screen) {
  AddLabel(panel, entry, {24, 12, 932, 56}, 24, kText, Align::kLeft, true);
  entry.SetPlate(kRaised);
  for (size_t i = 0; i < suggestions.size(); ++i) {
    AddLabel(panel, suggestions[i], {24, 76 + 40 * static_cast<float>(i), 932, 36}, 14, kAmber);
  }
  for (size_t i = 0; i < digits.size(); ++i) {
    // As on a keyboard, the 0 behind the 9.
    AddButton(panel, digits[i], KeyPlace((i + 9) % 10, 0), std::to_string(i), 16);
  }
  for (size_t i = 0; i < keys.size(); ++i) {
    const std::string caption = i == 26   ? "Space"
                                : i == 27 ? "Delete"
                                          : std::string(1, static_cast<char>('A' + i));
    AddButton(panel, keys[i], KeyPlace(i % 10, 1 + i / 10), caption, i < 26 ? 16 : 12);
  }
  // Spelled so since ever.
  AddButton(panel, clear, {24, 548, 460, 72}, "Clear Seach", 16);
  AddMainButton(panel, search, {496, 548, 460, 72}, "Search", 16);
  AddMainButton(panel, back, kBackPlace, "BACK");
}

SearchChoiceScreen::SearchChoiceScreen(Panel& screen) : panel(screen) {
  static constexpr const char* kModes[] = {"TRACK", "ARTIST", "ALBUM"};
  for (size_t i = 0; i < modes.size(); ++i) {
    AddButton(panel, modes[i], {340, 140 + 124 * static_cast<float>(i), 600, 108}, kModes[i], 22);
  }
}

SearchingPanel::SearchingPanel(Panel& parent) {
  AddPanel(parent, panel, {390, 300, 500, 160}, kRaised);
  AddLabel(panel, caption, {24, 24, 452, 50}, 20, kText, Align::kCenter, true);
  caption.SetCaption("Searching");
  panel.Add(progress, {24, 96, 452, 32});
  progress.SetColors(kNight, kAmber);
  panel.SetVisible(false);
}

}  // namespace sonotik
