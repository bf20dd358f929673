#include <algorithm>

#include "widgets/control.h"

namespace sonotik {
namespace {

// More dirty places than this are painted as one that holds them all.
constexpr size_t kMostDirtyRects = 16;

// A place on the form in the control's own coordinates.
Point Within(const Control& control, Point at) {
  const Rect place = control.AbsolutePlace();
  return {at.x - place.left, at.y - place.top};
}

}  // namespace

void Form::PressMouse(Point at, MouseButton button) {
  if (on_input) on_input();
  Hover(HitTest(at));
  captured_ = pressed_ = hovered_;
  if (captured_ == nullptr) return;
  if (captured_->TakesFocus()) SetFocus(captured_);
  captured_->MouseDown({Within(*captured_, at), button});
}

void Form::MoveMouse(Point at) {
  Control* const under = HitTest(at);
  // A control that is held sees all of the mouse, and nothing else lights up meanwhile.
  Hover(captured_ == nullptr || captured_ == under ? under : nullptr);
  Control* const target = captured_ != nullptr ? captured_ : under;
  if (target != nullptr) target->MouseMove({Within(*target, at), MouseButton::kLeft});
}

void Form::ReleaseMouse(Point at, MouseButton button) {
  Control* const target = std::exchange(captured_, nullptr);
  if (target == nullptr) return;
  const Point inner = Within(*target, at);
  const bool inside =
      target->showing() && target->AbsolutePlace().Contains(at) && target->Covers(inner);
  target->MouseUp({inner, button}, inside);
  // The handler may have put another screen under the finger.
  Hover(HitTest(at));
}

void Form::DoubleClickMouse(Point at) {
  if (on_input) on_input();
  if (pressed_ != nullptr && pressed_->DoubleClick()) return;
  // Without a use for a double click it is the second of two clicks.
  PressMouse(at);
}

void Form::LeaveMouse() { Hover(nullptr); }

void Form::TestHover(Point at) {
  if (hovered_ != nullptr && HitTest(at) != hovered_) Hover(nullptr);
}

void Form::Click(Point at) {
  PressMouse(at);
  ReleaseMouse(at);
}

MouseShape Form::PointerShape() const {
  const Control* const control = captured_ != nullptr ? captured_ : hovered_;
  return control != nullptr ? control->mouse_shape() : MouseShape();
}

DropEffect Form::DragMouse(Point at, const DragData& data, DropEffect proposed) {
  Control* const under = HitTest(at);
  const bool same = under == dragged_over_;
  if (!same) LeaveDrag();
  dragged_over_ = under;
  if (under == nullptr) return DropEffect::kNone;
  DragEvent event{data, Within(*under, at), same ? DragState::kOver : DragState::kEnter, proposed};
  under->DragOver(event);
  return event.effect;
}

void Form::LeaveDrag() {
  Control* const left = std::exchange(dragged_over_, nullptr);
  if (left == nullptr) return;
  const DragData nothing;
  DragEvent event{nothing, {}, DragState::kLeave};
  left->DragOver(event);
}

DropEffect Form::DropMouse(Point at, const DragData& data, DropEffect proposed) {
  dragged_over_ = nullptr;
  Control* const under = HitTest(at);
  if (under == nullptr) return DropEffect::kNone;
  DragEvent event{data, Within(*under, at), DragState::kOver, proposed};
  under->DragDrop(event);
  return event.effect;
}

void Form::Hover(Control* control) {
  if (hovered_ == control) return;
  Control* const left = std::exchange(hovered_, control);
  if (left != nullptr) left->MouseLeave();
  if (hovered_ != nullptr) hovered_->MouseEnter();
  if (hovering() && on_hover) on_hover();
}

void Form::SetFocus(Control* control) {
  if (focus_ == control) return;
  Control* const before = std::exchange(focus_, control);
  if (before != nullptr) before->Invalidate();
  if (focus_ != nullptr) focus_->Invalidate();
}

void Form::PressKey(int key) {
  if (on_input) on_input();
  if (focus_ != nullptr && focus_->showing()) focus_->KeyDown(key);
  for (const auto& [panel, message] : std::exchange(posted_, {})) MoveFocus(*panel, message.key);
}

void Form::TypeCharacter(int character) {
  if (focus_ != nullptr && focus_->showing()) focus_->KeyPress(character);
}

void Form::ReleaseKey(int key) {
  if (focus_ != nullptr && focus_->showing()) focus_->KeyUp(key);
}

bool Form::PressAccessKey(int key) {
  if (on_input) on_input();
  const auto find = [key](const Panel& panel, const auto& within) -> Control* {
    for (Control* child : panel.children()) {
      if (!child->visible()) continue;
      if (child->AnswersAccessKey(key)) return child;
      const auto* inner = dynamic_cast<const Panel*>(child);
      Control* const found = inner != nullptr ? within(*inner, within) : nullptr;
      if (found != nullptr) return found;
    }
    return nullptr;
  };
  Control* const meant = find(*this, find);
  if (meant != nullptr) meant->AccessKey(key);
  return meant != nullptr;
}

// To the next or the former neighbour on the panel, around its ends.
void Form::MoveFocus(const Panel& panel, int arrow) {
  std::vector<Control*> neighbours;
  for (Control* child : panel.children()) {
    if (child == focus_ || (child->visible() && child->TakesFocus())) neighbours.push_back(child);
  }
  const auto at = std::find(neighbours.begin(), neighbours.end(), focus_);
  if (at == neighbours.end()) return;
  const bool back = arrow == key::kLeft || arrow == key::kUp;
  const size_t step = back ? neighbours.size() - 1 : 1;
  const auto index = static_cast<size_t>(at - neighbours.begin());
  SetFocus(neighbours[(index + step) % neighbours.size()]);
}

void Form::Forget(const Control* control) {
  if (captured_ == control) captured_ = nullptr;
  if (pressed_ == control) pressed_ = nullptr;
  if (hovered_ == control) hovered_ = nullptr;
  if (focus_ == control) focus_ = nullptr;
  if (dragged_over_ == control) dragged_over_ = nullptr;
  std::erase_if(posted_, [&](const auto& post) { return post.first == control; });
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
