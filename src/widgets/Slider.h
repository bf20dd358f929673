// The system's own slider.
#ifndef SONOTIK_WIDGETS_SLIDER_H_
#define SONOTIK_WIDGETS_SLIDER_H_

#include <functional>

#include "widgets/control.h"

namespace sonotik {

class Slider : public Control {
 public:
  int min() const { return min_; }
  int max() const { return max_; }
  void SetRange(int min, int max);
  int value() const { return value_; }
  // Held within the range. Setting it from outside tells nobody.
  void SetValue(int value);
  void SetColors(Color back, Color fill, Color thumb);

  // The finger has moved it.
  std::function<void(int value)> on_scroll;

  bool TakesMouse() const override { return true; }
  void MouseDown(const MouseEvent& event) override;
  void MouseMove(const MouseEvent& event) override;
  void MouseUp(const MouseEvent& event, bool inside) override;
  void Paint(Canvas& canvas) const override;

 private:
  void Follow(Point at);

  int min_ = 0;
  int max_ = 100;
  int value_ = 0;
  bool dragging_ = false;
  Color back_ = Rgb(40, 40, 40);
  Color fill_ = Rgb(120, 120, 120);
  Color thumb_ = Rgb(255, 255, 255);
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_SLIDER_H_
