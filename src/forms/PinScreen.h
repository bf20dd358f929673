// The keys to the options.
#ifndef SONOTIK_FORMS_PINSCREEN_H_
#define SONOTIK_FORMS_PINSCREEN_H_

#include <array>

#include "forms/design.h"

namespace sonotik {

struct PinScreen {
  explicit PinScreen(Panel& panel);

  Panel& panel;
  Label entry;
  std::array<lvButtons_H, 10> keys;  // "ENTER", then "1" to "9": there is no 0
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_PINSCREEN_H_
