#include "widgets/button_look.h"

#include <algorithm>
#include <array>

#include "text/text.h"
#include "widgets/button_shapes.h"
#include "widgets/controls.h"

namespace sonotik {
namespace {

constexpr float kMargin = 4;  // from the edge to caption and picture
constexpr float kGap = 6;     // from the picture to the caption

// One button being painted: the parts of its background, each by the shape's outline.
class Painting {
 public:
  Painting(Canvas& canvas, const ButtonLook& look)
      : canvas_(canvas),
        look_(look),
        p_(look.properties),
        back_(ShownColor(look.over ? p_.c_back_hover : p_.c_back)),
        down_(look.held || p_.value),
        frame_(std::clamp(look.inner.height * 0.1F, 3.0F, 7.0F)) {}

  void PaintBack();
  void PaintContents();

 private:
  Outline At(float inset) const {
    return ShapeOutline(p_.shape, look_.inner.Inset(inset), CornerRadius(p_.back_style) - inset);
  }
  Brush Downwards(Color top, Color bottom, uint8_t top_alpha = 255,
                  uint8_t bottom_alpha = 255) const {
    const Rect& r = look_.inner;
    return {top, bottom, {r.left, r.top}, {r.left, r.bottom()}, top_alpha, bottom_alpha};
  }
  // The colour of the button, lighter at the top and darker at the bottom by these shares; its own
  // gradient instead if it has one.
  Brush Plate(uint32_t lighter, uint32_t darker) const;
  // A line that catches the light from the top left; swapped if the button is down.
  void Bevel(float inset, float width, uint8_t alpha);
  void PaintStyle();
  void PaintSoft();
  void PaintGlass();
  void PaintBezel();
  void PaintNeon();
  void PaintCaption(const Rect& place, const TextStyle& style, const std::string& text);

