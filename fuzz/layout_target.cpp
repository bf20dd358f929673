// The libFuzzer target of a skin's files: the first byte says which one, the others are its bytes.
// Behind the layout files and skin.ini comes the cover layout.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "files/runtime_failure.h"
#include "skins/cover_layout.h"
#include "skins/layout_reader.h"

namespace sonotik {
namespace {

void Demand(bool holds) {
  if (!holds) std::abort();
}

// Whatever a file says, a control stands somewhere and can be painted.
void DemandSoundness(const Control& control) {
  const Rect place = control.place();
  for (const float value : {place.left, place.top, place.width, place.height}) {
    Demand(std::isfinite(value) && std::abs(value) <= 1e6F);
  }
  Demand(place.width >= 0 && place.height >= 0);
  if (const auto* button = dynamic_cast<const lvButtons_H*>(&control)) {
    Demand(button->caption().size() <= 1024 && button->font().family.size() <= 1024);
    Demand(button->font().points >= 1 && button->font().points <= 1000);
    Demand(button->shape() >= 0 && button->shape() <= 8);
  }
  if (const auto* label = dynamic_cast<const Label*>(&control)) {
    Demand(label->font().points >= 1 && label->font().points <= 1000);
  }
  if (const auto* panel = dynamic_cast<const Panel*>(&control)) {
    for (const Control* child : panel->children()) DemandSoundness(*child);
  }
}

void ReadLayout(uint8_t which, std::string text) {
  static Form1 form;
  static const LayoutTargets targets(form);
  static const LayoutReader reader(targets, "\\no such skin");
  const size_t files = LayoutFiles().size();
  try {
    if (which < files) {
      reader.ReadText(LayoutFiles()[which], std::move(text));
    } else if (which == files) {
      reader.ReadText(SkinFile(), std::move(text));
    } else {
      CoverLayout layout;
      ReadCoverLayout(std::move(text), layout, form.album);
      Demand(layout.covers_per_page >= 1 && layout.covers_per_page < kMostCovers);
    }
  } catch (const RuntimeFailure&) {
    // The ordinary end of a damaged file.
  }
  DemandSoundness(form.form);
}

}  // namespace
}  // namespace sonotik

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const auto kinds = static_cast<uint8_t>(sonotik::LayoutFiles().size() + 2);
  sonotik::ReadLayout(data[0] % kinds, std::string(data + 1, data + size));
  return 0;
}
