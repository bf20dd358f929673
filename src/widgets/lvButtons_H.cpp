#include "widgets/lvButtons_H.h"

#include <algorithm>
#include <cctype>

#include "text/text.h"
#include "widgets/button_look.h"
#include "widgets/button_shapes.h"
#include "widgets/picture_source.h"

namespace sonotik {
namespace {

// A picture larger than this is cut at this size.
constexpr int kMostCutSide = 1024;

bool IsIcon(const std::string& path) {
  const std::string upper = UpperCase(path);
  return upper.ends_with(".ICO") || upper.ends_with(".CUR");
}

bool IsCustom(int shape) { return shape >= shape::kCustomFlat; }

}  // namespace

bool lvButtons_H::custom() const { return IsCustom(p_.shape); }

void lvButtons_H::Refuse(const char* message) const {
  if (design_mode && on_message) on_message(message);
}

void lvButtons_H::SetNumber(int ButtonProperties::*member, int value, int most) {
  if (value >= 0 && value <= most) Change(p_.*member, value);
}

void lvButtons_H::SetColor(Color ButtonProperties::*member, Color color) {
  Change(p_.*member, color);
  FollowColors();
}

// A hover colour that follows is reset each time, so that a skin's colours don't flash back to the
// former ones under the mouse.
void lvButtons_H::FollowColors() {
  if (p_.lock_hover < 2) Change(p_.c_fore_hover, p_.c_fore);
  if (p_.lock_hover % 2 == 0) {
    Change(p_.c_back_hover, p_.gradient != 0 ? p_.c_gradient : p_.c_back);
  }
}

void lvButtons_H::SetCaption(std::string caption) {
  if (!Change(p_.caption, std::move(caption))) return;
  FindAccessKey();
}

// Backwards, passing over pairs.
void lvButtons_H::FindAccessKey() {
  access_key_ = 0;
  const std::string& text = p_.caption;
  for (size_t end = text.size(); end > 0;) {
    const size_t at = text.rfind('&', end - 1);
    if (at == std::string::npos) return;
    if (at > 0 && text[at - 1] == '&') {
      end = at - 1;
      continue;
    }
    if (at + 1 < text.size()) access_key_ = std::toupper(static_cast<unsigned char>(text[at + 1]));
    return;
  }
}

void lvButtons_H::SetCapAlign(int align) {
  if (align < 0 || align > 2) return;
  if (p_.img_align >= image_align::kTop && align != 2) {
    return Refuse(
        "When button images are aligned top/bottom center, \n"
        "button captions can only be center aligned");
  }
  Change(p_.cap_align, align);
}

void lvButtons_H::SetShape(int shape) {
  if (shape < 0 || shape > shape::kCustomRaised) return;
  if (IsCustom(shape) && (p_.image.empty() || IsIcon(p_.image))) {
    return Refuse("The Picture Property must be assigned first and must be a bitmap or JPEG.");
  }
  Change(p_.shape, shape);
  cut_.reset();
}

void lvButtons_H::SetGradient(int gradient) {
  SetNumber(&ButtonProperties::gradient, gradient, 4);
  FollowColors();
}

void lvButtons_H::SetLockHover(int lock) {
  SetNumber(&ButtonProperties::lock_hover, lock, 3);
  FollowColors();
}

void lvButtons_H::SetFocusRect(bool focus) {
  if (focus && default_) {
    return Refuse(
        "The focus rectangle may appear on default buttons ONLY while in design mode, \n"
        "but will not appear when the form is running.");
  }
  Change(p_.focus, focus);
}

void lvButtons_H::SetMode(int mode) {
  const int before = p_.mode;
  SetNumber(&ButtonProperties::mode, mode, kOptionMode);
  if (p_.mode == before) return;
  if (p_.mode == kCommandMode) Change(p_.value, false);
  if (p_.value) TurnOthersOff();
}

void lvButtons_H::SetValue(bool value) {
  if (p_.mode == kCommandMode) {
    return Refuse("This property is not applicable for command button modes.");
  }
  Change(p_.value, value);
  if (value) TurnOthersOff();
}

// The group of an option button is whatever stands on the same panel.
void lvButtons_H::TurnOthersOff() {
  if (p_.mode != kOptionMode || parent() == nullptr) return;
  for (Control* sibling : parent()->children()) {
    auto* const other = dynamic_cast<lvButtons_H*>(sibling);
    if (other != nullptr && other != this && other->p_.mode == kOptionMode) {
      other->Change(other->p_.value, false);
    }
  }
}

void lvButtons_H::SetCustomClick(int effect) {
  if (!custom()) {
    return Refuse("This property has no effect unless the Button Shape is a custom shape.");
  }
  SetNumber(&ButtonProperties::custom_click, effect, 8);
}

void lvButtons_H::SetImage(std::string path) {
  constexpr const char* kNoIcons =
      "Button was changed to Rectangular shaped.\n"
      "Icons cannot be used for custom buttons. Only use bitmaps or JPEGs.";
  if (custom() && IsIcon(path) && !design_mode) return;
  if (custom() && (path.empty() || IsIcon(path))) {
    Change(p_.shape, shape::kRectangle);
    Refuse(kNoIcons);
  }
  if (Change(p_.image, std::move(path))) cut_.reset();
}

void lvButtons_H::SetImgSize(int index) {
  if (custom()) return Refuse("The picture size cannot be changed for Shaped buttons");
  if (index >= 0 && index <= 4) Change(p_.img_size, (index + 2) * 8);
}

void lvButtons_H::SetImgAlign(int align) {
  SetNumber(&ButtonProperties::img_align, align, image_align::kBottom);
  if (p_.img_align >= image_align::kTop) Change(p_.cap_align, 2);
}

void lvButtons_H::SetEnabled(bool enabled) {
  if (!Change(p_.enabled, enabled) || enabled) return;
  Drop();
  MouseLeave();
}

void lvButtons_H::SetHoverColors(Color fore, Color back) {
  SetLockHover(3);
  SetcFHover(fore);
  SetcBHover(back);
}

// The picture's file may be another one by now.
void lvButtons_H::Refresh() {
  cut_.reset();
  Invalidate();
}

void lvButtons_H::ReadFrom(const PropertyBag& bag) {
  p_ = ButtonProperties();
  if (parent() != nullptr) p_.c_back = parent()->back_color();
  ReadProperties(kButtonProperties, p_, bag);
  if (!bag.Read("cBHover")) p_.c_back_hover = p_.c_back;
  p_.img_size -= p_.img_size % 8;
  if (p_.img_align >= image_align::kTop) p_.cap_align = 2;
  if (custom() && (p_.image.empty() || IsIcon(p_.image))) p_.shape = shape::kRectangle;
  FindAccessKey();
  if (p_.value) TurnOthersOff();
  Refresh();
}

bool lvButtons_H::Covers(Point at) const {
  const Rect inner{0, 0, place().width, place().height};
  const PixelSurface* const cut = CutPicture();
  if (cut == nullptr) {
    return Inside(ShapeOutline(p_.shape, inner, CornerRadius(p_.back_style)), at);
  }
  const auto index = [](float place, float length, int pixels) {
    return std::clamp(static_cast<int>(place * static_cast<float>(pixels) / length), 0, pixels - 1);
  };
  const auto x = static_cast<size_t>(index(at.x, inner.width, cut->width));
  const auto y = static_cast<size_t>(index(at.y, inner.height, cut->height));
  return cut->bytes[y * static_cast<size_t>(cut->stride) + x * 4 + 3] != 0;
}

const PixelSurface* lvButtons_H::CutPicture() const {
  const Form* const root = form();
  if (!custom() || root == nullptr || root->pictures == nullptr) return nullptr;
  if (!cut_) {
    cut_ = root->pictures->Pixels(p_.image, kMostCutSide).value_or(PixelSurface());
    if (!cut_->bytes.empty()) CutByCorner(*cut_);
  }
  return cut_->bytes.empty() ? nullptr : &*cut_;
}

void lvButtons_H::Paint(Canvas& canvas) const {
  PaintButton(canvas, {p_,
                       {0, 0, place().width, place().height},
                       over_ || held_ == Held::kBySpace,
                       held(),
                       focused() && p_.focus && !default_,
                       CutPicture()});
}

}  // namespace sonotik
