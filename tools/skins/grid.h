// Cutting a screen into places: all edges on whole pixels.
#ifndef SONOTIK_TOOLS_SKINS_GRID_H_
#define SONOTIK_TOOLS_SKINS_GRID_H_

#include <QRectF>
#include <cmath>
#include <vector>

#include "widgets/geometry.h"

namespace sonotik::skins {

inline QRectF ToQt(const Rect& r) { return {r.left, r.top, r.width, r.height}; }

inline Rect Whole(const Rect& r) {
  const float left = std::round(r.left), top = std::round(r.top);
  return {left, top, std::round(r.right()) - left, std::round(r.bottom()) - top};
}

// Each takes a strip off an edge of what is left, and a gap behind it.
inline Rect TakeTop(Rect& rest, float height, float gap) {
  const Rect taken{rest.left, rest.top, rest.width, height};
  rest = {rest.left, rest.top + height + gap, rest.width, rest.height - height - gap};
  return taken;
}
inline Rect TakeBottom(Rect& rest, float height, float gap) {
  const Rect taken{rest.left, rest.bottom() - height, rest.width, height};
  rest.height -= height + gap;
  return taken;
}
inline Rect TakeLeft(Rect& rest, float width, float gap) {
  const Rect taken{rest.left, rest.top, width, rest.height};
  rest = {rest.left + width + gap, rest.top, rest.width - width - gap, rest.height};
  return taken;
}
inline Rect TakeRight(Rect& rest, float width, float gap) {
  const Rect taken{rest.right() - width, rest.top, width, rest.height};
  rest.width -= width + gap;
  return taken;
}

// Equal cells, row by row. Each is as large as the others, so pictures can be shared.
inline std::vector<Rect> Grid(const Rect& area, int columns, int rows, float gap) {
  const float width = std::floor((area.width - gap * static_cast<float>(columns - 1)) /
                                 static_cast<float>(columns));
  const float height =
      std::floor((area.height - gap * static_cast<float>(rows - 1)) / static_cast<float>(rows));
  // What is left over stands evenly on both sides.
  const float spare = area.width - static_cast<float>(columns) * (width + gap) + gap;
  std::vector<Rect> cells;
  for (int i = 0; i < columns * rows; ++i) {
    cells.push_back(
        {std::round(area.left + spare / 2 + (width + gap) * static_cast<float>(i % columns)),
         area.top + (height + gap) * static_cast<float>(i / columns), width, height});
  }
  return cells;
}

inline Rect Centered(const Rect& area, float width, float height) {
  return Whole(
      {area.left + (area.width - width) / 2, area.top + (area.height - height) / 2, width, height});
}

}  // namespace sonotik::skins

#endif  // SONOTIK_TOOLS_SKINS_GRID_H_
