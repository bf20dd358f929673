#include "peripherals/clsScreens.h"

#include <algorithm>

namespace sonotik {

clsScreens::clsScreens(Displays& displays) : monitors_(displays.Monitors()) {}

int clsScreens::Count() const { return std::max(1, static_cast<int>(monitors_.size())); }

bool clsScreens::AllSameColourDepth() const {
  return std::all_of(monitors_.begin(), monitors_.end(), [this](const Monitor& monitor) {
    return monitor.colour_depth == monitors_.front().colour_depth;
  });
}

int clsScreens::PrimaryMon() const {
  const auto primary = std::find_if(monitors_.begin(), monitors_.end(),
                                    [](const Monitor& monitor) { return monitor.primary; });
  return primary == monitors_.end() ? 0 : static_cast<int>(primary - monitors_.begin());
}

const Monitor& clsScreens::At(int index) const {
  if (monitors_.empty()) return none_;
  const bool there = index >= 0 && index < static_cast<int>(monitors_.size());
  return monitors_[there ? static_cast<size_t>(index) : 0];
}

}  // namespace sonotik
