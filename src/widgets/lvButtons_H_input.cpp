// What a button does with mouse and keys.
#include <cctype>

#include "widgets/lvButtons_H.h"

namespace sonotik {
namespace {

// What the machine calls the arrow keys, from left to down.
constexpr int kArrowScanCodes[] = {0x4B, 0x48, 0x4D, 0x50};

bool IsArrow(int key) { return key >= key::kLeft && key <= key::kDown; }

}  // namespace

void lvButtons_H::MouseDown(const MouseEvent& event) {
  if (!p_.enabled) return;
  if (event.button == MouseButton::kLeft) Change(held_, Held::kByMouse);
  Control::MouseDown(event);
}

void lvButtons_H::MouseMove(const MouseEvent& event) {
  if (p_.enabled) Control::MouseMove(event);
}

void lvButtons_H::MouseUp(const MouseEvent& event, bool inside) {
  if (!p_.enabled) return Drop();
  const bool pressed = event.button == MouseButton::kLeft && held_ == Held::kByMouse;
  if (pressed) Drop();
  if (on_mouse_up) on_mouse_up(event);
  if (pressed && inside) Act();
}

void lvButtons_H::Drop() { Change(held_, Held::kNot); }

// A click, of whatever kind.
void lvButtons_H::Act() {
  // An option button that is on stays on, and that is no click.
  if (p_.mode == kOptionMode && p_.value) return;
  if (p_.mode != kCommandMode) SetValue(!p_.value);
  if (on_click) on_click();
}

bool lvButtons_H::DoubleClick() {
  if (p_.enabled && on_double_click) on_double_click();
  return false;
}

void lvButtons_H::MouseEnter() {
  if (!p_.enabled || !Change(over_, true)) return;
  if (on_mouse_on_button) on_mouse_on_button(true);
}

void lvButtons_H::MouseLeave() {
  if (Change(over_, false) && on_mouse_on_button) on_mouse_on_button(false);
}

void lvButtons_H::DragOver(DragEvent& event) {
  if (p_.enabled && on_drag_over) on_drag_over(event);
}

void lvButtons_H::DragDrop(DragEvent& event) {
  if (p_.enabled && on_drag_drop) on_drag_drop(event);
}

void lvButtons_H::KeyDown(int key) {
  if (!p_.enabled) return;
  if (IsArrow(key)) {
    // The panel moves the focus; the button itself knows no arrows.
    if (parent() != nullptr) parent()->PostKeyDown({key, 1, kArrowScanCodes[key - key::kLeft]});
    return;
  }
  if (on_key_down) on_key_down(key);
  if (key == key::kSpace && held_ == Held::kNot) Change(held_, Held::kBySpace);
}

void lvButtons_H::KeyPress(int character) {
  if (p_.enabled && on_key_press) on_key_press(character);
}

void lvButtons_H::KeyUp(int key) {
  if (!p_.enabled || key == key::kShift) return;
  if (key == key::kSpace && held_ == Held::kBySpace) {
    Drop();
    // A command button keeps this key to itself.
    if (p_.mode != kCommandMode && on_key_up) on_key_up(key);
    return Act();
  }
  // The focus has come by this arrow: the option is chosen with it.
  if (IsArrow(key) && p_.mode == kOptionMode && held_ == Held::kNot) return Act();
  if (on_key_up) on_key_up(key);
}

bool lvButtons_H::AnswersAccessKey(int key) const {
  if (!p_.enabled) return false;
  if (key == key::kEnter) return default_;
  if (key == key::kEscape) return cancel_;
  return key > 0 && key < 256 && std::toupper(key) == access_key_;
}

void lvButtons_H::AccessKey(int key) {
  if (p_.mode != kCommandMode && (key == key::kEnter || key == key::kEscape)) return;
  Act();
}

}  // namespace sonotik
