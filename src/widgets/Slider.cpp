#include "widgets/Slider.h"

#include <algorithm>
#include <cmath>

namespace sonotik {
namespace {

constexpr float kThumb = 14;  // its width; the track ends half of it inside the control

}  // namespace

void Slider::SetRange(int min, int max) {
  min_ = min;
  max_ = std::max(min, max);
  SetValue(value_);
}

void Slider::SetValue(int value) { Change(value_, std::clamp(value, min_, max_)); }

void Slider::SetColors(Color back, Color fill, Color thumb) {
  Change(back_, back);
  Change(fill_, fill);
  Change(thumb_, thumb);
}

void Slider::MouseDown(const MouseEvent& event) {
  dragging_ = event.button == MouseButton::kLeft;
  Follow(event.at);
  Control::MouseDown(event);
}

void Slider::MouseMove(const MouseEvent& event) {
  Follow(event.at);
  Control::MouseMove(event);
}

void Slider::MouseUp(const MouseEvent& event, bool inside) {
  dragging_ = false;
  Control::MouseUp(event, inside);
}

void Slider::Follow(Point at) {
  if (!dragging_) return;
  const float way = std::max(1.0F, place().width - kThumb);
  const float share = std::clamp((at.x - kThumb / 2) / way, 0.0F, 1.0F);
  const int before = value_;
  SetValue(min_ + static_cast<int>(std::lround(share * static_cast<float>(max_ - min_))));
  if (value_ != before && on_scroll) on_scroll(value_);
}

void Slider::Paint(Canvas& canvas) const {
  const float span = static_cast<float>(std::max(1, max_ - min_));
  const float way = std::max(1.0F, place().width - kThumb);
  const float x = way * static_cast<float>(value_ - min_) / span;
  const float middle = place().height / 2;
  canvas.FillRect({kThumb / 2, middle - 3, way, 6}, back_, 3);
  canvas.FillRect({kThumb / 2, middle - 3, x, 6}, fill_, 3);
  canvas.FillRect({x, middle - 11, kThumb, 22}, thumb_, 6);
}

}  // namespace sonotik
