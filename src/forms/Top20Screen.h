// The tracks that guests have chosen most, ten in view.
#ifndef SONOTIK_FORMS_TOP20SCREEN_H_
#define SONOTIK_FORMS_TOP20SCREEN_H_

#include <array>

#include "forms/design.h"

namespace sonotik {

inline constexpr int kTop20Rows = 10;

struct Top20Row {
  PictureBox cover;
  Label number;
  Label artist;
  Label track;
  Label played;  // "Played 09 Time(s)"
};

enum class Top20Command { kAddToQueue, kPlayNext, kPlayNow };

struct Top20Screen {
  explicit Top20Screen(Panel& panel);

  Panel& panel;
  std::array<Top20Row, kTop20Rows> rows;
  lvButtons_H up;
  lvButtons_H down;
  std::array<lvButtons_H, 3> commands;  // by Top20Command
  lvButtons_H back;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_TOP20SCREEN_H_
