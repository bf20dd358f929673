// Places and points in the unit of the main window: a pixel of the skin's size, in floats as the
// skins give them.
#ifndef SONOTIK_WIDGETS_GEOMETRY_H_
#define SONOTIK_WIDGETS_GEOMETRY_H_

#include <algorithm>

namespace sonotik {

struct Point {
  float x = 0;
  float y = 0;
};

struct Rect {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;

  bool operator==(const Rect&) const = default;
  float right() const { return left + width; }
  float bottom() const { return top + height; }
  bool empty() const { return !(width > 0 && height > 0); }
  bool Contains(Point p) const {
    return p.x >= left && p.x < right() && p.y >= top && p.y < bottom();
  }
  bool Contains(const Rect& other) const {
    return other.left >= left && other.right() <= right() && other.top >= top &&
           other.bottom() <= bottom();
  }
  Rect MovedBy(float dx, float dy) const { return {left + dx, top + dy, width, height}; }
  Rect Inset(float by) const { return {left + by, top + by, width - 2 * by, height - 2 * by}; }
  Rect Intersected(const Rect& other) const {
    const float l = std::max(left, other.left);
    const float t = std::max(top, other.top);
    return {l, t, std::max(0.0F, std::min(right(), other.right()) - l),
            std::max(0.0F, std::min(bottom(), other.bottom()) - t)};
  }
  Rect United(const Rect& other) const {
    if (empty()) return other;
    if (other.empty()) return *this;
    const float l = std::min(left, other.left);
    const float t = std::min(top, other.top);
    return {l, t, std::max(right(), other.right()) - l, std::max(bottom(), other.bottom()) - t};
  }
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_GEOMETRY_H_
