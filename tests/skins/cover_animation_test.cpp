#include "skins/cover_animation.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "forms/Form1.h"
#include "support/test_machine.h"

namespace sonotik {
namespace {

float Area(const Region& region) {
  float area = 0;
  for (const Rect& rect : region) area += rect.width * rect.height;
  return area;
}

TEST(CoverAnimation, EveryStyleGrowsFromNothingToAllInsideTheControl) {
  for (int style = 0; style < kRandomStyle; ++style) {
    Region before;
    for (int i = 0; i <= 10; ++i) {
      const Region region = RevealedRegion(style, i, 10, 400, 300);
      for (const Rect& rect : region) {
        EXPECT_TRUE((Rect{-0.01F, -0.01F, 400.02F, 300.02F}).Contains(rect)) << style << " " << i;
      }
      EXPECT_NEAR(Area(Without(before, region)), 0, 1) << style << " " << i;
      before = region;
    }
    EXPECT_NEAR(Area(RevealedRegion(style, 0, 10, 400, 300)), 0, 1) << style;
    EXPECT_NEAR(Area(before), 400 * 300, 1) << style;
  }
}

class AnimationTest : public testing::Test {
 protected:
  Panel& panel() { return form1.panel(screen::kNowPlaying); }
  TestMachine machine;
  CoverAnimation animation{machine.events, machine.random};
  Form1 form1;
};

TEST_F(AnimationTest, EachStepRepaintsOnlyWhatItReveals) {
  form1.ShowScreen(screen::kNowPlaying);
  const float width = panel().place().width;
  std::vector<float> revealed;
  form1.form.TakeDirty();
  machine.events.on_pump = [&] {
    float dirty = 0;
    for (const Rect& rect : form1.form.TakeDirty()) dirty += rect.width;
    revealed.push_back(dirty);
  };
  EXPECT_TRUE(animation.Animate(panel(), 1, 0, 0, 4));
  // The first step takes all away.
  ASSERT_EQ(revealed.size(), 5u);
  EXPECT_GE(revealed[0], width);
  for (size_t i = 1; i < revealed.size(); ++i) EXPECT_FLOAT_EQ(revealed[i], width / 4) << i;
  EXPECT_FALSE(panel().region());
}

TEST_F(AnimationTest, EnteredAgainTheInnerOneEndsItAndAHiddenTargetStaysHidden) {
  int pumps = 0;
  machine.events.on_pump = [&] {
    if (++pumps == 3) animation.Animate(panel(), 1, 2, 0, 4);
  };
  EXPECT_TRUE(animation.Animate(panel(), 1, 0, 0, 10));
  EXPECT_EQ(pumps, 3 + 5);
  EXPECT_FALSE(panel().region());
  EXPECT_FALSE(animation.running());
  machine.events.on_pump = [&] { panel().SetVisible(false); };
  animation.Animate(panel(), 1, 0, 0, 4);
  EXPECT_FALSE(panel().visible());
  EXPECT_FALSE(panel().region());
}

TEST_F(AnimationTest, FingersThatNeverPauseNestItOnlySoDeepAndFindThePageWholeInTheEnd) {
  int depth = 0;
  int deepest = 0;
  int touches = 200;
  machine.events.on_pump = [&] {
    if (touches == 0) return;
    --touches;
    deepest = std::max(deepest, ++depth);
    animation.Animate(panel(), 1, 0, 110, kCoverAnimationSteps);
    --depth;
  };
  animation.Animate(panel(), 1, 0, 110, kCoverAnimationSteps);
  EXPECT_EQ(touches, 192);
  EXPECT_EQ(deepest, 8);
  EXPECT_FALSE(panel().region());
  EXPECT_FALSE(animation.running());
}

TEST_F(AnimationTest, HiddenItIsGoneForTheFingerUntilItIsShownAnew) {
  form1.ShowScreen(screen::kNowPlaying);
  panel().on_click = [] {};
  const Rect place = panel().place();
  const Point corner{place.left + 3, place.bottom() - 3};
  EXPECT_EQ(form1.form.HitTest(corner), &panel());
  EXPECT_TRUE(animation.Animate(panel(), 0, 10, 5, 1));
  EXPECT_NE(form1.form.HitTest(corner), &panel());
  panel().SetVisible(false);
  form1.ShowScreen(screen::kNowPlaying);
  EXPECT_EQ(form1.form.HitTest(corner), &panel());
}

TEST_F(AnimationTest, WhatIsNoStyleOrHasNoStepsJustShows) {
  for (const auto& [style, steps] : {std::pair{14, 10}, {110, 33}, {-1, 10}, {3, 0}, {3, -5}}) {
    panel().SetVisible(false);
    EXPECT_FALSE(animation.Animate(panel(), 1, style, 10, steps));
    EXPECT_TRUE(panel().visible());
    EXPECT_EQ(machine.events.pumps, 0);
    EXPECT_FALSE(animation.running());
  }
}

}  // namespace
}  // namespace sonotik
