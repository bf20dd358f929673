#include "widgets/controls.h"

#include <algorithm>
#include <cctype>

namespace sonotik {
namespace {

// Between the edge of a plate and its text.
constexpr float kPlateMargin = 8;

// A field of a record comes with all its blanks, and where a text wraps they would take a line of
// their own.
std::string WithoutBlanksAtLineEnds(const std::string& text) {
  std::string kept;
  for (const char character : text) {
    if (character == '\n') kept.resize(kept.find_last_not_of(' ') + 1);
    kept += character;
  }
  kept.resize(kept.find_last_not_of(' ') + 1);
  return kept;
}

}  // namespace

std::string CaptionAsShown(const std::string& caption) {
  std::string shown;
  for (size_t i = 0; i < caption.size(); ++i) {
    const char next = i + 1 < caption.size() ? caption[i + 1] : ' ';
    if (caption[i] == '&' && next == '&') {
      shown += '&';
      ++i;
    } else if (caption[i] != '&' || !std::isalnum(static_cast<unsigned char>(next))) {
      shown += caption[i];
    }
  }
  return shown;
}

void Label::SetPlate(std::optional<Color> color) {
  if (color) Change(margin_, kPlateMargin);
  Change(plate_, color);
}

void Label::Paint(Canvas& canvas) const {
  const Rect inner{0, 0, place().width, place().height};
  if (highlighted_ || plate_) canvas.FillRect(inner, highlighted_ ? back_color_ : *plate_, 4);
  if (caption_.empty()) return;
  std::string shown = CaptionAsShown(caption_);
  if (style_.wrap) shown = WithoutBlanksAtLineEnds(shown);
  canvas.DrawText(shown, {margin_, 0, inner.width - 2 * margin_, inner.height}, style_);
}

void PictureBox::Paint(Canvas& canvas) const {
  if (picture_.empty()) return;
  canvas.DrawPicture(picture_, {0, 0, place().width, place().height}, fit_);
}

void ProgressBar::SetColors(Color back, Color fill) {
  Change(back_, back);
  Change(fill_, fill);
}

void ProgressBar::Paint(Canvas& canvas) const {
  canvas.FillRect({0, 0, place().width, place().height}, back_);
  if (max_ <= 0) return;
  const float share = std::clamp(static_cast<float>(value_) / static_cast<float>(max_), 0.0F, 1.0F);
  canvas.FillRect({0, 0, place().width * share, place().height}, fill_);
}

void VideoBox::SetPixels(const PixelSurface* pixels, std::optional<Rect> part) {
  Change(pixels_, pixels);
  Change(part_, part);
}

void VideoBox::Paint(Canvas& canvas) const {
  const Rect inner{0, 0, place().width, place().height};
  canvas.FillRect(inner, Rgb(0, 0, 0));
  if (pixels_ != nullptr && !pixels_->bytes.empty())
    canvas.DrawPixels(*pixels_, part_.value_or(inner));
}

}  // namespace sonotik
