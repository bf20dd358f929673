// Controls: the state of the screens. A control is a place with a few properties; panels hold
// others; a form is the root of a window. Logic reads and writes them, skins place them, a window
// only paints them and hands in mouse and keys.
#ifndef SONOTIK_WIDGETS_CONTROL_H_
#define SONOTIK_WIDGETS_CONTROL_H_

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "widgets/canvas.h"
#include "widgets/drag.h"
#include "widgets/geometry.h"
#include "widgets/region.h"

namespace sonotik {

class Panel;
class Form;
class PictureSource;

enum class MouseButton { kLeft, kMiddle, kRight };

// A mouse or touch event in the coordinates of the control that gets it.
struct MouseEvent {
  Point at;
  MouseButton button = MouseButton::kLeft;
};

// The keys that controls know by their numbers.
namespace key {
inline constexpr int kEnter = 13;
inline constexpr int kShift = 16;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
}  // namespace key

// How the mouse pointer looks over a control.
struct MouseShape {
  static constexpr int kIcon = 99;
  int pointer = 0;   // 0 is the desktop's own, kIcon the picture; 1 to 15 as windows number them
  std::string icon;  // a picture file
  bool operator==(const MouseShape&) const = default;
};

// A key that a control hands on to the panel around it.
struct KeyMessage {
  int key = 0;
  int repeat = 1;
  int scan_code = 0;
};

class Control {
 public:
  Control() = default;
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  // Relative to the panel that holds the control.
  const Rect& place() const { return place_; }
  void SetPlace(const Rect& place);
  bool visible() const { return visible_; }
  void SetVisible(bool visible);
  // Cuts it to a part of itself, in its own coordinates; nothing given, it is whole. One that comes
  // to show is whole again, whatever it was cut to when it went.
  void SetRegion(std::optional<Region> region);
  const std::optional<Region>& region() const { return region_; }
  Panel* parent() const { return parent_; }
  // True if the control and all panels around it are visible.
  bool showing() const;
  // The form around it; nullptr if it is on none.
  Form* form() const;
  // The place in the form's coordinates.
  Rect AbsolutePlace() const;
  // In front of all its siblings.
  void BringToFront();

  // Has the control painted again, if it shows.
  void Invalidate();
  // The same for a part of it, in its own coordinates.
  void Invalidate(const Rect& part);

  std::function<void()> on_click;
  std::function<void()> on_double_click;
  std::function<void(const MouseEvent&)> on_mouse_down;
  std::function<void(const MouseEvent&)> on_mouse_move;
  std::function<void(const MouseEvent&)> on_mouse_up;

  // True if a mouse press on it is its own; others fall through to what lies below.
  virtual bool TakesMouse() const;
  // True if this point of its place is part of it: a shaped control is smaller than its place.
  virtual bool Covers(Point) const { return true; }
  // What a control does of its own with the mouse, before the handlers above run.
  virtual void MouseDown(const MouseEvent& event);
  virtual void MouseMove(const MouseEvent& event);
  // `inside`: the button was let go over the control, which makes a click of it.
  virtual void MouseUp(const MouseEvent& event, bool inside);
  // True if it looks different under the mouse, and so has to know when the mouse has left.
  virtual bool ShowsHover() const { return false; }
  virtual void MouseEnter() {}
  virtual void MouseLeave() {}
  // False if the second tap is to count as one more press.
  virtual bool DoubleClick();
  virtual MouseShape mouse_shape() const { return {}; }
  // Something is dragged over it, or dropped on it.
  virtual void DragOver(DragEvent&) {}
  virtual void DragDrop(DragEvent&) {}

  // The keyboard belongs to one control at a time, if it wants it.
  virtual bool TakesFocus() const { return false; }
  bool focused() const;
  virtual void KeyDown(int) {}
  virtual void KeyPress(int) {}
  virtual void KeyUp(int) {}
  // True if this key, pressed anywhere on the form, is meant for it; AccessKey then brings it.
  virtual bool AnswersAccessKey(int) const { return false; }
  virtual void AccessKey(int) {}

  // It may have begun or ceased to show, by itself or with a panel around it.
  virtual void ShowingChanged() {}

  // In the control's own coordinates.
  virtual void Paint(Canvas& canvas) const = 0;
  // True if the control covers all of its place.
  virtual bool opaque() const { return false; }

 protected:
  // Stores a property, and has the control painted again only if it really changed.
  template <typename T>
  bool Change(T& property, T value) {
    if (property == value) return false;
    property = std::move(value);
    Invalidate();
    return true;
  }

