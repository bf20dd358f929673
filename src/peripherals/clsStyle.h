// The style of the main window, flag by flag. Its handle, its redrawing and its system menu are the
// desktop's matter.
#ifndef SONOTIK_PERIPHERALS_CLSSTYLE_H_
#define SONOTIK_PERIPHERALS_CLSSTYLE_H_

#include "platform/displays.h"

namespace sonotik {

class clsStyle {
 public:
  explicit clsStyle(Displays& displays) : displays_(displays) {}

  bool Get(StyleFlag flag) const { return displays_.Style()[static_cast<size_t>(flag)]; }
  void Set(StyleFlag flag, bool on) {
    WindowStyle style = displays_.Style();
    style[static_cast<size_t>(flag)] = on;
    displays_.SetStyle(style);
  }

 private:
  Displays& displays_;
};

}  // namespace sonotik

#endif  // SONOTIK_PERIPHERALS_CLSSTYLE_H_
