// Five columns of stacked covers, one artist a column, and the strip of rows beside them.
#ifndef SONOTIK_FORMS_CAROUSELSCREEN_H_
#define SONOTIK_FORMS_CAROUSELSCREEN_H_

#include <array>

#include "forms/design.h"

namespace sonotik {

inline constexpr int kCarouselColumns = 5;
inline constexpr int kCarouselCovers = 5;  // a column

struct CarouselColumn {
  Label artist;
  std::array<PictureBox, kCarouselCovers> covers;
};

struct CarouselScreen {
  CarouselScreen(Panel& panel, Panel& strip);

  Panel& panel;
  std::array<CarouselColumn, kCarouselColumns> columns;
  lvButtons_H up;
  lvButtons_H down;
  lvButtons_H back;
  // Lies on this screen, and is hidden at first.
  Panel& strip;
  std::array<Label, 5> strip_rows;
  lvButtons_H strip_up;
  lvButtons_H strip_down;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_CAROUSELSCREEN_H_
