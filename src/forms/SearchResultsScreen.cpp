#include "forms/SearchResultsScreen.h"

namespace sonotik {

using namespace design;

SearchResultsScreen::SearchResultsScreen(Panel& screen, Panel& lists_of_screen)
    : panel(screen), list_panel(lists_of_screen) {
  static constexpr const char* kTabs[] = {"Audio", "Video", "Karaoke"};
  for (size_t i = 0; i < tabs.size(); ++i) {
    AddButton(panel, tabs[i], {24 + 136 * static_cast<float>(i), 8, 130, 46}, kTabs[i]);
  }
  AddLabel(panel, heading, {446, 8, 528, 46}, 13, kMuted, Align::kRight);
  for (size_t i = 0; i < rows.size(); ++i) {
    ResultRow& row = rows[i];
    const float top = 66 + 80 * static_cast<float>(i);
    AddLabel(panel, row.blank, {24, top, 950, 72}, 12);
    AddLabel(panel, row.number, {24, top + 16, 60, 40}, 15, kMuted, Align::kCenter);
    AddPicture(panel, row.cover, {92, top, 72, 72});
    AddLabel(panel, row.track, {180, top + 4, 786, 32}, 14, kText, Align::kLeft, true);
    AddLabel(panel, row.artist, {180, top + 38, 786, 28}, 12, kAmber);
  }

  static constexpr const char* kCommands[] = {"New Search", "Add ALL To Queue", "Play NOW",
                                              "Play Next", "Add To Queue"};
  for (size_t i = 0; i < commands.size(); ++i) {
    const float top = 66 + 68 * static_cast<float>(i);
    AddButton(panel, commands[i], {kSideLeft, top, kSideWidth, 60}, kCommands[i]);
  }
  AddButton(panel, up, {kSideLeft, 470, 122, 60}, "UP", 14);
  AddButton(panel, down, {kSideLeft + 134, 470, 122, 60}, "DOWN", 14);
  AddMainButton(panel, back, kBackPlace, "BACK");

  AddPanel(panel, list_panel, rows[1].blank.place().United(rows[2].blank.place()), kRaised);
  for (size_t i = 0; i < lists.size(); ++i) {
    AddButton(list_panel, lists[i], {16 + 190 * static_cast<float>(i), 40, 178, 72},
              "Rolling Stone Top 500");
    lists[i].SetVisible(false);
  }
  list_panel.SetVisible(false);
}

}  // namespace sonotik
