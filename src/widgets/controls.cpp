#include "widgets/controls.h"

#include <cctype>

namespace sonotik {

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

void Label::Paint(Canvas& canvas) const {
  const Rect inner{0, 0, place().width, place().height};
  if (filled_) canvas.FillRect(inner, back_color_, 4);
  if (!caption_.empty()) canvas.DrawText(CaptionAsShown(caption_), inner, style_);
}

void PictureBox::Paint(Canvas& canvas) const {
  if (picture_.empty()) return;
  canvas.DrawPicture(picture_, {0, 0, place().width, place().height}, fit_);
}

void VideoBox::SetPixels(const PixelSurface* pixels) { Change(pixels_, pixels); }

void VideoBox::Paint(Canvas& canvas) const {
  const Rect inner{0, 0, place().width, place().height};
  canvas.FillRect(inner, Rgb(0, 0, 0));
  if (pixels_ != nullptr && !pixels_->bytes.empty()) canvas.DrawPixels(*pixels_, inner);
}

}  // namespace sonotik