 private:
  friend class Panel;
  Rect place_;
  bool visible_ = true;
  std::optional<Region> region_;
  Panel* parent_ = nullptr;
};

// Holds other controls, back to front, and paints a colour or a picture behind them.
class Panel : public Control {
 public:
  ~Panel() override;

  // The control is owned elsewhere; it leaves by itself when it ends.
  void Add(Control& child, const Rect& place);
  const std::vector<Control*>& children() const { return children_; }
  void ShowingChanged() override;
  // From a control on it: comes back to the panel once the key at hand is dealt with, and there
  // moves the focus.
  void PostKeyDown(const KeyMessage& message);

  Color back_color() const { return back_color_; }
  void SetBackColor(Color color) { Change(back_color_, color); }
  // No colour and no picture of its own: what lies behind shows through.
  bool transparent() const { return transparent_; }
  void SetTransparent(bool transparent) { Change(transparent_, transparent); }
  const std::string& picture() const { return picture_; }
  void SetPicture(std::string path) { Change(picture_, std::move(path)); }
  void SetPictureFit(PictureFit fit) { Change(picture_fit_, fit); }

  // The topmost visible control at this point that takes the mouse, down through the panels.
  Control* HitTest(Point at);

  bool TakesMouse() const override { return !transparent_ || Control::TakesMouse(); }
  void Paint(Canvas& canvas) const override;
  bool opaque() const override { return !transparent_; }

 private:
  friend class Control;
  std::vector<Control*> children_;
  Color back_color_ = 0;
  bool transparent_ = false;
  std::string picture_;
  PictureFit picture_fit_ = PictureFit::kStretch;
};

// The root of a window: it knows the mouse's capture and hover, the focus, and what has to be
// painted.
class Form : public Panel {
 public:
  const std::string& title() const { return title_; }
  void SetTitle(std::string title) { title_ = std::move(title); }

  // What the window hands in, in the form's coordinates.
  void PressMouse(Point at, MouseButton button = MouseButton::kLeft);
  void MoveMouse(Point at);
  void ReleaseMouse(Point at, MouseButton button = MouseButton::kLeft);
  // Goes to the control of the first press, also if that has put another screen there.
  void DoubleClickMouse(Point at);
  void LeaveMouse();
  // Down and up in one place.
  void Click(Point at);
  // Of the control that has the mouse.
  MouseShape PointerShape() const;

  // Something from elsewhere comes over the form, goes again or is dropped. They give what a drop
  // would do or has done.
  DropEffect DragMouse(Point at, const DragData& data, DropEffect proposed);
  void LeaveDrag();
  DropEffect DropMouse(Point at, const DragData& data, DropEffect proposed);

  // While the mouse is over a control that shows it, the window asks every kHoverTestMs with the
  // mouse's place: a control that went away from under it, or that it left without a word, is left
  // here.
  static constexpr int kHoverTestMs = 50;
  void TestHover(Point at);
  bool hovering() const { return hovered_ != nullptr && hovered_->ShowsHover(); }
  // Told when hovering begins.
  std::function<void()> on_hover;

  // Keys by their numbers, characters by their codes, for the control that has the focus.
  void PressKey(int key);
  void TypeCharacter(int character);
  void ReleaseKey(int key);
  // Enter, Escape, or a letter meant for whatever control has it as its access key. False if none
  // that shows has.
  bool PressAccessKey(int key);
  // The control that has the keyboard while it shows; nullptr for none.
  const Control* focus() const { return focus_; }
  void SetFocus(Control* control);

  // The control that a pressed finger holds; nullptr for none.
  const Control* captured() const { return captured_; }

  // Any press or key: somebody is there.
  std::function<void()> on_input;

  // What has to be painted since the last call.
  std::vector<Rect> TakeDirty() { return std::exchange(dirty_, {}); }
  bool dirty() const { return !dirty_.empty(); }
  // Told when something has to be painted that was not said before.
  std::function<void()> on_dirty;

  // Where its controls find the pictures; nullptr until a window has brought it.
  PictureSource* pictures = nullptr;

 private:
  friend class Control;
  friend class Panel;
  void AddDirty(const Rect& rect);
  void Forget(const Control* control);
  void Hover(Control* control);
  void MoveFocus(const Panel& panel, int arrow);

  std::string title_;
  Control* captured_ = nullptr;
  Control* pressed_ = nullptr;  // the last one
  Control* hovered_ = nullptr;
  Control* focus_ = nullptr;
  Control* dragged_over_ = nullptr;
  std::vector<std::pair<Panel*, KeyMessage>> posted_;
  std::vector<Rect> dirty_;
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_CONTROL_H_
