#include "widgets/OptionField.h"

#include <array>

namespace sonotik {
namespace {

constexpr float kRadius = 6;
constexpr float kMargin = 12;
// Shares of the field's height: the mark, the line of the caption above a value, and the arrow.
constexpr float kMarkShare = 0.52F;
constexpr float kCaptionShare = 0.46F;
constexpr float kArrow = 14;
constexpr float kCaptionPoints = 0.82F;
constexpr uint32_t kHoverShare = 40;
constexpr uint32_t kCommandShare = 90;

}  // namespace

float OptionField::HeightOf(OptionKind kind) {
  switch (kind) {
    case OptionKind::kCheck:
    case OptionKind::kChoice:
      return 48;
    case OptionKind::kSlider:
      return 84;
    default:
      return 56;
  }
}

Rect OptionField::SliderPlace(const Rect& field) {
  const float top = field.height * 0.4F;
  return {field.left + kMargin, field.top + top, field.width - 2 * kMargin, field.height - top - 2};
}

void OptionField::Paint(Canvas& canvas) const {
  const Rect inner{0, 0, place().width, place().height};
  Color plate = colors_.plate;
  if (kind_ == OptionKind::kKey && checked_) plate = colors_.accent;
  if (kind_ == OptionKind::kCommand) plate = Mix(plate, colors_.accent, kCommandShare);
  if (over_) plate = Mix(plate, colors_.accent, kHoverShare);
  canvas.FillRect(inner, plate, kRadius);
  const Color ink = enabled_ ? colors_.text : colors_.muted;
  if (kind_ == OptionKind::kCommand || kind_ == OptionKind::kKey) {
    const bool bold = kind_ == OptionKind::kCommand;
    const Color color = kind_ == OptionKind::kKey && checked_ ? colors_.plate : ink;
    return canvas.DrawText(caption_, inner.Inset(4),
                           {{font_.family, font_.points, bold}, color, Align::kCenter, true});
  }
  if (kind_ != OptionKind::kCheck && kind_ != OptionKind::kChoice) {
    return PaintCaptionAndValue(canvas);
  }
  const float side = inner.height * kMarkShare;
  PaintMark(canvas, {kMargin, (inner.height - side) / 2, side, side});
  const float left = 2 * kMargin + side;
  canvas.DrawText(caption_, {left, 0, inner.width - left - 4, inner.height},
                  {font_, ink, Align::kLeft, true});
}

void OptionField::PaintMark(Canvas& canvas, const Rect& mark) const {
  const bool round = kind_ == OptionKind::kChoice;
  const float radius = round ? mark.width / 2 : 4;
  const Color edge = enabled_ ? colors_.accent : colors_.muted;
  canvas.DrawRect(mark, checked_ ? edge : colors_.muted, 2, radius);
  if (!checked_) return;
  if (round) {
    const Rect dot = mark.Inset(mark.width * 0.27F);
    return canvas.FillRect(dot, edge, dot.width / 2);
  }
  canvas.FillRect(mark, edge, radius);
  const auto at = [&](float x, float y) {
    return Point{mark.left + mark.width * x, mark.top + mark.height * y};
  };
  const std::array<Point, 6> tick = {at(0.2F, 0.52F),  at(0.31F, 0.41F), at(0.43F, 0.55F),
                                     at(0.71F, 0.24F), at(0.82F, 0.35F), at(0.43F, 0.78F)};
  canvas.FillPolygon(tick, colors_.plate);
}

void OptionField::PaintCaptionAndValue(Canvas& canvas) const {
  const float width = place().width, height = place().height;
  const Color ink = enabled_ ? colors_.text : colors_.muted;
  const Font small{font_.family, font_.points * kCaptionPoints, false};
  if (kind_ == OptionKind::kSlider) {
    canvas.DrawText(caption_, {kMargin, 0, width * 0.7F, height * 0.42F}, {small, colors_.muted});
    canvas.DrawText(value_, {width * 0.7F, 0, width * 0.3F - kMargin, height * 0.42F},
                    {small, ink, Align::kRight});
    return;
  }
  const float line = height * kCaptionShare;
  canvas.DrawText(caption_, {kMargin, 2, width - 2 * kMargin, line}, {small, colors_.muted});
  canvas.DrawText(value_, {kMargin, line, width - 3 * kMargin - kArrow, height - line - 4},
                  {font_, ink});
  const float left = width - kMargin - kArrow, middle = line + (height - line) / 2 - 2;
  if (kind_ == OptionKind::kList || kind_ == OptionKind::kFolder) {
    const std::array<Point, 3> arrow = {Point{left, middle - kArrow / 4},
                                        Point{left + kArrow, middle - kArrow / 4},
                                        Point{left + kArrow / 2, middle + kArrow / 3}};
    canvas.FillPolygon(arrow, colors_.accent);
  } else {
    canvas.FillRect({kMargin, height - 5, width - 2 * kMargin, 2}, colors_.accent);
  }
}

}  // namespace sonotik
