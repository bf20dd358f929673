// The plain controls: label, picture, video box, progress bar.
#ifndef SONOTIK_WIDGETS_CONTROLS_H_
#define SONOTIK_WIDGETS_CONTROLS_H_

#include <optional>
#include <string>

#include "widgets/control.h"

namespace sonotik {

// A caption as it shows: "&&" is one "&", and a single one before a letter or digit marks an access
// key and doesn't show.
std::string CaptionAsShown(const std::string& caption);

class Label : public Control {
 public:
  const std::string& caption() const { return caption_; }
  void SetCaption(std::string caption) { Change(caption_, std::move(caption)); }
  Align align() const { return style_.align; }
  Color fore_color() const { return style_.color; }
  void SetForeColor(Color color) { Change(style_.color, color); }
  const Font& font() const { return style_.font; }
  void SetFont(Font font) { Change(style_.font, std::move(font)); }
  void SetAlign(Align align) { Change(style_.align, align); }
  void SetWrap(bool wrap) { Change(style_.wrap, wrap); }
  // The back colour shows only while the label is highlighted: a chosen row.
  Color back_color() const { return back_color_; }
  void SetBackColor(Color color) { Change(back_color_, color); }
  bool highlighted() const { return highlighted_; }
  void SetHighlighted(bool highlighted) { Change(highlighted_, highlighted); }
  // A plate behind the text of a row that isn't highlighted. The text keeps off its edges from then
  // on, also where a skin takes the plate away: a row that lights up must not move its text.
  void SetPlate(std::optional<Color> color);

  void Paint(Canvas& canvas) const override;

 private:
  std::string caption_;
  TextStyle style_;
  Color back_color_ = 0;
  std::optional<Color> plate_;
  float margin_ = 0;
  bool highlighted_ = false;
};

class PictureBox : public Control {
 public:
  // A picture file; empty shows nothing.
  const std::string& picture() const { return picture_; }
  void SetPicture(std::string path) { Change(picture_, std::move(path)); }
  void SetFit(PictureFit fit) { Change(fit_, fit); }

  void Paint(Canvas& canvas) const override;

 private:
  std::string picture_;
  PictureFit fit_ = PictureFit::kCover;
};

// How far a work has come, from 0 to its maximum.
class ProgressBar : public Control {
 public:
  int max() const { return max_; }
  void SetMax(int max) { Change(max_, max); }
  int value() const { return value_; }
  void SetValue(int value) { Change(value_, value); }
  void SetColors(Color back, Color fill);

  void Paint(Canvas& canvas) const override;

 private:
  int max_ = 100;
  int value_ = 0;
  Color back_ = kBlack;
  Color fill_ = kWhite;
};

// Where a video runs: black, and on it whatever the player has rendered last.
class VideoBox : public Control {
 public:
  // Owned by the player; nullptr for none. Whoever renders into it calls Invalidate. They fill the
  // box, or the part of it that is given; that may be larger than the box, which cuts it then.
  void SetPixels(const PixelSurface* pixels, std::optional<Rect> part = std::nullopt);
  bool opaque() const override { return true; }
  void Paint(Canvas& canvas) const override;

 private:
  const PixelSurface* pixels_ = nullptr;
  std::optional<Rect> part_;
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_CONTROLS_H_
