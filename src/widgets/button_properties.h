// What is stored of a button, and the table of its keys.
#ifndef SONOTIK_WIDGETS_BUTTON_PROPERTIES_H_
#define SONOTIK_WIDGETS_BUTTON_PROPERTIES_H_

#include <string>

#include "widgets/property_bag.h"

namespace sonotik {

enum ButtonMode { kCommandMode, kCheckMode, kOptionMode };

namespace back_style {
inline constexpr int kRaised = 0;  // bevelled, as desktops have them
inline constexpr int kFlat = 1;    // a plate, with an edge under the mouse only
inline constexpr int kEtched = 2;  // a plate with an engraved frame
inline constexpr int kSoft = 3;    // rounded, lighter at the top
inline constexpr int kGlass = 4;   // rounded, with a reflection
inline constexpr int kBezel = 5;   // a plate in a metal frame; the caption keeps inside
inline constexpr int kSunken = 6;  // a trough
inline constexpr int kNeon = 7;    // dark, with a glowing edge in the back colour
}  // namespace back_style

namespace image_align {
inline constexpr int kLeftEdge = 0;
inline constexpr int kLeftOfCaption = 1;
inline constexpr int kRightEdge = 2;
inline constexpr int kRightOfCaption = 3;
inline constexpr int kTop = 4;
inline constexpr int kBottom = 5;
}  // namespace image_align

struct ButtonProperties {
  std::string caption;
  int cap_align = 2;  // left, right, centre
  int back_style = 0;
  int shape = 0;
  int gradient = 0;  // none, to the right, to the left, downwards, upwards
  Color c_gradient = kButtonFace;
  Color c_fore = kButtonText;
  Font font;
  bool focus = true;
  int mode = 0;  // ButtonMode
  bool value = false;
  int custom_click = 0;
  std::string image;  // a picture file; empty for none
  int img_size = 16;  // pixels
  int img_align = 0;
  Color c_fore_hover = kButtonText;
  bool enabled = true;
  Color c_back = kButtonFace;
  Color c_back_hover = kButtonFace;
  int lock_hover = 0;  // which hover colours follow: both, caption, back, none
  int cap_style = 0;   // plain, raised, sunken
  std::string mouse_icon;
  int mouse_pointer = 0;
};

inline constexpr PropertyRow<ButtonProperties> kButtonProperties[] = {
    {"Caption", &ButtonProperties::caption},
    {"CapAlign", &ButtonProperties::cap_align, 0, 2},
    {"BackStyle", &ButtonProperties::back_style, 0, 7},
    {"Shape", &ButtonProperties::shape, 0, 8},
    {"Gradient", &ButtonProperties::gradient, 0, 4},
    {"cGradient", &ButtonProperties::c_gradient},
    {"cFore", &ButtonProperties::c_fore},
    {"Font", &ButtonProperties::font},
    {"Focus", &ButtonProperties::focus},
    {"Mode", &ButtonProperties::mode, 0, 2},
    {"Value", &ButtonProperties::value},
    {"CustomClick", &ButtonProperties::custom_click, 0, 8},
    {"Image", &ButtonProperties::image},
    {"ImgSize", &ButtonProperties::img_size, 16, 48},
    {"ImgAlign", &ButtonProperties::img_align, 0, 5},
    {"cFHover", &ButtonProperties::c_fore_hover},
    {"Enabled", &ButtonProperties::enabled},
    {"cBack", &ButtonProperties::c_back},
    // Written "cBhover" and read "cBHover" since ever: the bag doesn't mind.
    {"cBhover", &ButtonProperties::c_back_hover},
    {"LockHover", &ButtonProperties::lock_hover, 0, 3},
    {"CapStyle", &ButtonProperties::cap_style, 0, 2},
    {"mIcon", &ButtonProperties::mouse_icon},
    {"mPointer", &ButtonProperties::mouse_pointer},
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_BUTTON_PROPERTIES_H_
