// Parts of a control, as rectangles that don't overlap.
#ifndef SONOTIK_WIDGETS_REGION_H_
#define SONOTIK_WIDGETS_REGION_H_

#include <vector>

#include "widgets/geometry.h"

namespace sonotik {

using Region = std::vector<Rect>;

// What is left of `region` without the other.
Region Without(const Region& region, const Region& other);

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_REGION_H_
