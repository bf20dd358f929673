#include "forms/OptionPage.h"

#include <algorithm>

namespace sonotik {
namespace {

constexpr float kMargin = 14;
constexpr float kGap = 6;
constexpr float kColumnGap = 14;
// A narrower panel has two columns.
constexpr float kThreeColumns = 840;
constexpr float kHeading = 32;
// What the sizes of the fields are meant for.
constexpr float kDesignHeight = 580;

}  // namespace

Label& OptionPage::AddFrame(const std::string& caption, bool new_column) {
  headings_.push_back(std::make_unique<Label>());
  Label& label = *headings_.back();
  design::AddLabel(*panel, label, {}, 12, design::kAmber, Align::kLeft, true);
  label.SetCaption(caption);
  items_.push_back({&label, kHeading, nullptr, true, new_column});
  return label;
}

void OptionPage::Add(Control& control, float height, Slider* slider) {
  panel->Add(control, {});
  if (slider != nullptr) panel->Add(*slider, {});
  items_.push_back({&control, height, slider});
}

void OptionPage::SetShown(const Control& control, bool shown) {
  for (Item& item : items_) {
    if (item.control == &control) item.shown = shown;
  }
}

float OptionPage::scale() const {
  return std::clamp(panel->place().height / kDesignHeight, 1.0F, 2.0F);
}

float OptionPage::FrameHeight(size_t first) const {
  float height = items_[first].height;
  for (size_t i = first + 1; i < items_.size() && !items_[i].heads_frame; ++i) {
    if (items_[i].shown) height += kGap + items_[i].height;
  }
  return height;
}

void OptionPage::LayOut(float foot) {
  const float scale = this->scale();
  const Rect whole = panel->place();
  const float bottom = (whole.height - foot) / scale - kGap;
  const int columns = whole.width / scale < kThreeColumns ? 2 : 3;
  const float width =
      (whole.width / scale - 2 * kMargin - kColumnGap * static_cast<float>(columns - 1)) /
      static_cast<float>(columns);
  float top = kGap;
  int column = 0;
  pages_ = 1;
  const auto next_column = [&] {
    top = kGap;
    if (++column < columns) return;
    column = 0;
    ++pages_;
  };
  for (size_t i = 0; i < items_.size(); ++i) {
    Item& item = items_[i];
    if (!item.shown) continue;
    if (item.heads_frame && top > kGap) {
      const float needed = FrameHeight(i);
      // A frame that fits into a column isn't torn; a larger one begins where two of its fields do.
      const bool fits_alone = needed <= bottom - kGap;
      const float least = fits_alone ? needed : kHeading + 3 * 64;
      if (item.new_column || top + least > bottom) next_column();
    }
    if (!item.heads_frame && top + item.height > bottom) next_column();
    const float left = kMargin + (width + kColumnGap) * static_cast<float>(column);
    const Rect place{left * scale, top * scale, width * scale, item.height * scale};
    item.control->SetPlace(place);
    if (item.slider != nullptr) item.slider->SetPlace(OptionField::SliderPlace(place));
    item.page = pages_ - 1;
    top += item.height + kGap;
  }
  ShowPage(page_);
}

void OptionPage::ShowPage(int page) {
  page_ = std::clamp(page, 0, pages_ - 1);
  for (const Item& item : items_) {
    const bool visible = item.shown && item.page == page_;
    item.control->SetVisible(visible);
    if (item.slider != nullptr) item.slider->SetVisible(visible);
  }
}

}  // namespace sonotik
