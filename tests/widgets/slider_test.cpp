#include "widgets/Slider.h"

#include <gtest/gtest.h>

namespace sonotik {
namespace {

// The thumb is 9 long, so it travels 100.
struct Lying {
  Form form;
  Slider slider;
  std::vector<int> heard;
  Lying() {
    form.SetPlace({0, 0, 300, 200});
    form.Add(slider, {10, 0, 109, 40});
    slider.on_scroll = [this](int value) { heard.push_back(value); };
  }
};

TEST(Sliders, FollowTheFingerWithinTheirRange) {
  Lying s;
  s.slider.SetRange(-4000, 0);
  s.slider.SetValue(-4000);
  s.form.PressMouse({64.5F, 20});
  EXPECT_TRUE(s.heard.empty());
  s.form.MoveMouse({65.5F, 20});
  s.form.MoveMouse({500, 20});
  s.slider.SetValue(-1000);
  EXPECT_EQ(s.slider.value(), 0) << "a value from outside is not taken under a finger";
  s.form.ReleaseMouse({500, 20});
  s.form.MoveMouse({0, 20});
  EXPECT_EQ(s.heard, (std::vector{-1960, 0}));
  s.slider.SetValue(-9999);
  s.slider.SetValue(1);
  EXPECT_EQ(s.slider.value(), 0);
  s.slider.SetValue(-1000);
  EXPECT_EQ(s.slider.value(), -1000);
}

TEST(Sliders, AClickTakesTheThumbAlongOrAStepFurther) {
  const struct {
    const char* what;
    int large_change;
    float at;
    int value;
    int most = 100;
  } cases[] = {{"the end", 0, 118.9F, 100},
               {"the start", 0, 10, 0},
               {"the middle", 0, 64.5F, 50},
               {"on the thumb", 0, 32, 20},
               {"a step up", 15, 100, 35},
               {"a step down", 15, 12, 5},
               {"a step over the end", 90, 100, 100},
               {"a step below the start", 90, 12, 0},
               {"a tie goes to the even value", 0, 39.5F, 0, 2},
               {"the other tie, too", 0, 89.5F, 2, 2},
               {"behind a tie", 0, 40.5F, 1, 2}};
  for (const auto& c : cases) {
    Lying s;
    s.slider.SetRange(0, c.most);
    s.slider.SetValue(20);
    s.slider.SetLargeChange(c.large_change);
    s.form.Click({c.at, 20});
    EXPECT_EQ(s.slider.value(), c.value) << c.what;
    EXPECT_EQ(s.heard, std::vector{c.value}) << c.what;
  }
}

TEST(Sliders, WithoutARangeOrARoomStayAtTheirLeast) {
  Lying s;
  s.slider.SetRange(7, 7);
  s.form.Click({100, 20});
  EXPECT_EQ(s.slider.value(), 7);
  s.slider.SetRange(INT32_MIN, INT32_MAX);
  s.slider.SetValue(INT32_MIN);
  s.form.Click({118, 20});
  EXPECT_EQ(s.slider.value(), INT32_MAX);
  s.slider.SetPlace({10, 0, 9, 40});
  s.form.Click({15, 20});
  EXPECT_EQ(s.slider.value(), INT32_MIN);
}

TEST(Sliders, StandingOnesBeginAtTheTopAndWithTheSizeTheyAreGiven) {
  Lying s;
  s.slider.SetValue(50);
  s.slider.SetPosition(1);
  s.slider.SetPlace({10, 0, 40, 109});
  EXPECT_EQ(s.slider.Thumb(), (Rect{15.5F, 50, 9, 9}));
  s.form.Click({20, 0});
  EXPECT_EQ(s.slider.value(), 0);
}

}  // namespace
}  // namespace sonotik
