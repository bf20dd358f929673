#include "widgets/lvButtons_H.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "widgets/picture_source.h"

namespace sonotik {
namespace {

using testing::ElementsAre;

// A picture of four pixels: the corner's colour, and one that is red.
class OneRedPixel : public PictureSource {
 public:
  std::optional<Rect> SizeOf(const std::string&) override { return Rect{0, 0, 2, 2}; }
  std::optional<PixelSurface> Pixels(const std::string& path, int) override {
    if (path == "damaged.bmp") return std::nullopt;
    PixelSurface pixels{2, 2, 8, std::vector<uint8_t>(16, 255), true};
    pixels.bytes[12] = pixels.bytes[13] = 0;
    return pixels;
  }
  std::optional<std::string> Bytes(const std::string&) override { return std::nullopt; }
};

// Three buttons beside each other on a panel, and what they tell.
struct Keypad {
  OneRedPixel pictures;
  Form form;
  Panel panel;
  std::array<lvButtons_H, 3> buttons;
  std::vector<std::string> heard;

  Keypad() {
    form.SetPlace({0, 0, 400, 100});
    form.pictures = &pictures;
    form.Add(panel, {0, 0, 400, 100});
    for (size_t i = 0; i < buttons.size(); ++i) {
      lvButtons_H& button = buttons[i];
      panel.Add(button, {100 * static_cast<float>(i), 0, 90, 40});
      const auto hear = [this, i](const std::string& what) {
        heard.push_back(what + " " + std::to_string(i));
      };
      button.on_mouse_down = [hear](const MouseEvent&) { hear("down"); };
      button.on_mouse_up = [hear](const MouseEvent&) { hear("up"); };
      button.on_click = [hear] { hear("click"); };
      button.on_double_click = [hear] { hear("double"); };
      button.on_key_up = [hear](int&) { hear("key up"); };
      button.on_mouse_on_button = [hear](bool over) { hear(over ? "on" : "off"); };
    }
    form.TakeDirty();
  }
  static Point On(size_t i) { return {100 * static_cast<float>(i) + 40, 20}; }
  void SetModes(int mode) {
    for (lvButtons_H& button : buttons) button.SetMode(mode);
  }
  std::vector<bool> Values() const {
    return {buttons[0].value(), buttons[1].value(), buttons[2].value()};
  }
  std::vector<std::string> Heard() { return std::exchange(heard, {}); }
  void PressAndRelease(int key) {
    form.PressKey(key);
    form.ReleaseKey(key);
  }
};

TEST(Buttons, TellOfTheMouseInItsOrder) {
  Keypad k;
  k.form.Click(Keypad::On(0));
  EXPECT_THAT(k.Heard(), ElementsAre("on 0", "down 0", "up 0", "click 0"));
  k.form.DoubleClickMouse(Keypad::On(0));
  k.form.ReleaseMouse(Keypad::On(0));
  EXPECT_THAT(k.Heard(), ElementsAre("double 0", "down 0", "up 0", "click 0"));
  k.form.PressMouse(Keypad::On(0), MouseButton::kRight);
  EXPECT_FALSE(k.buttons[0].held());
  k.form.ReleaseMouse(Keypad::On(0), MouseButton::kRight);
  EXPECT_THAT(k.Heard(), ElementsAre("down 0", "up 0"));
  k.form.PressMouse(Keypad::On(0));
  k.form.ReleaseMouse({395, 95});
  EXPECT_THAT(k.Heard(), ElementsAre("down 0", "up 0", "off 0"));
  k.buttons[0].SetEnabled(false);
  k.form.Click(Keypad::On(0));
  EXPECT_TRUE(k.Heard().empty());
}

TEST(Buttons, OfOptionsOnOnePanelOneIsOnAndDoesNotClickAgain) {
  Keypad k;
  k.SetModes(kOptionMode);
  Panel elsewhere;
  lvButtons_H stranger;
  k.form.Add(elsewhere, {0, 50, 100, 50});
  elsewhere.Add(stranger, {0, 0, 50, 50});
  stranger.SetMode(kOptionMode);
  stranger.SetValue(true);
  k.form.Click(Keypad::On(0));
  k.form.Click(Keypad::On(2));
  EXPECT_THAT(k.Values(), ElementsAre(false, false, true));
  EXPECT_TRUE(stranger.value());
  k.Heard();
  k.form.Click(Keypad::On(2));
  EXPECT_THAT(k.Heard(), ElementsAre("down 2", "up 2"));
  k.buttons[2].SetMode(kCommandMode);
  EXPECT_FALSE(k.buttons[2].value());
  k.buttons[1].SetMode(kCheckMode);
  k.buttons[1].SetValue(true);
  k.buttons[0].SetValue(true);
  EXPECT_THAT(k.Values(), ElementsAre(true, true, false));
  k.buttons[1].SetMode(kOptionMode);
  EXPECT_THAT(k.Values(), ElementsAre(false, true, false)) << "joining with its value on";
}

TEST(Buttons, ChecksToggleAtTheClickAndCommandsKeepNoValue) {
  Keypad k;
  k.buttons[0].SetValue(true);
  EXPECT_FALSE(k.buttons[0].value());
  k.buttons[0].SetMode(kCheckMode);
  k.form.PressMouse(Keypad::On(0));
  EXPECT_FALSE(k.buttons[0].value());
  k.form.ReleaseMouse(Keypad::On(0));
  EXPECT_TRUE(k.buttons[0].value());
  k.form.Click(Keypad::On(0));
  EXPECT_FALSE(k.buttons[0].value());
}

TEST(Buttons, TheSpaceKeyPressesAndOnlyCommandsKeepItToThemselves) {
  Keypad k;
  k.form.SetFocus(&k.buttons[1]);
  k.form.PressKey(key::kSpace);
  EXPECT_TRUE(k.buttons[1].held());
  k.form.ReleaseKey(key::kSpace);
  EXPECT_FALSE(k.buttons[1].held());
  EXPECT_THAT(k.Heard(), ElementsAre("click 1"));
  k.SetModes(kCheckMode);
  k.PressAndRelease(key::kSpace);
  EXPECT_THAT(k.Heard(), ElementsAre("key up 1", "click 1"));
  k.PressAndRelease(key::kShift);
  EXPECT_TRUE(k.Heard().empty());
  k.panel.SetVisible(false);
  k.PressAndRelease(key::kSpace);
  EXPECT_TRUE(k.Heard().empty()) << "what doesn't show has no keyboard";
}

TEST(Buttons, ArrowsMoveTheFocusAndChooseTheOption) {
  Keypad k;
  k.form.SetFocus(&k.buttons[0]);
  k.PressAndRelease(key::kLeft);
  EXPECT_EQ(k.form.focus(), &k.buttons[2]);
  EXPECT_THAT(k.Heard(), ElementsAre("key up 2"));
  k.SetModes(kOptionMode);
  k.buttons[0].SetEnabled(false);
  k.PressAndRelease(key::kDown);
  EXPECT_EQ(k.form.focus(), &k.buttons[1]);
  EXPECT_THAT(k.Heard(), ElementsAre("click 1"));
  EXPECT_THAT(k.Values(), ElementsAre(false, true, false));
  k.form.PressMouse(Keypad::On(2));
  k.Heard();
  k.form.ReleaseKey(key::kDown);
  EXPECT_THAT(k.Values(), ElementsAre(false, true, false)) << "not while a press is active";
}

TEST(Buttons, TheLastSingleAmpersandMarksAnAccessKeyAndEnterAndEscapeClickOnlyCommands) {
  Keypad k;
  const std::pair<const char*, int> cases[] = {
      {"A&&B", 0}, {"&New &Search", 'S'}, {"&x&&y", 'X'}, {"Tom && &jerry", 'J'}, {"ends in &", 0},
      {"", 0},     {"&Play", 'P'}};
  for (const auto& [caption, key] : cases) {
    k.buttons[1].SetCaption(caption);
    EXPECT_EQ(k.buttons[1].access_key(), key) << caption;
  }
  k.buttons[1].SetDefault(true);
  k.buttons[2].SetCancel(true);
  for (const int key : {int{'p'}, key::kEnter, key::kEscape}) {
    EXPECT_TRUE(k.form.PressAccessKey(key));
  }
  EXPECT_FALSE(k.form.PressAccessKey('q'));
  EXPECT_THAT(k.Heard(), ElementsAre("click 1", "click 1", "click 2"));
  k.SetModes(kCheckMode);
  for (const int key : {key::kEnter, key::kEscape}) k.form.PressAccessKey(key);
  EXPECT_TRUE(k.Heard().empty());
  k.form.PressAccessKey('P');
  EXPECT_THAT(k.Values(), ElementsAre(false, true, false));
}

TEST(Buttons, ShapesTakeThePressOnlyWhereTheyAre) {
  // At the left top, left bottom, left middle, right top, right bottom and in the middle.
  const Point places[] = {{2, 2}, {2, 38}, {2, 20}, {88, 2}, {88, 38}, {45, 20}};
  const char* const kHits[] = {"xxxxxx", "-x-xxx", "xxxx-x", "-x-x-x",
                               "--x--x", "--x--x", "--x--x"};
  for (int shape = 0; shape < 7; ++shape) {
    Keypad k;
    k.buttons[0].SetShape(shape);
    std::string hits;
    for (const Point& at : places) hits += k.form.HitTest(at) == &k.buttons[0] ? 'x' : '-';
    EXPECT_EQ(hits, kHits[shape]) << shape;
  }
}

TEST(Buttons, CustomShapesAreWhereThePictureDiffersFromItsCorner) {
  Keypad k;
  lvButtons_H& button = k.buttons[0];
  button.SetImage("star.bmp");
  for (const int shape : {7, 8}) {
    button.SetShape(shape);
    k.form.Click({20, 10});
    EXPECT_TRUE(k.Heard().empty());
    k.form.PressMouse({70, 30});
    k.form.ReleaseMouse({20, 10});
    EXPECT_THAT(k.Heard(), ElementsAre("on 0", "down 0", "up 0", "off 0"));
  }
  button.SetImage("star.ico");
  EXPECT_EQ(button.image(), "star.bmp");
  EXPECT_EQ(button.shape(), 8);
  button.SetImage("damaged.bmp");
  EXPECT_TRUE(button.Covers({20, 10})) << "a picture that can't be read cuts nothing away";
  button.SetImage("");
  EXPECT_EQ(button.shape(), 0);
}

}  // namespace
}  // namespace sonotik
