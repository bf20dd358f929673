#include "forms/design.h"

namespace sonotik::design {
namespace {

void SetUpButton(Panel& panel, lvButtons_H& button, const Rect& place, const std::string& caption,
                 const Font& font) {
  panel.Add(button, place);
  button.SetCaption(caption);
  button.SetFont(font);
  button.SetBackStyle(back_style::kSoft);
  // Fingers need no mark of where the keyboard is; a skin that wants it says so.
  button.SetFocusRect(false);
}

}  // namespace

void AddLabel(Panel& panel, Label& label, const Rect& place, float points, Color color, Align align,
              bool bold) {
  panel.Add(label, place);
  label.SetFont({.points = points, .bold = bold});
  label.SetForeColor(color);
  label.SetBackColor(kButton);
  label.SetAlign(align);
}

void AddButton(Panel& panel, lvButtons_H& button, const Rect& place, const std::string& caption,
               float points) {
  SetUpButton(panel, button, place, caption, {.points = points});
  button.SetForeColor(kText);
  button.SetBackColor(kButton);
  button.SetHoverColors(kInk, kAmber);
}

void AddMainButton(Panel& panel, lvButtons_H& button, const Rect& place, const std::string& caption,
                   float points) {
  SetUpButton(panel, button, place, caption, {.points = points, .bold = true});
  button.SetForeColor(kInk);
  button.SetBackColor(kAmber);
  button.SetHoverColors(kInk, Rgb(255, 208, 130));
}

void AddPicture(Panel& panel, PictureBox& picture, const Rect& place, PictureFit fit) {
  panel.Add(picture, place);
  picture.SetFit(fit);
}

void AddOption(Panel& panel, OptionField& field, const Rect& place) {
  panel.Add(field, place);
  field.SetFont({.points = 12});
  field.SetColors({kText, kMuted, kAmber, kRaised});
}

void AddPanel(Panel& panel, Panel& child, const Rect& place, Color color) {
  panel.Add(child, place);
  child.SetBackColor(color);
}

}  // namespace sonotik::design
