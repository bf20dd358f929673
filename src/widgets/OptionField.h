// One setting as a finger sees it: a plate with its caption, and by its kind a mark, a value that
// opens a list or a keyboard, or room for a slider.
#ifndef SONOTIK_WIDGETS_OPTIONFIELD_H_
#define SONOTIK_WIDGETS_OPTIONFIELD_H_

#include <string>

#include "widgets/control.h"

namespace sonotik {

enum class OptionKind {
  kCheck,
  kChoice,  // one of a group
  kList,
  kText,
  kNumber,
  kPin,
  kFolder,
  kSlider,  // lies below its caption, as a control of its own
  kCommand,
  kKey,  // of a keyboard, a calendar or a list: its caption alone, marked where it is checked
};

struct OptionColors {
  Color text = kBlack;
  Color muted = kBlack;
  Color accent = kBlack;
  Color plate = kWhite;
  bool operator==(const OptionColors&) const = default;
};

class OptionField : public Control {
 public:
  OptionField() = default;
  OptionField(OptionKind kind, std::string caption) : kind_(kind), caption_(std::move(caption)) {}

  OptionKind kind() const { return kind_; }
  const std::string& caption() const { return caption_; }
  void SetCaption(std::string caption) { Change(caption_, std::move(caption)); }
  // What a check, a choice or a key shows.
  bool checked() const { return checked_; }
  void SetChecked(bool checked) { Change(checked_, checked); }
  // What all others show.
  const std::string& value() const { return value_; }
  void SetValue(std::string value) { Change(value_, std::move(value)); }
  // A field that isn't enabled shows its value and takes no touch.
  bool enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { Change(enabled_, enabled); }
  void SetColors(const OptionColors& colors) { Change(colors_, colors); }
  // Of the value; a caption above it is smaller.
  void SetFont(Font font) { Change(font_, std::move(font)); }

  // Of a field on a page of the forms' design, in pixels.
  static float HeightOf(OptionKind kind);
  // Where a slider lies on its field.
  static Rect SliderPlace(const Rect& field);

  bool TakesMouse() const override { return enabled_ && Control::TakesMouse(); }
  bool ShowsHover() const override { return enabled_; }
  void MouseEnter() override { Change(over_, true); }
  void MouseLeave() override { Change(over_, false); }
  void Paint(Canvas& canvas) const override;

 private:
  void PaintMark(Canvas& canvas, const Rect& mark) const;
  void PaintCaptionAndValue(Canvas& canvas) const;

  OptionKind kind_ = OptionKind::kKey;
  std::string caption_;
  std::string value_;
  bool checked_ = false;
  bool enabled_ = true;
  bool over_ = false;
  OptionColors colors_;
  Font font_;
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_OPTIONFIELD_H_