  Canvas& canvas_;
  const ButtonLook& look_;
  const ButtonProperties& p_;
  const Color back_;
  const bool down_;
  const float frame_;  // of the bezel
};

Brush Painting::Plate(uint32_t lighter, uint32_t darker) const {
  if (p_.gradient == 0) {
    return Downwards(Mix(back_, kWhite, lighter), Mix(back_, kBlack, darker));
  }
  const Rect& r = look_.inner;
  const Point ends[4][2] = {{{r.left, r.top}, {r.right(), r.top}},
                            {{r.right(), r.top}, {r.left, r.top}},
                            {{r.left, r.top}, {r.left, r.bottom()}},
                            {{r.left, r.bottom()}, {r.left, r.top}}};
  const auto& [start, end] = ends[p_.gradient - 1];
  return {Mix(back_, kBlack, down_ ? 48 : 0), Mix(p_.c_gradient, kBlack, down_ ? 48 : 0), start,
          end};
}

void Painting::Bevel(float inset, float width, uint8_t alpha) {
  const Rect& r = look_.inner;
  // Across the shorter way, or a wide button's edges would be lit only at its ends.
  const float across = std::min(r.width, r.height);
  const Point middle{r.left + r.width / 2, r.top + r.height / 2};
  const Point start{middle.x - across / 4, middle.y - across / 2};
  const Point end{middle.x + across / 4, middle.y + across / 2};
  canvas_.DrawPolygon(At(inset),
                      {down_ ? kBlack : kWhite, down_ ? kWhite : kBlack, start, end, alpha,
                       static_cast<uint8_t>(alpha * 3 / 4)},
                      width);
}

void Painting::PaintSoft() {
  canvas_.FillPolygon(At(0), look_.held && p_.gradient == 0
                                 ? Downwards(Mix(back_, kBlack, 48), Mix(back_, kBlack, 16))
                                 : Plate(28, 40));
  if (p_.value) canvas_.DrawPolygon(At(0.75F), Mix(back_, kWhite, 120), 1.5F);
}

void Painting::PaintGlass() {
  const float middle = look_.inner.top + look_.inner.height * 0.48F;
  canvas_.FillPolygon(At(0), down_ ? Plate(0, 120) : Plate(10, 100));
  // Light from below, through the glass, and the window's reflection on it.
  const Color lit = Mix(p_.gradient == 0 ? back_ : p_.c_gradient, kWhite, 70);
  canvas_.FillPolygon(At(1), Downwards(lit, lit, 0, down_ ? 60 : 170));
  canvas_.FillPolygon(Above(At(1.5F), middle), {kWhite,
                                                kWhite,
                                                {0, look_.inner.top},
                                                {0, middle},
                                                static_cast<uint8_t>(down_ ? 50 : 120),
                                                static_cast<uint8_t>(down_ ? 6 : 24)});
  canvas_.DrawPolygon(At(0.5F), Mix(back_, kBlack, 150), 1);
  canvas_.DrawPolygon(At(1.5F), {kWhite, static_cast<uint8_t>(down_ ? 24 : 56)}, 1);
}

void Painting::PaintBezel() {
  constexpr Color kLight = Rgb(236, 238, 242);
  constexpr Color kDark = Rgb(74, 78, 88);
  canvas_.FillPolygon(At(0), Downwards(Mix(kLight, back_, 40), Mix(kDark, back_, 40)));
  canvas_.DrawPolygon(At(0.5F), Mix(kDark, kBlack, 120), 1);
  canvas_.FillPolygon(At(frame_), down_ ? Plate(0, 90) : Plate(40, 56));
  canvas_.DrawPolygon(At(frame_), Downwards(kBlack, kWhite, 150, 110), 1.5F);
}

void Painting::PaintNeon() {
  const bool lit = look_.over || down_;
  const Color glow = Mix(back_, kWhite, lit ? 120 : 40);
  if (p_.gradient == 0) {
    canvas_.FillPolygon(At(0), lit ? Downwards(Mix(back_, kBlack, 40), Mix(back_, kBlack, 96))
                                   : Downwards(Mix(back_, kBlack, 190), Mix(back_, kBlack, 215)));
  } else {
    canvas_.FillPolygon(At(0), Plate(0, 0));
    canvas_.FillPolygon(At(0), {kBlack, static_cast<uint8_t>(lit ? 70 : 170)});
  }
  // The glow falls off inwards from the tube.
  const int strength = p_.enabled ? 20 : 6;
  for (float width = 12; width > 3; width -= 1.5F) {
    canvas_.DrawPolygon(At(0.5F + width / 2), {glow, static_cast<uint8_t>(strength)}, width);
  }
  canvas_.DrawPolygon(At(2), {glow, static_cast<uint8_t>(p_.enabled ? 255 : 90)}, 2);
}

void Painting::PaintStyle() {
  switch (p_.back_style) {
    case back_style::kFlat:
      canvas_.FillPolygon(At(0), down_ ? Plate(0, 48) : Plate(0, 0));
      if (down_) canvas_.FillPolygon(At(0), {kBlack, 40});
      if (look_.over || down_) canvas_.DrawPolygon(At(0.5F), Mix(back_, kWhite, 110), 1);
      return;
    case back_style::kEtched:
      canvas_.FillPolygon(At(0), down_ ? Plate(0, 40) : Plate(10, 8));
      canvas_.DrawPolygon(At(1.5F), {kWhite, 110}, 1);
      canvas_.DrawPolygon(At(0.5F), Mix(back_, kBlack, 110), 1);
      canvas_.DrawPolygon(At(3.5F), {kBlack, static_cast<uint8_t>(down_ ? 90 : 30)}, 1);
      return;
    case back_style::kSoft:
      return PaintSoft();
    case back_style::kGlass:
      return PaintGlass();
    case back_style::kBezel:
      return PaintBezel();
    case back_style::kSunken:
      canvas_.FillPolygon(At(0), Downwards(Mix(back_, kBlack, down_ ? 130 : 70),
                                           Mix(back_, kBlack, down_ ? 60 : 8)));
      if (p_.gradient != 0) canvas_.FillPolygon(At(2), Plate(0, 0));
      canvas_.DrawPolygon(At(1.5F), Downwards(kBlack, kBlack, 120, 0), 3);
      canvas_.DrawPolygon(At(0.5F), Downwards(kBlack, kWhite, 160, 90), 1);
      return;
    case back_style::kNeon:
      return PaintNeon();
    default:
      canvas_.FillPolygon(At(0), down_ ? Plate(0, 32) : Plate(24, 24));
      Bevel(1.75F, 1.5F, 150);
      canvas_.DrawPolygon(At(0.5F), Mix(back_, kBlack, 150), 1);
  }
}

void Painting::PaintBack() {
  if (look_.cut != nullptr) {
    PixelSurface shown;
    const bool clicked = look_.held && p_.custom_click != 0;
    const bool changed = clicked || p_.shape == shape::kCustomRaised;
    if (changed) shown = *look_.cut;
    if (clicked) ApplyCustomClick(shown, p_.custom_click);
    if (p_.shape == shape::kCustomRaised) RaiseEdges(shown, down_);
    return canvas_.DrawPixels(changed ? shown : *look_.cut, look_.inner);
  }
  PaintStyle();
  // Without hover colours of its own a button still says that the mouse is on it.
  if (look_.over && p_.c_back_hover == p_.c_back && p_.c_fore_hover == p_.c_fore) {
    canvas_.FillPolygon(At(p_.back_style == back_style::kBezel ? frame_ : 0), {kWhite, 28});
  }
}

void Painting::PaintCaption(const Rect& place, const TextStyle& style, const std::string& text) {
  // Letters that stand out or are cut in, lit from the top left.
  if (p_.cap_style != 0 && p_.enabled) {
    TextStyle edge = style;
    const float side = p_.cap_style == 1 ? 1 : -1;
    // On a cut picture there is no plate that could be lit.
    edge.color = look_.cut != nullptr ? style.color : Mix(back_, kWhite, 56);
    canvas_.DrawText(text, place.MovedBy(-0.75F * side, -0.75F * side), edge);
    edge.color = look_.cut != nullptr ? kBlack : Mix(back_, kBlack, 170);
    canvas_.DrawText(text, place.MovedBy(side, side), edge);
  }
  canvas_.DrawText(text, place, style);
}

void Painting::PaintContents() {
  static constexpr std::array kAligns = {Align::kLeft, Align::kRight, Align::kCenter};
  TextStyle style{p_.font, ShownColor(look_.over ? p_.c_fore_hover : p_.c_fore),
                  kAligns[static_cast<size_t>(p_.cap_align)], true};
  const Color plate = p_.back_style == back_style::kNeon ? Mix(back_, kBlack, 190) : back_;
  if (!p_.enabled) style.color = Mix(style.color, plate, 160);
  Rect room = ShapeInside(p_.shape, look_.inner).Inset(kMargin);
  if (p_.back_style == back_style::kBezel) room = room.Inset(frame_ - 1);
  // What stands at an edge keeps off its corners.
  if (p_.cap_align != 2 || (!p_.image.empty() && look_.cut == nullptr)) {
    room = {room.left + 4, room.top, room.width - 8, room.height};
  }
  const std::string text = CaptionAsShown(ReplaceAll(p_.caption, "||", "\n"));

  Rect caption = room;
  if (!p_.image.empty() && look_.cut == nullptr) {
    const float side = std::min({static_cast<float>(p_.img_size), room.width, room.height});
    const bool stacked = p_.img_align >= image_align::kTop;
    const bool behind = p_.img_align == image_align::kRightEdge ||
                        p_.img_align == image_align::kRightOfCaption ||
                        p_.img_align == image_align::kBottom;
    const float taken = text.empty() ? 0 : side + kGap;
    const Rect size = canvas_.MeasureText(text, style, room.width - (stacked ? 0 : taken));
    // Picture and caption as one block: at the edge, or together in the middle.
    const bool at_edge = !stacked && p_.img_align % 2 == 0 && !text.empty();
    const float length = stacked ? room.height : room.width;
    const float block = at_edge ? length
                                : std::min(length, taken + (stacked        ? size.height
                                                            : text.empty() ? side
                                                                           : size.width));
    const float start = (length - (stacked && text.empty() ? side : block)) / 2;
    const float picture = behind ? start + block - side : start;
    const float words = behind ? start : start + taken;
    if (stacked) {
      canvas_.DrawPicture(p_.image,
                          {room.left + (room.width - side) / 2, room.top + picture, side, side},
                          PictureFit::kContain);
      caption = {room.left, room.top + words, room.width, block - taken};
    } else {
      canvas_.DrawPicture(p_.image,
                          {room.left + picture, room.top + (room.height - side) / 2, side, side},
                          PictureFit::kContain);
      caption = {room.left + words, room.top, block - taken, room.height};
    }
  }
  if (!p_.enabled && !p_.image.empty()) canvas_.FillPolygon(At(1), {back_, 120});
  // The caption of a held button moves; in a shape that narrows towards its ends only down, or it
  // would seem to slip off.
  if (look_.held) caption = caption.MovedBy(p_.shape >= shape::kEllipse ? 0 : 1, 1);
  if (!text.empty()) PaintCaption(caption, style, text);
}

}  // namespace

float CornerRadius(int back_style) {
  static constexpr std::array<float, 8> kRadii = {3, 4, 3, 8, 12, 12, 6, 10};
  return kRadii[static_cast<size_t>(back_style)];
}

void PaintButton(Canvas& canvas, const ButtonLook& look) {
  Painting painting(canvas, look);
  painting.PaintBack();
  painting.PaintContents();
  if (look.marked) {
    const ButtonProperties& p = look.properties;
    canvas.DrawPolygon(
        ShapeOutline(p.shape, look.inner.Inset(3.5F), CornerRadius(p.back_style) - 3.5F),
        {ShownColor(p.c_fore), 120}, 1);
  }
}

}  // namespace sonotik
