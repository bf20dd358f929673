// The chart of a month, and the pickers for month and year.
#ifndef SONOTIK_FORMS_DECADESSCREEN_H_
#define SONOTIK_FORMS_DECADESSCREEN_H_

#include <array>

#include "forms/design.h"
#include "widgets/ucAniGIF.h"

namespace sonotik {

inline constexpr int kFirstChartYear = 1953;
inline constexpr int kChartYears = 57;
inline constexpr int kChartRows = 10;

struct ChartRow {
  PictureBox cover;
  Label artist;  // "( 1) Ada"
  Label track;
  lvButtons_H play_now;
  lvButtons_H add_queue;
};

struct DecadesScreen {
  explicit DecadesScreen(Panel& panel);

  Panel& panel;
  Label month_caption;
  Label year_caption;
  std::array<lvButtons_H, 4> steps;  // a month back, a month on, a year back, a year on
  std::array<ChartRow, kChartRows> rows;
  ucAniGIF chart_picture;
  lvButtons_H back;
  Panel month_picker;
  std::array<lvButtons_H, 12> month_buttons;
  lvButtons_H month_back;
  Panel year_picker;
  std::array<lvButtons_H, kChartYears> year_buttons;
  std::array<Label, 6> decade_heads;  // "1950s" to "2000s"
  lvButtons_H year_back;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_DECADESSCREEN_H_
