// How a button looks, from its properties and its state.
#ifndef SONOTIK_WIDGETS_BUTTON_LOOK_H_
#define SONOTIK_WIDGETS_BUTTON_LOOK_H_

#include "widgets/button_properties.h"

namespace sonotik {

struct ButtonLook {
  const ButtonProperties& properties;
  Rect inner;   // the button's own place
  bool over;    // the mouse is on it
  bool held;    // by mouse or key
  bool marked;  // shows that it has the focus
  // The picture of a custom shape; nullptr for a shape with an outline.
  const PixelSurface* cut;
};

// The corners' radius of a style, on the rectangular shape.
float CornerRadius(int back_style);
// Background, borders, picture, caption and focus mark, in this order.
void PaintButton(Canvas& canvas, const ButtonLook& look);

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_BUTTON_LOOK_H_
