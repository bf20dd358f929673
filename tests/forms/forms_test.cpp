#include <gtest/gtest.h>

#include "forms/Form1.h"

namespace sonotik {
namespace {

// All controls of a panel that can show at the same time, by the panel's own order.
void ExpectNothingCut(const Panel& panel, const std::string& name) {
  const Rect inner{0, 0, panel.place().width, panel.place().height};
  for (const Control* child : panel.children()) {
    EXPECT_TRUE(inner.Contains(child->place()) || child->place().empty())
        << name << ": " << child->place().left << ", " << child->place().top << ", "
        << child->place().width << ", " << child->place().height;
    if (const auto* inside = dynamic_cast<const Panel*>(child)) ExpectNothingCut(*inside, name);
  }
}

// Buttons are what people touch: none may lie on another of its panel.
void ExpectButtonsApart(const Panel& panel, const std::string& name) {
  std::vector<const lvButtons_H*> buttons;
  for (const Control* child : panel.children()) {
    if (const auto* inside = dynamic_cast<const Panel*>(child)) ExpectButtonsApart(*inside, name);
    if (const auto* button = dynamic_cast<const lvButtons_H*>(child)) buttons.push_back(button);
  }
  for (size_t i = 0; i < buttons.size(); ++i) {
    EXPECT_GE(buttons[i]->place().height, 40) << name << ": " << buttons[i]->caption();
    for (size_t k = i + 1; k < buttons.size(); ++k) {
      EXPECT_TRUE(buttons[i]->place().Intersected(buttons[k]->place()).empty())
          << name << ": " << buttons[i]->caption() << " and " << buttons[k]->caption();
    }
  }
}

TEST(PlainLook, KeepsEveryControlInsideItsPanelAndEveryButtonApart) {
  const Form1 form;
  ExpectNothingCut(form.form, "form");
  ExpectButtonsApart(form.form, "form");
}

TEST(PlainLook, ShowsTheAlbumScreenFirstAndHidesFourteenPanelsOnDemand) {
  Form1 form;
  EXPECT_TRUE(form.panel(screen::kAlbum).visible());
  for (Panel& panel : form.panels) panel.SetVisible(true);
  form.HideAllScreens();
  for (size_t i = 0; i < form.panels.size(); ++i) {
    EXPECT_EQ(form.panels[i].visible(), i >= screen::kChartChoice) << i;
  }
}

TEST(PlainLook, HidesWhatLiesOverOtherScreensAtFirst) {
  const Form1 form;
  const Control* const hidden[] = {&form.panels[screen::kChartChoice],
                                   &form.panels[screen::kCarouselStrip],
                                   &form.searching.panel,
                                   &form.genre_bar,
                                   &form.pin_screen,
                                   &form.album.left_scroll,
                                   &form.decades.month_picker};
  for (const Control* control : hidden) EXPECT_FALSE(control->visible());
}

}  // namespace
}  // namespace sonotik
