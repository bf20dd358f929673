// What a search has found, seven tracks in view.
#ifndef SONOTIK_FORMS_SEARCHRESULTSSCREEN_H_
#define SONOTIK_FORMS_SEARCHRESULTSSCREEN_H_

#include <array>

#include "forms/design.h"

namespace sonotik {

inline constexpr int kResultRows = 7;
inline constexpr int kSpecialLists = 4;

struct ResultRow {
  PictureBox cover;
  Label number;
  Label artist;
  Label track;
  // Says nothing, lies behind the others and can be touched like them.
  Label blank;
};

enum class ResultCommand { kNewSearch, kAddAllToQueue, kPlayNow, kPlayNext, kAddToQueue };

struct SearchResultsScreen {
  SearchResultsScreen(Panel& panel, Panel& list_panel);

  Panel& panel;
  Label heading;  // " 12 Songs Found, Matching (LOVE)"
  std::array<ResultRow, kResultRows> rows;
  std::array<lvButtons_H, 3> tabs;      // "Audio", "Video", "Karaoke"
  std::array<lvButtons_H, 5> commands;  // by ResultCommand
  lvButtons_H up;
  lvButtons_H down;
  lvButtons_H back;
  // The special lists, offered where the rows are empty.
  Panel& list_panel;
  std::array<lvButtons_H, kSpecialLists> lists;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_SEARCHRESULTSSCREEN_H_
