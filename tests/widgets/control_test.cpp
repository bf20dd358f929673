#include "widgets/control.h"

#include <gtest/gtest.h>

#include "widgets/controls.h"
#include "widgets/lvButtons_H.h"

namespace sonotik {
namespace {

struct Screen {
  Form form;
  Panel panel;
  lvButtons_H button;
  PictureBox over;
  Screen() {
    form.SetPlace({0, 0, 200, 100});
    form.Add(panel, {10, 10, 100, 80});
    panel.Add(button, {20, 20, 40, 20});
    panel.Add(over, {20, 20, 40, 20});
    form.TakeDirty();
  }
};

TEST(Controls, AClickGoesThroughWhatDoesNotTakeTheMouse) {
  Screen screen;
  int clicks = 0;
  screen.button.on_click = [&] { ++clicks; };
  screen.form.Click({35, 35});
  EXPECT_EQ(clicks, 1);
  screen.over.on_click = [] {};
  screen.form.Click({35, 35});
  EXPECT_EQ(clicks, 1);
}

TEST(Controls, OnlyARealChangeOfWhatShowsIsPainted) {
  Screen screen;
  screen.button.SetCaption("A");
  const auto dirty = screen.form.TakeDirty();
  ASSERT_EQ(dirty.size(), 1U);
  EXPECT_EQ(dirty[0], (Rect{30, 30, 40, 20}));
  screen.button.SetCaption("A");
  EXPECT_FALSE(screen.form.dirty());
  screen.panel.SetVisible(false);
  screen.form.TakeDirty();
  screen.button.SetCaption("B");
  EXPECT_FALSE(screen.form.dirty());
}

TEST(Controls, AControlThatEndsIsForgotten) {
  Screen screen;
  {
    lvButtons_H brief;
    brief.on_click = [] {};
    screen.panel.Add(brief, {0, 0, 10, 10});
    screen.form.PressMouse({12, 12});
  }
  screen.form.ReleaseMouse({12, 12});
  screen.form.MoveMouse({12, 12});
  EXPECT_EQ(screen.panel.children().size(), 2U);
}

TEST(Controls, ASecondTapBelongsToTheControlOfTheFirst) {
  Screen screen;
  Label row;
  Panel dialog;
  screen.form.Add(row, {120, 0, 50, 20});
  screen.form.Add(dialog, {110, 0, 90, 100});
  dialog.SetVisible(false);
  int doubles = 0;
  row.on_click = [&] { dialog.SetVisible(true); };
  row.on_double_click = [&] { ++doubles; };
  screen.form.Click({130, 10});
  screen.form.DoubleClickMouse({130, 10});
  EXPECT_EQ(doubles, 1);
}

TEST(Controls, HoverFollowsTheMouseAndLeavesWithIt) {
  Screen screen;
  int tests_asked_for = 0;
  screen.form.on_hover = [&] { ++tests_asked_for; };
  screen.form.MoveMouse({35, 35});
  EXPECT_TRUE(screen.button.hovered());
  screen.form.MoveMouse({150, 90});
  EXPECT_FALSE(screen.button.hovered());
  // Without a move: the mouse has gone, or the button from under it.
  screen.form.MoveMouse({35, 35});
  screen.form.TestHover({36, 36});
  EXPECT_TRUE(screen.button.hovered());
  screen.form.TestHover({150, 90});
  EXPECT_FALSE(screen.button.hovered());
  EXPECT_FALSE(screen.form.hovering());
  screen.form.MoveMouse({35, 35});
  screen.panel.SetVisible(false);
  screen.form.TestHover({35, 35});
  EXPECT_FALSE(screen.button.hovered());
  EXPECT_EQ(tests_asked_for, 3);
  // A held one has the mouse to itself, and lights up only while it is on it.
  screen.panel.SetVisible(true);
  lvButtons_H other;
  screen.form.Add(other, {120, 0, 50, 50});
  screen.form.PressMouse({35, 35});
  screen.form.MoveMouse({130, 10});
  EXPECT_FALSE(screen.button.hovered() || other.hovered());
  screen.form.MoveMouse({35, 35});
  EXPECT_TRUE(screen.button.hovered());
}

TEST(Labels, ShowDoubledAmpersandsOnceAndNoAccessMarks) {
  EXPECT_EQ(CaptionAsShown("Rock && Roll"), "Rock & Roll");
  EXPECT_EQ(CaptionAsShown("&Play"), "Play");
  EXPECT_EQ(CaptionAsShown("Tom & Jerry&"), "Tom & Jerry&");
}

}  // namespace
}  // namespace sonotik
