#include "skins/options_look.h"

namespace sonotik {
namespace {

// How much of the letters' colour a plate takes, of 256: enough to stand out, not to glare.
constexpr uint32_t kPlateShare = 24;
constexpr uint32_t kMutedShare = 96;
// Sizes in the forms' design, in points.
constexpr float kFieldPoints = 12;
constexpr float kHeadingPoints = 13;

struct Look {
  OptionColors colors;
  Color back;
  std::string family;
  float scale;
};

void Dress(Panel& panel, const Look& look) {
  for (Control* child : panel.children()) {
    if (auto* field = dynamic_cast<OptionField*>(child)) {
      field->SetColors(look.colors);
      field->SetFont({look.family, kFieldPoints * look.scale});
    } else if (auto* label = dynamic_cast<Label*>(child)) {
      label->SetFont({look.family, kHeadingPoints * look.scale, label->font().bold});
      label->SetForeColor(label->font().bold ? look.colors.accent : look.colors.text);
    } else if (auto* slider = dynamic_cast<Slider*>(child)) {
      slider->SetColors(Mix(look.back, look.colors.text, kMutedShare), look.colors.accent,
                        look.colors.text);
    } else if (auto* inner = dynamic_cast<Panel*>(child)) {
      Dress(*inner, look);
    }
  }
}

}  // namespace

void DressOptions(Form1& form) {
  OptionsScreen& options = form.options;
  const Color text = form.track_list.album_heading.fore_color();
  const Color back = options.pages.back_color();
  const Look look{{text, Mix(text, back, kMutedShare), form.track_list.artist_heading.fore_color(),
                   Mix(back, text, kPlateShare)},
                  back,
                  form.track_list.album_heading.font().family,
                  options.settings[0].scale()};
  Dress(options.pages, look);
  options.picker.panel.SetBackColor(back);
  options.keyboard.panel.SetBackColor(back);
  options.keyboard.entry.SetPlate(Mix(back, text, 2 * kPlateShare));
}

}  // namespace sonotik
