#include "widgets/lvButtons_H.h"

#include "text/text.h"
#include "widgets/controls.h"

namespace sonotik {
namespace {

constexpr Color kBlack = Rgb(0, 0, 0);
constexpr Color kWhite = Rgb(255, 255, 255);
constexpr float kRadius = 8;

// `share` of 0 is all of a, 256 all of b.
Color Mix(Color a, Color b, uint32_t share) {
  Color mixed = 0;
  for (int shift = 0; shift <= 16; shift += 8) {
    const uint32_t from = a >> shift & 255;
    const uint32_t to = b >> shift & 255;
    mixed |= (from * (256 - share) + to * share) / 256 << shift;
  }
  return mixed;
}

}  // namespace

lvButtons_H::lvButtons_H()
    : back_color_(Rgb(64, 64, 64)), hover_fore_(kWhite), hover_back_(Rgb(90, 90, 90)) {
  style_.color = kWhite;
  style_.align = Align::kCenter;
  style_.wrap = true;
}

void lvButtons_H::SetHoverColors(Color fore, Color back) {
  Change(hover_fore_, fore);
  Change(hover_back_, back);
}

void lvButtons_H::MouseDown(const MouseEvent& event) {
  if (event.button == MouseButton::kLeft && enabled_) Change(held_, true);
  Control::MouseDown(event);
}

void lvButtons_H::MouseUp(const MouseEvent& event, bool inside) {
  const bool was_held = held_;
  Change(held_, false);
  Control::MouseUp(event, inside && was_held);
}

void lvButtons_H::Paint(Canvas& canvas) const {
  const Rect inner{0, 0, place().width, place().height};
  const bool lit = over_ || value_;
  const Color back = lit ? hover_back_ : back_color_;
  canvas.FillGradient(inner, Mix(back, held_ ? kBlack : kWhite, held_ ? 48 : 28),
                      Mix(back, kBlack, held_ ? 16 : 40), kRadius);
  if (value_) canvas.DrawRect(inner, Mix(back, kWhite, 96), 1, kRadius);
  Rect text = inner.Inset(4);
  if (!picture_.empty()) {
    const float side = std::min(text.height, text.width);
    canvas.DrawPicture(picture_, {text.left, text.top, side, side}, PictureFit::kContain);
    text = {text.left + side + 4, text.top, text.width - side - 4, text.height};
  }
  TextStyle style = style_;
  style.color = lit ? hover_fore_ : style_.color;
  if (!enabled_) style.color = Mix(style.color, back, 160);
  if (held_) text = text.MovedBy(1, 1);
  canvas.DrawText(CaptionAsShown(ReplaceAll(caption_, "||", "\n")), text, style);
}

}  // namespace sonotik
