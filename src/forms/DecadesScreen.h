// The month and year of the chart in view, and the pickers for both.
#ifndef SONOTIK_FORMS_DECADESSCREEN_H_
#define SONOTIK_FORMS_DECADESSCREEN_H_

#include <array>

#include "forms/design.h"

namespace sonotik {

inline constexpr int kFirstChartYear = 1953;
inline constexpr int kChartYears = 57;

struct DecadesScreen {
  explicit DecadesScreen(Panel& panel);

  Panel& panel;
  Label month_caption;
  Label year_caption;
  Panel month_picker;
  Panel year_picker;
  std::array<lvButtons_H, kChartYears> year_buttons;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_DECADESSCREEN_H_
