#include "widgets/control.h"

#include <algorithm>

namespace sonotik {
namespace {

// More dirty places than this are painted as one that holds them all.
constexpr size_t kMostDirtyRects = 16;

Form* FormOf(const Control* control) {
  while (control->parent() != nullptr) control = control->parent();
  return const_cast<Form*>(dynamic_cast<const Form*>(control));
}

}  // namespace

Control::~Control() {
  if (parent_ == nullptr) return;
  if (Form* form = FormOf(this)) form->Forget(this);
  std::erase(parent_->children_, this);
}

void Control::SetPlace(const Rect& place) {
  if (place_ == place) return;
  Invalidate();
  place_ = place;
  Invalidate();
}

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  Invalidate();
  visible_ = visible;
  Invalidate();
}

bool Control::showing() const {
  for (const Control* control = this; control != nullptr; control = control->parent_) {
    if (!control->visible_) return false;
  }
  return true;
}

Rect Control::AbsolutePlace() const {
  Rect place = place_;
  for (const Control* panel = parent_; panel != nullptr; panel = panel->parent_) {
    place = place.MovedBy(panel->place_.left, panel->place_.top);
  }
  return place;
}

void Control::BringToFront() {
  if (parent_ == nullptr || parent_->children_.back() == this) return;
  std::erase(parent_->children_, this);
  parent_->children_.push_back(this);
  Invalidate();
}

void Control::Invalidate() {
  Form* form = FormOf(this);
  if (form == nullptr || !showing()) return;
  Rect shown = place_;
  for (const Control* panel = parent_; panel != nullptr; panel = panel->parent_) {
    shown = shown.Intersected({0, 0, panel->place_.width, panel->place_.height})
                .MovedBy(panel->place_.left, panel->place_.top);
  }
  form->AddDirty(shown);
}

bool Control::TakesMouse() const {
  return on_click || on_double_click || on_mouse_down || on_mouse_move || on_mouse_up;
}

void Control::MouseDown(const MouseEvent& event) {
  if (on_mouse_down) on_mouse_down(event);
}

void Control::MouseMove(const MouseEvent& event) {
  if (on_mouse_move) on_mouse_move(event);
}

void Control::MouseUp(const MouseEvent& event, bool inside) {
  if (on_mouse_up) on_mouse_up(event);
  if (inside && event.button == MouseButton::kLeft && on_click) on_click();
}

Panel::~Panel() {
  for (Control* child : children_) child->parent_ = nullptr;
}

void Panel::Add(Control& child, const Rect& place) {
  child.parent_ = this;
  child.place_ = place;
  children_.push_back(&child);
  child.Invalidate();
}

Control* Panel::HitTest(Point at) {
  for (auto child = children_.rbegin(); child != children_.rend(); ++child) {
    Control& control = **child;
    if (!control.visible() || !control.place().Contains(at)) continue;
    if (auto* panel = dynamic_cast<Panel*>(&control)) {
      if (Control* hit = panel->HitTest({at.x - panel->place().left, at.y - panel->place().top})) {
        return hit;
      }
    } else if (control.TakesMouse()) {
      return &control;
    }
  }
  return TakesMouse() ? this : nullptr;
}

void Panel::Paint(Canvas& canvas) const {
  const Rect inner{0, 0, place().width, place().height};
  const Rect visible = canvas.Visible();
  // Whatever lies behind a covering control needs no paint.
  size_t first = 0;
  bool covered = false;
  for (size_t i = children_.size(); i-- > 0 && !covered;) {
    covered = children_[i]->visible() && children_[i]->opaque() &&
              children_[i]->place().Contains(visible);
    if (covered) first = i;
  }
  if (!covered && !transparent_) {
    canvas.FillRect(inner, back_color_);
    if (!picture_.empty()) canvas.DrawPicture(picture_, inner, PictureFit::kStretch);
  }
  for (size_t i = first; i < children_.size(); ++i) {
    const Control& child = *children_[i];
    if (!child.visible() || child.place().Intersected(visible).empty()) continue;
    canvas.Push(child.place());
    child.Paint(canvas);
    canvas.Pop();
  }
}

void Form::PressMouse(Point at, MouseButton button) {
  if (on_input) on_input();
  Hover(HitTest(at));
  captured_ = pressed_ = hovered_;
  if (captured_ == nullptr) return;
  const Rect place = captured_->AbsolutePlace();
  captured_->MouseDown({{at.x - place.left, at.y - place.top}, button});
}

void Form::MoveMouse(Point at) {
  Control* target = captured_;
  if (target == nullptr) Hover(target = HitTest(at));
  if (target == nullptr) return;
  const Rect place = target->AbsolutePlace();
  target->MouseMove({{at.x - place.left, at.y - place.top}, MouseButton::kLeft});
}

void Form::ReleaseMouse(Point at, MouseButton button) {
  Control* const target = std::exchange(captured_, nullptr);
  if (target == nullptr) return;
  const Rect place = target->AbsolutePlace();
  const bool inside = target->showing() && place.Contains(at);
  target->MouseUp({{at.x - place.left, at.y - place.top}, button}, inside);
  // The handler may have put another screen under the finger.
  Hover(HitTest(at));
}

void Form::DoubleClickMouse(Point at) {
  if (on_input) on_input();
  if (pressed_ != nullptr && pressed_->on_double_click) return pressed_->on_double_click();
  // Without a use for a double click it is the second of two clicks.
  PressMouse(at);
}

void Form::LeaveMouse() { Hover(nullptr); }

void Form::Click(Point at) {
  PressMouse(at);
  ReleaseMouse(at);
}

void Form::Hover(Control* control) {
  if (hovered_ == control) return;
  Control* const left = std::exchange(hovered_, control);
  if (left != nullptr) left->MouseLeave();
  if (hovered_ != nullptr) hovered_->MouseEnter();
}

void Form::Forget(const Control* control) {
  if (captured_ == control) captured_ = nullptr;
  if (pressed_ == control) pressed_ = nullptr;
  if (hovered_ == control) hovered_ = nullptr;
}

void Form::AddDirty(const Rect& rect) {
  if (rect.empty()) return;
  for (const Rect& known : dirty_) {
    if (known.Contains(rect)) return;
  }
  std::erase_if(dirty_, [&](const Rect& known) { return rect.Contains(known); });
  dirty_.push_back(rect);
  if (dirty_.size() > kMostDirtyRects) {
    Rect all;
    for (const Rect& known : dirty_) all = all.United(known);
    dirty_ = {all};
  }
  if (on_dirty) on_dirty();
}

}  // namespace sonotik
