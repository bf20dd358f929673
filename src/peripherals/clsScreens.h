// What is known of the monitors, each by its index from 0; the first is the main window's.
#ifndef SONOTIK_PERIPHERALS_CLSSCREENS_H_
#define SONOTIK_PERIPHERALS_CLSSCREENS_H_

#include <vector>

#include "platform/displays.h"

namespace sonotik {

// As they are when it is made. An index that isn't there gives the facts of the first monitor.
class clsScreens {
 public:
  explicit clsScreens(Displays& displays);

  // At least 1.
  int Count() const;
  bool AllSameColourDepth() const;
  // The machine has told of a monitor.
  bool Enabled() const { return !monitors_.empty(); }
  // Its index.
  int PrimaryMon() const;

  int Height(int index) const { return Whole(index).height; }
  int Width(int index) const { return Whole(index).width; }
  int Top(int index) const { return Whole(index).top; }
  int Left(int index) const { return Whole(index).left; }
  int WorkHeight(int index) const { return At(index).work.height; }
  int WorkWidth(int index) const { return At(index).work.width; }
  int WorkTop(int index) const { return At(index).work.top; }
  int WorkLeft(int index) const { return At(index).work.left; }
  const MonitorArea& Whole(int index) const { return At(index).whole; }

 private:
  const Monitor& At(int index) const;

  std::vector<Monitor> monitors_;
  Monitor none_;
};

}  // namespace sonotik

#endif  // SONOTIK_PERIPHERALS_CLSSCREENS_H_
