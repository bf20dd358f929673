// What has been played: nine rows, newest first.
#ifndef SONOTIK_FORMS_HISTORYSCREEN_H_
#define SONOTIK_FORMS_HISTORYSCREEN_H_

#include <array>

#include "forms/design.h"

namespace sonotik {

inline constexpr int kHistoryRows = 9;

struct HistoryRow {
  PictureBox cover;
  // Number, artist, track, album, time and day, one below the other.
  Label text;
};

enum class HistoryStep { kPrevious, kNext, kPageUp, kPageDown };

struct HistoryScreen {
  explicit HistoryScreen(Panel& panel);

  Panel& panel;
  std::array<HistoryRow, kHistoryRows> rows;
  std::array<lvButtons_H, 4> steps;  // by HistoryStep
  lvButtons_H back;
  Label total;  // "Total Song(s) in History  12"
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_HISTORYSCREEN_H_
