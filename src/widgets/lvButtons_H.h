// The system's own button: command, check or option button in eight styles and nine shapes, with a
// picture beside its caption and colours of its own under the mouse.
#ifndef SONOTIK_WIDGETS_LVBUTTONS_H_H_
#define SONOTIK_WIDGETS_LVBUTTONS_H_H_

#include <functional>
#include <optional>
#include <string>

#include "widgets/button_properties.h"
#include "widgets/control.h"

namespace sonotik {

// A value out of its range or a property that the button's state forbids is not taken, without a
// word; only a button that is being designed says why, through on_message.
class lvButtons_H : public Control {
 public:
  // "||" is a line break, the last single "&" marks the access key, "&&" is an "&".
  const std::string& caption() const { return p_.caption; }
  void SetCaption(std::string caption);
  // The character of the access key in capitals; 0 for none.
  int access_key() const { return access_key_; }
  int cap_align() const { return p_.cap_align; }
  void SetCapAlign(int align);
  int back_style() const { return p_.back_style; }
  void SetBackStyle(int style) { SetNumber(&ButtonProperties::back_style, style, 7); }
  int shape() const { return p_.shape; }
  void SetShape(int shape);
  int gradient() const { return p_.gradient; }
  void SetGradient(int gradient);
  Color cGradient() const { return p_.c_gradient; }
  void SetcGradient(Color color) { SetColor(&ButtonProperties::c_gradient, color); }
  Color cFore() const { return p_.c_fore; }
  void SetcFore(Color color) { SetColor(&ButtonProperties::c_fore, color); }
  Color cBack() const { return p_.c_back; }
  void SetcBack(Color color) { SetColor(&ButtonProperties::c_back, color); }
  Color cFHover() const { return p_.c_fore_hover; }
  void SetcFHover(Color color) { Change(p_.c_fore_hover, color); }
  Color cBHover() const { return p_.c_back_hover; }
  void SetcBHover(Color color) { Change(p_.c_back_hover, color); }
  int lock_hover() const { return p_.lock_hover; }
  void SetLockHover(int lock);
  const Font& font() const { return p_.font; }
  void SetFont(Font font) { Change(p_.font, std::move(font)); }
  bool focus() const { return p_.focus; }
  void SetFocusRect(bool focus);
  int mode() const { return p_.mode; }
  void SetMode(int mode);
  // Only check and option buttons have one. An option button that is switched on switches off the
  // others on its panel, and none of them clicks.
  bool value() const { return p_.value; }
  void SetValue(bool value);
  int custom_click() const { return p_.custom_click; }
  void SetCustomClick(int effect);
  const std::string& image() const { return p_.image; }
  void SetImage(std::string path);
  // By index: 0 to 4 are 16, 24, 32, 40 and 48 pixels.
  int img_size() const { return p_.img_size / 8 - 2; }
  void SetImgSize(int index);
  int img_align() const { return p_.img_align; }
  void SetImgAlign(int align);
  bool enabled() const { return p_.enabled; }
  void SetEnabled(bool enabled);
  int cap_style() const { return p_.cap_style; }
  void SetCapStyle(int style) { SetNumber(&ButtonProperties::cap_style, style, 2); }
  // The picture shows where the pointer is MouseShape::kIcon.
  const std::string& mouse_icon() const { return p_.mouse_icon; }
  void SetMouseIcon(std::string path) { p_.mouse_icon = std::move(path); }
  int mouse_pointer() const { return p_.mouse_pointer; }
  void SetMousePointer(int pointer) { p_.mouse_pointer = pointer; }

  // The names by which the skins call them.
  void SetButtonShape(int shape) { SetShape(shape); }
  void SetFontStyle(int style) { SetCapStyle(style); }
  void SetForeColor(Color color) { SetcFore(color); }
  void SetBackColor(Color color) { SetcBack(color); }
  const std::string& picture() const { return image(); }
  void SetPicture(std::string path) { SetImage(std::move(path)); }
  void SetShowFocusRect(int show) { SetFocusRect(show != 0); }
  void Refresh();
  // Hover colours that no longer follow the others.
  void SetHoverColors(Color fore, Color back);

  // What the bag doesn't hold takes its default; the colour behind the button is its back colour.
  void ReadFrom(const PropertyBag& bag);
  void WriteTo(PropertyBag& bag) const { WriteProperties(kButtonProperties, p_, bag); }

  // True only where a screen is being designed; the messages go to on_message.
  bool design_mode = false;
  std::function<void(const std::string&)> on_message;
  // Enter and Escape, pressed anywhere on the form, click the default and the cancel button.
  void SetDefault(bool is_default) { Change(default_, is_default); }
  void SetCancel(bool is_cancel) { cancel_ = is_cancel; }

  // A handler that sets the key to 0 keeps it from what the button does with it.
  std::function<void(int& key)> on_key_down;
  std::function<void(int& character)> on_key_press;
  std::function<void(int& key)> on_key_up;
  // The mouse has come or gone.
  std::function<void(bool over)> on_mouse_on_button;
  // Something from elsewhere is dragged over the button, or dropped on it. Nothing is ever dragged
  // away from a button.
  std::function<void(DragEvent&)> on_drag_over;
  std::function<void(DragEvent&)> on_drag_drop;

  bool held() const { return held_ != Held::kNot; }
  bool hovered() const { return over_; }

  bool TakesMouse() const override { return true; }
  bool Covers(Point at) const override;
  void MouseDown(const MouseEvent& event) override;
  void MouseMove(const MouseEvent& event) override;
  void MouseUp(const MouseEvent& event, bool inside) override;
  bool ShowsHover() const override { return true; }
  void MouseEnter() override;
  void MouseLeave() override;
  bool DoubleClick() override;
  MouseShape mouse_shape() const override { return {p_.mouse_pointer, p_.mouse_icon}; }
  void DragOver(DragEvent& event) override;
  void DragDrop(DragEvent& event) override;
  bool TakesFocus() const override { return p_.enabled; }
  void KeyDown(int key) override;
  void KeyPress(int character) override;
  void KeyUp(int key) override;
  bool AnswersAccessKey(int key) const override;
  void AccessKey(int key) override;
  void Paint(Canvas& canvas) const override;

 private:
  enum class Held { kNot, kByMouse, kBySpace };

  void SetNumber(int ButtonProperties::*member, int value, int most);
  void SetColor(Color ButtonProperties::*member, Color color);
  void FollowColors();
  void Refuse(const char* message) const;
  bool custom() const;
  void FindAccessKey();
  void TurnOthersOff();
  void Act();
  void Drop();
  const PixelSurface* CutPicture() const;

  ButtonProperties p_;
  int access_key_ = 0;
  bool default_ = false;
  bool cancel_ = false;
  Held held_ = Held::kNot;
  bool over_ = false;
  // The picture of a custom shape, cut; read when it is first needed.
  mutable std::optional<PixelSurface> cut_;
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_LVBUTTONS_H_H_
