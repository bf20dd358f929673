#include "widgets/control.h"

#include <algorithm>

namespace sonotik {

Control::~Control() {
  if (parent_ == nullptr) return;
  if (Form* root = form()) root->Forget(this);
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
  if (visible) region_.reset();
  Invalidate();
  ShowingChanged();
}

void Control::SetRegion(std::optional<Region> region) {
  const Region whole{{0, 0, place_.width, place_.height}};
  const Region before = region_.value_or(whole);
  const Region after = region.value_or(whole);
  region_ = std::move(region);
  // Only what comes or goes.
  for (const Rect& part : Without(after, before)) Invalidate(part);
  for (const Rect& part : Without(before, after)) Invalidate(part);
}

bool Control::showing() const {
  for (const Control* control = this; control != nullptr; control = control->parent_) {
    if (!control->visible_) return false;
  }
  return true;
}

Form* Control::form() const {
  const Control* root = this;
  while (root->parent_ != nullptr) root = root->parent_;
  return const_cast<Form*>(dynamic_cast<const Form*>(root));
}

bool Control::focused() const {
  const Form* root = form();
  return root != nullptr && root->focus() == this;
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

void Control::Invalidate() { Invalidate({0, 0, place_.width, place_.height}); }

void Control::Invalidate(const Rect& part) {
  Form* root = form();
  if (root == nullptr || !showing()) return;
  Rect shown = part.MovedBy(place_.left, place_.top);
  for (const Control* panel = parent_; panel != nullptr; panel = panel->parent_) {
    shown = shown.Intersected({0, 0, panel->place_.width, panel->place_.height})
                .MovedBy(panel->place_.left, panel->place_.top);
  }
  root->AddDirty(shown);
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

bool Control::DoubleClick() {
  if (!on_double_click) return false;
  on_double_click();
  return true;
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

void Panel::ShowingChanged() {
  for (Control* child : children_) child->ShowingChanged();
}

void Panel::PostKeyDown(const KeyMessage& message) {
  if (Form* root = form()) root->posted_.emplace_back(this, message);
}

Control* Panel::HitTest(Point at) {
  for (auto child = children_.rbegin(); child != children_.rend(); ++child) {
    Control& control = **child;
    if (!control.visible() || !control.place().Contains(at)) continue;
    const Point inner{at.x - control.place().left, at.y - control.place().top};
    if (control.region() &&
        std::none_of(control.region()->begin(), control.region()->end(),
                     [inner](const Rect& part) { return part.Contains(inner); })) {
      continue;
    }
    if (auto* panel = dynamic_cast<Panel*>(&control)) {
      if (Control* hit = panel->HitTest(inner)) return hit;
    } else if (control.TakesMouse() && control.Covers(inner)) {
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
    covered = children_[i]->visible() && children_[i]->opaque() && !children_[i]->region() &&
              children_[i]->place().Contains(visible);
    if (covered) first = i;
  }
  if (!covered && !transparent_) {
    canvas.FillRect(inner, back_color_);
    if (!picture_.empty()) canvas.DrawPicture(picture_, inner, picture_fit_);
  }
  for (size_t i = first; i < children_.size(); ++i) {
    const Control& child = *children_[i];
    if (!child.visible() || child.place().Intersected(visible).empty()) continue;
    if (!child.region()) {
      canvas.Push(child.place());
      child.Paint(canvas);
      canvas.Pop();
      continue;
    }
    for (const Rect& part : *child.region()) {
      if (part.MovedBy(child.place().left, child.place().top).Intersected(visible).empty())
        continue;
      canvas.Push(part.MovedBy(child.place().left, child.place().top));
      canvas.Push({-part.left, -part.top, child.place().width, child.place().height});
      child.Paint(canvas);
      canvas.Pop();
      canvas.Pop();
    }
  }
}

}  // namespace sonotik
