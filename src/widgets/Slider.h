// The system's own slider: a track, a picture of how far the value has come, and a thumb with
// pictures for idle, hover and pressed. Without pictures it draws itself in three colours.
#ifndef SONOTIK_WIDGETS_SLIDER_H_
#define SONOTIK_WIDGETS_SLIDER_H_

#include <functional>
#include <string>

#include "widgets/control.h"
#include "widgets/property_bag.h"

namespace sonotik {

struct SliderProperties {
  // Picture files; empty for none.
  std::string picture_back;
  std::string mouse_icon;
  std::string picture_progress;
  std::string bar_down;
  std::string bar_over;
  std::string bar;
  Color back_color = kButtonFace;
  int min = 0;
  int max = 100;
  int large_change = 0;  // of a click in the track; 0 takes the thumb there
  int value = 0;
  int position = 0;  // 0 lies, anything else stands
};

inline constexpr PropertyRow<SliderProperties> kSliderProperties[] = {
    {"PictureBack", &SliderProperties::picture_back},
    {"MouseIcon", &SliderProperties::mouse_icon},
    {"PictureProgress", &SliderProperties::picture_progress},
    {"BarDown", &SliderProperties::bar_down},
    {"BarOver", &SliderProperties::bar_over},
    {"Bar", &SliderProperties::bar},
    {"BackColor", &SliderProperties::back_color},
    {"Min", &SliderProperties::min},
    {"Max", &SliderProperties::max},
    {"LargeChange", &SliderProperties::large_change},
    {"Value", &SliderProperties::value},
    {"Position", &SliderProperties::position},
};

class Slider : public Control {
 public:
  int min() const { return p_.min; }
  int max() const { return p_.max; }
  // The value is kept within them.
  void SetRange(int min, int max);
  void SetMin(int min) { SetRange(min, p_.max); }
  void SetMax(int max) { SetRange(p_.min, max); }
  int value() const { return p_.value; }
  // Not taken outside the range or while a finger is on the slider. Tells nobody.
  void SetValue(int value);
  int large_change() const { return p_.large_change; }
  void SetLargeChange(int step) { p_.large_change = step; }
  int position() const { return p_.position; }
  void SetPosition(int position);

  const std::string& picture_back() const { return p_.picture_back; }
  // The slider becomes as large as this picture.
  void SetPictureBack(std::string path);
  const std::string& picture_progress() const { return p_.picture_progress; }
  void SetPictureProgress(std::string path) { Change(p_.picture_progress, std::move(path)); }
  const std::string& bar() const { return p_.bar; }
  // The thumb becomes as large as this picture; the two others are stretched to it.
  void SetBar(std::string path);
  const std::string& bar_over() const { return p_.bar_over; }
  void SetBarOver(std::string path) { Change(p_.bar_over, std::move(path)); }
  const std::string& bar_down() const { return p_.bar_down; }
  void SetBarDown(std::string path) { Change(p_.bar_down, std::move(path)); }
  // The mouse pointer over the slider, if there is such a picture.
  const std::string& mouse_icon() const { return p_.mouse_icon; }
  void SetMouseIcon(std::string path) { p_.mouse_icon = std::move(path); }
  Color back_color() const { return p_.back_color; }
  void SetBackColor(Color color) { Change(p_.back_color, color); }
  // The sizes once more, after a picture's file changed.
  void ResetPictures();
  // Of a slider without pictures.
  void SetColors(Color back, Color fill, Color thumb);

  void ReadFrom(const PropertyBag& bag);
  void WriteTo(PropertyBag& bag) const { WriteProperties(kSliderProperties, p_, bag); }

  // The value was moved by hand.
  std::function<void(int value)> on_scroll;

  bool hovered() const { return over_; }
  // The thumb's place on the slider.
  Rect Thumb() const;

  bool TakesMouse() const override { return true; }
  void MouseDown(const MouseEvent& event) override;
  void MouseMove(const MouseEvent& event) override;
  void MouseUp(const MouseEvent& event, bool inside) override;
  bool ShowsHover() const override { return true; }
  MouseShape mouse_shape() const override {
    return {p_.mouse_icon.empty() ? 0 : MouseShape::kIcon, p_.mouse_icon};
  }
  void MouseEnter() override { Change(over_, true); }
  void MouseLeave() override { Change(over_, false); }
  void Paint(Canvas& canvas) const override;

 private:
  bool standing() const { return p_.position != 0; }
  float Along(Point at) const { return standing() ? at.y : at.x; }
  float ThumbLength() const { return standing() ? thumb_.height : thumb_.width; }
  // What the thumb can travel, in pixels.
  float Way() const;
  // Where the thumb begins along the track: under the finger that holds it, else by the value.
  float ThumbStart() const;
  void TakeValueFromThumb();
  void PaintPlain(Canvas& canvas) const;

  SliderProperties p_;
  Rect thumb_{0, 0, 9, 9};  // its size
  float held_at_ = 0;       // where the finger has it along the track
  bool pressed_ = false;
  bool dragging_ = false;
  bool dragged_ = false;  // really moved
  float grip_ = 0;        // where in the thumb the finger holds it
  bool over_ = false;
  Color track_ = Rgb(40, 40, 40);
  Color fill_ = Rgb(120, 120, 120);
  Color knob_ = Rgb(255, 255, 255);
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_SLIDER_H_
