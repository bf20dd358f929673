#include "widgets/Slider.h"

#include <algorithm>
#include <cmath>

#include "widgets/picture_source.h"

namespace sonotik {
namespace {

constexpr float kPlainThumb = 9;  // both ways
constexpr float kPlainKnob = 22;  // as it is drawn, across the track
constexpr float kPlainTrack = 6;

std::optional<Rect> SizeOf(const Control& control, const std::string& picture) {
  const Form* const form = control.form();
  if (picture.empty() || form == nullptr || form->pictures == nullptr) return std::nullopt;
  return form->pictures->SizeOf(picture);
}

}  // namespace

void Slider::SetRange(int min, int max) {
  Change(p_.min, min);
  Change(p_.max, std::max(min, max));
  Change(p_.value, std::clamp(p_.value, p_.min, p_.max));
}

void Slider::SetValue(int value) {
  if (value < p_.min || value > p_.max || pressed_) return;
  Change(p_.value, value);
}

void Slider::SetPosition(int position) { Change(p_.position, position); }

void Slider::SetPictureBack(std::string path) {
  Change(p_.picture_back, std::move(path));
  ResetPictures();
}

void Slider::SetBar(std::string path) {
  Change(p_.bar, std::move(path));
  ResetPictures();
}

void Slider::ResetPictures() {
  if (const auto size = SizeOf(*this, p_.picture_back)) {
    SetPlace({place().left, place().top, size->width, size->height});
  }
  Change(thumb_, SizeOf(*this, p_.bar).value_or(Rect{0, 0, kPlainThumb, kPlainThumb}));
  Invalidate();
}

void Slider::SetColors(Color back, Color fill, Color thumb) {
  Change(track_, back);
  Change(fill_, fill);
  Change(knob_, thumb);
}

void Slider::ReadFrom(const PropertyBag& bag) {
  p_ = SliderProperties();
  ReadProperties(kSliderProperties, p_, bag);
  SetRange(p_.min, p_.max);
  ResetPictures();
}

float Slider::Way() const {
  return std::max(0.0F, (standing() ? place().height : place().width) - ThumbLength());
}

float Slider::ThumbStart() const {
  if (pressed_) return std::clamp(held_at_, 0.0F, Way());
  const double range = static_cast<double>(p_.max) - p_.min;
  // Without a range the thumb stays at the start.
  const double share = range > 0 ? (static_cast<double>(p_.value) - p_.min) / range : 0;
  return static_cast<float>(share * Way());
}

void Slider::TakeValueFromThumb() {
  const double way = Way();
  const double share = way > 0 ? ThumbStart() / way : 0;
  // To the nearest, ties to the even one.
  const double value = std::nearbyint(p_.min + share * (static_cast<double>(p_.max) - p_.min));
  Change(p_.value, static_cast<int>(std::clamp<double>(value, p_.min, p_.max)));
  if (on_scroll) on_scroll(p_.value);
}

Rect Slider::Thumb() const {
  const float at = ThumbStart();
  return standing() ? Rect{(place().width - thumb_.width) / 2, at, thumb_.width, thumb_.height}
                    : Rect{at, (place().height - thumb_.height) / 2, thumb_.width, thumb_.height};
}

void Slider::MouseDown(const MouseEvent& event) {
  if (event.button == MouseButton::kLeft) {
    const float at = Along(event.at);
    held_at_ = ThumbStart();
    dragged_ = false;
    dragging_ = true;
    if (at >= held_at_ && at < held_at_ + ThumbLength()) {
      grip_ = at - held_at_;
    } else if (p_.large_change != 0) {
      dragging_ = false;
      const int64_t step = at < held_at_ ? -int64_t{p_.large_change} : p_.large_change;
      Change(p_.value, static_cast<int>(std::clamp<int64_t>(p_.value + step, p_.min, p_.max)));
      held_at_ = ThumbStart();
    } else {
      grip_ = ThumbLength() / 2;
      held_at_ = at - grip_;
    }
    Change(pressed_, true);
  }
  Control::MouseDown(event);
}

void Slider::MouseMove(const MouseEvent& event) {
  if (dragging_) {
    dragged_ = true;
    Change(held_at_, Along(event.at) - grip_);
    TakeValueFromThumb();
  }
  Control::MouseMove(event);
}

// A press that moved nothing takes the value from the thumb all the same, and says so.
void Slider::MouseUp(const MouseEvent& event, bool inside) {
  if (event.button == MouseButton::kLeft) {
    if (pressed_ && !dragged_) TakeValueFromThumb();
    Change(pressed_, false);
    dragging_ = false;
  }
  Control::MouseUp(event, inside);
}

void Slider::PaintPlain(Canvas& canvas) const {
  const Rect thumb = Thumb();
  const Point middle{thumb.left + thumb.width / 2, thumb.top + thumb.height / 2};
  const float half = kPlainTrack / 2;
  if (standing()) {
    const float x = place().width / 2 - half;
    canvas.FillRect({x, 0, kPlainTrack, place().height}, track_, half);
    canvas.FillRect({x, middle.y, kPlainTrack, place().height - middle.y}, fill_, half);
    canvas.FillRect({middle.x - kPlainKnob / 2, thumb.top, kPlainKnob, thumb.height}, knob_, 4);
  } else {
    const float y = place().height / 2 - half;
    canvas.FillRect({0, y, place().width, kPlainTrack}, track_, half);
    canvas.FillRect({0, y, middle.x, kPlainTrack}, fill_, half);
    canvas.FillRect({thumb.left, middle.y - kPlainKnob / 2, thumb.width, kPlainKnob}, knob_, 4);
  }
}

void Slider::Paint(Canvas& canvas) const {
  if (p_.picture_back.empty() && p_.bar.empty()) return PaintPlain(canvas);
  const Rect inner{0, 0, place().width, place().height};
  const Rect thumb = Thumb();
  if (p_.picture_back.empty()) {
    canvas.FillRect(inner, p_.back_color);
  } else {
    canvas.DrawPicture(p_.picture_back, inner, PictureFit::kStretch);
  }
  if (!p_.picture_progress.empty()) {
    // A standing one fills from its lower end.
    const float middle = standing() ? thumb.top + thumb.height / 2 : thumb.left + thumb.width / 2;
    const Rect part = standing() ? Rect{0, middle, inner.width, inner.height - middle}
                                 : Rect{0, 0, middle, inner.height};
    canvas.Push(part);
    canvas.DrawPicture(p_.picture_progress, inner.MovedBy(-part.left, -part.top),
                       PictureFit::kStretch);
    canvas.Pop();
  }
  const std::string& picture = pressed_ && !p_.bar_down.empty() ? p_.bar_down
                               : over_ && !p_.bar_over.empty()  ? p_.bar_over
                                                                : p_.bar;
  if (picture.empty()) {
    canvas.FillRect(thumb, knob_, 3);
  } else {
    canvas.DrawPicture(picture, thumb, PictureFit::kStretch);
  }
}

}  // namespace sonotik
