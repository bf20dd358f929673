// Five columns of stacked covers, one artist a column.
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
  explicit CarouselScreen(Panel& panel);

  Panel& panel;
  std::array<CarouselColumn, kCarouselColumns> columns;
  lvButtons_H up;
  lvButtons_H down;
  lvButtons_H back;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_CAROUSELSCREEN_H_
