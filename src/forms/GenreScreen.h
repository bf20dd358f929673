// The genres, as a screen and as a bar in the place of the menu.
#ifndef SONOTIK_FORMS_GENRESCREEN_H_
#define SONOTIK_FORMS_GENRESCREEN_H_

#include <array>

#include "forms/design.h"

namespace sonotik {

struct GenreScreen {
  explicit GenreScreen(Panel& panel);

  Panel& panel;
  std::array<Label, 28> labels;  // "ALL GENRES", then 27 of the folder
  lvButtons_H up;
  lvButtons_H down;
  lvButtons_H unused;  // a skin may place it; it does nothing
  lvButtons_H back;
};

struct GenreBar {
  explicit GenreBar(Panel& panel);

  Panel& panel;
  std::array<lvButtons_H, 10> buttons;  // "UP", seven genres, "DOWN", "Back"
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_GENRESCREEN_H_
