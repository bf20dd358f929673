// The search: what to look for, the keys to type it, and the note that it runs.
#ifndef SONOTIK_FORMS_SEARCHSCREEN_H_
#define SONOTIK_FORMS_SEARCHSCREEN_H_

#include <array>

#include "forms/design.h"

namespace sonotik {

inline constexpr int kSuggestions = 4;

struct SearchScreen {
  explicit SearchScreen(Panel& panel);

  Panel& panel;
  Label entry;
  std::array<Label, kSuggestions> suggestions;
  // "A" to "Z", then the blank and the key that takes the last character away.
  std::array<lvButtons_H, 28> keys;
  std::array<lvButtons_H, 10> digits;  // "0" to "9"
  lvButtons_H clear;
  lvButtons_H search;
  lvButtons_H back;
};

// "TRACK", "ARTIST", "ALBUM".
struct SearchChoiceScreen {
  explicit SearchChoiceScreen(Panel& panel);

  Panel& panel;
  std::array<lvButtons_H, 3> modes;
};

// Lies over everything while a file is searched.
struct SearchingPanel {
  explicit SearchingPanel(Panel& parent);

  Panel panel;
  Label caption;  // "Searching"
  ProgressBar progress;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_SEARCHSCREEN_H_
