// The system's own button.
#ifndef SONOTIK_WIDGETS_LVBUTTONS_H_H_
#define SONOTIK_WIDGETS_LVBUTTONS_H_H_

#include <string>

#include "widgets/control.h"

namespace sonotik {

class lvButtons_H : public Control {
 public:
  lvButtons_H();

  // "||" is a line break, "&" marks an access key, "&&" is an "&".
  const std::string& caption() const { return caption_; }
  void SetCaption(std::string caption) { Change(caption_, std::move(caption)); }
  void SetForeColor(Color color) { Change(style_.color, color); }
  void SetBackColor(Color color) { Change(back_color_, color); }
  // The colours while the mouse is over the button.
  void SetHoverColors(Color fore, Color back);
  void SetFont(Font font) { Change(style_.font, std::move(font)); }
  void SetAlign(Align align) { Change(style_.align, align); }
  const std::string& picture() const { return picture_; }
  void SetPicture(std::string path) { Change(picture_, std::move(path)); }
  // A lasting mark, such as the tab in force.
  bool value() const { return value_; }
  void SetValue(bool value) { Change(value_, value); }
  bool enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { Change(enabled_, enabled); }
  bool held() const { return held_; }
  bool hovered() const { return over_; }

  bool TakesMouse() const override { return true; }
  void MouseDown(const MouseEvent& event) override;
  void MouseUp(const MouseEvent& event, bool inside) override;
  void MouseEnter() override { Change(over_, true); }
  void MouseLeave() override { Change(over_, false); }
  void Paint(Canvas& canvas) const override;

 private:
  std::string caption_;
  TextStyle style_;
  Color back_color_;
  Color hover_fore_;
  Color hover_back_;
  std::string picture_;
  bool value_ = false;
  bool enabled_ = true;
  bool held_ = false;
  bool over_ = false;
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_LVBUTTONS_H_H_
