#include "widgets/region.h"

namespace sonotik {
namespace {

// The rest of a rectangle around a hole: above, below, left and right of it.
void AddRest(const Rect& rect, const Rect& hole, Region& rest) {
  const Rect cut = rect.Intersected(hole);
  if (cut.empty()) {
    rest.push_back(rect);
    return;
  }
  for (const Rect& part : {Rect{rect.left, rect.top, rect.width, cut.top - rect.top},
                           Rect{rect.left, cut.bottom(), rect.width, rect.bottom() - cut.bottom()},
                           Rect{rect.left, cut.top, cut.left - rect.left, cut.height},
                           Rect{cut.right(), cut.top, rect.right() - cut.right(), cut.height}}) {
    if (!part.empty()) rest.push_back(part);
  }
}

}  // namespace

Region Without(const Region& region, const Region& other) {
  Region left = region;
  for (const Rect& hole : other) {
    Region rest;
    for (const Rect& rect : left) AddRest(rect, hole, rest);
    left = std::move(rest);
  }
  return left;
}

}  // namespace sonotik
