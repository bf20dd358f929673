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

// Remembers where the last text stood.
class TextPlace : public Canvas {
 public:
  Rect text;

  void Push(const Rect&) override {}
  void Pop() override {}
  Rect Visible() const override { return {}; }
  void FillRect(const Rect&, Color, float) override {}
  void FillGradient(const Rect&, Color, Color, float) override {}
  void DrawRect(const Rect&, Color, float, float) override {}
  void FillPolygon(std::span<const Point>, const Brush&) override {}
  void DrawPolygon(std::span<const Point>, const Brush&, float) override {}
  void DrawPicture(const std::string&, const Rect&, PictureFit) override {}
  void DrawPixels(const PixelSurface&, const Rect&) override {}
  void DrawText(const std::string&, const Rect& rect, const TextStyle&) override { text = rect; }
  Rect MeasureText(const std::string&, const TextStyle&, float) override { return {0, 0, 9, 9}; }
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

TEST(Buttons, TheLastSingleAmpersandMarksTheAccessKey) {
  const struct {
    const char* caption;
    int key;
  } cases[] = {
      {"&Play", 'P'},   {"A&&B", 0}, {"&New &Search", 'S'}, {"&x&&y", 'X'}, {"Tom && &jerry", 'J'},
      {"ends in &", 0}, {"", 0}};
  for (const auto& c : cases) {
    lvButtons_H button;
    button.SetCaption(c.caption);
    EXPECT_EQ(button.access_key(), c.key) << c.caption;
  }
}

TEST(Buttons, AccessKeysClickButEnterAndEscapeOnlyCommands) {
  Keypad k;
  k.buttons[1].SetCaption("&Play");
  k.buttons[1].SetDefault(true);
  k.buttons[2].SetCancel(true);
  EXPECT_TRUE(k.form.PressAccessKey('p'));
  EXPECT_TRUE(k.form.PressAccessKey(key::kEnter));
  EXPECT_TRUE(k.form.PressAccessKey(key::kEscape));
  EXPECT_FALSE(k.form.PressAccessKey('q'));
  EXPECT_THAT(k.Heard(), ElementsAre("click 1", "click 1", "click 2"));
  k.SetModes(kCheckMode);
  k.form.PressAccessKey(key::kEnter);
  k.form.PressAccessKey(key::kEscape);
  EXPECT_TRUE(k.Heard().empty());
  k.form.PressAccessKey('P');
  EXPECT_THAT(k.Values(), ElementsAre(false, true, false));
}

using Setter = void (lvButtons_H::*)(int);
using Getter = int (lvButtons_H::*)() const;

TEST(Buttons, WhatTheirStateForbidsIsRefusedAndOnlyADesignerIsTold) {
  const struct {
    void (*set_up)(lvButtons_H&);
    Setter set;
    int value;
    Getter get;
    const char* message;
  } cases[] = {
      {[](lvButtons_H& b) { b.SetCapAlign(0), b.SetImgAlign(4); }, &lvButtons_H::SetCapAlign, 1,
       &lvButtons_H::cap_align,
       "When button images are aligned top/bottom center, \n"
       "button captions can only be center aligned"},
      {[](lvButtons_H&) {}, &lvButtons_H::SetCustomClick, 3, &lvButtons_H::custom_click,
       "This property has no effect unless the Button Shape is a custom shape."},
      {[](lvButtons_H&) {}, &lvButtons_H::SetShape, 7, &lvButtons_H::shape,
       "The Picture Property must be assigned first and must be a bitmap or JPEG."},
      {[](lvButtons_H& b) { b.SetImage("a.ico"); }, &lvButtons_H::SetShape, 8, &lvButtons_H::shape,
       "The Picture Property must be assigned first and must be a bitmap or JPEG."},
      {[](lvButtons_H& b) { b.SetImage("a.bmp"), b.SetShape(7); }, &lvButtons_H::SetImgSize, 2,
       &lvButtons_H::img_size, "The picture size cannot be changed for Shaped buttons"}};
  for (const auto& c : cases) {
    for (const bool design : {false, true}) {
      lvButtons_H button;
      std::vector<std::string> messages;
      button.on_message = [&](const std::string& text) { messages.push_back(text); };
      c.set_up(button);
      const int before = (button.*c.get)();
      button.design_mode = design;
      (button.*c.set)(c.value);
      EXPECT_EQ((button.*c.get)(), before) << c.message;
      EXPECT_EQ(messages, std::vector<std::string>(design ? 1 : 0, c.message));
    }
  }
  lvButtons_H button;
  std::vector<std::string> messages;
  button.on_message = [&](const std::string& text) { messages.push_back(text); };
  button.design_mode = true;
  button.SetFocusRect(false);
  button.SetDefault(true);
  button.SetShowFocusRect(3);
  button.SetValue(true);
  EXPECT_FALSE(button.focus() || button.value());
  EXPECT_THAT(messages,
              ElementsAre("The focus rectangle may appear on default buttons ONLY while in design "
                          "mode, \nbut will not appear when the form is running.",
                          "This property is not applicable for command button modes."));
}

TEST(Buttons, NumbersOutOfTheirRangeAreNotTakenWithoutAWord) {
  using B = lvButtons_H;
  const struct {
    Setter set;
    Getter get;
    int most;
  } cases[] = {{&B::SetCapAlign, &B::cap_align, 2},   {&B::SetBackStyle, &B::back_style, 7},
               {&B::SetGradient, &B::gradient, 4},    {&B::SetMode, &B::mode, 2},
               {&B::SetImgSize, &B::img_size, 4},     {&B::SetImgAlign, &B::img_align, 5},
               {&B::SetLockHover, &B::lock_hover, 3}, {&B::SetFontStyle, &B::cap_style, 2},
               {&B::SetButtonShape, &B::shape, 8}};
  for (const auto& c : cases) {
    lvButtons_H button;
    button.SetImage("a.bmp");
    button.design_mode = true;
    button.on_message = [&](const std::string& text) { ADD_FAILURE() << text; };
    (button.*c.set)(c.most);
    for (const int wrong : {-1, c.most + 1, INT32_MAX, INT32_MIN}) {
      (button.*c.set)(wrong);
      EXPECT_EQ((button.*c.get)(), c.most) << &c - cases;
    }
  }
}

TEST(Buttons, HoverColorsFollowUnlessTheyAreLocked) {
  constexpr Color kFore = 1, kBack = 2, kGradient = 3, kOwn = 9;
  const struct {
    int lock;
    int gradient;
    Color fore, back;
  } cases[] = {{0, 0, kFore, kBack}, {0, 1, kFore, kGradient}, {1, 0, kFore, kOwn},
               {2, 0, kOwn, kBack},  {2, 3, kOwn, kGradient},  {3, 1, kOwn, kOwn}};
  for (const auto& c : cases) {
    lvButtons_H button;
    button.SetHoverColors(kOwn, kOwn);
    button.SetLockHover(3);
    button.SetcGradient(kGradient);
    button.SetGradient(c.gradient);
    button.SetLockHover(c.lock);
    button.SetForeColor(kFore);
    button.SetBackColor(kBack);
    EXPECT_EQ(button.cFHover(), c.fore) << c.lock << " " << c.gradient;
    EXPECT_EQ(button.cBHover(), c.back) << c.lock << " " << c.gradient;
  }
}

TEST(Buttons, ShapesTakeThePressOnlyWhereTheyAre) {
  const struct {
    int shape;
    bool left_top, left_bottom, left_middle, right_top, right_bottom;
  } cases[] = {{0, true, true, true, true, true},     {1, false, true, false, true, true},
               {2, true, true, true, true, false},    {3, false, true, false, true, false},
               {4, false, false, true, false, false}, {5, false, false, true, false, false},
               {6, false, false, true, false, false}};
  for (const auto& c : cases) {
    Keypad k;
    k.buttons[0].SetShape(c.shape);
    const auto hit = [&](float x, float y) {
      return k.form.HitTest({x, y}) == static_cast<Control*>(&k.buttons[0]);
    };
    EXPECT_TRUE(hit(45, 20)) << c.shape;
    EXPECT_EQ(hit(2, 2), c.left_top) << c.shape;
    EXPECT_EQ(hit(2, 38), c.left_bottom) << c.shape;
    EXPECT_EQ(hit(2, 20), c.left_middle) << c.shape;
    EXPECT_EQ(hit(88, 2), c.right_top) << c.shape;
    EXPECT_EQ(hit(88, 38), c.right_bottom) << c.shape;
  }
}

TEST(Buttons, HeldOnesMoveTheirTextAndFromTheEllipseOnOnlyDown) {
  for (int shape = 0; shape <= 8; ++shape) {
    Keypad k;
    lvButtons_H& button = k.buttons[0];
    button.SetImage("star.bmp");
    button.SetShape(shape);
    button.SetCaption("Play");
    TextPlace canvas;
    button.Paint(canvas);
    const Rect idle = canvas.text;
    k.form.PressMouse({60, 25});
    ASSERT_TRUE(button.held()) << shape;
    button.Paint(canvas);
    EXPECT_EQ(canvas.text, idle.MovedBy(shape < 4 ? 1 : 0, 1)) << shape;
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
  button.SetImage("star.bmp");
  button.SetShape(7);
  button.design_mode = true;
  std::string told;
  button.on_message = [&](const std::string& text) { told = text; };
  button.SetImage("star.ico");
  EXPECT_EQ(button.shape(), 0);
  EXPECT_EQ(button.image(), "star.ico");
  EXPECT_EQ(told,
            "Button was changed to Rectangular shaped.\n"
            "Icons cannot be used for custom buttons. Only use bitmaps or JPEGs.");
}

TEST(Buttons, AreStoredByKeyAndReadWithDefaults) {
  lvButtons_H button;
  button.SetCaption("A||&B");
  button.SetFont({"Sans", 12.5F, true});
  button.SetMode(kOptionMode);
  button.SetValue(true);
  button.SetImgSize(2);
  button.SetForeColor(0x80000008);
  button.SetHoverColors(5, 6);
  PropertyBag bag;
  button.WriteTo(bag);
  EXPECT_EQ(bag.Read("imgsize"), "32");
  EXPECT_EQ(bag.Read("cBHover"), "6");
  lvButtons_H same;
  same.ReadFrom(bag);
  PropertyBag again;
  same.WriteTo(again);
  for (const auto& row : kButtonProperties) EXPECT_EQ(bag.Read(row.key), again.Read(row.key));
  EXPECT_EQ(same.access_key(), 'B');
  EXPECT_EQ(same.img_size(), 2);

  PropertyBag odd;
  for (const char* key : {"Shape", "BackStyle", "Gradient", "Mode", "CapStyle", "ImgSize"}) {
    odd.Write(key, "99");
  }
  odd.Write("Font", "Sans|big");
  odd.Write("ImgAlign", "4");
  odd.Write("CapAlign", "0");
  odd.Write("cBack", "255");
  odd.Write("Enabled", "perhaps");
  same.ReadFrom(odd);
  EXPECT_EQ(same.cap_align(), 2) << "a picture above the caption centres it";
  EXPECT_EQ(same.cBHover(), 255U);
  EXPECT_EQ(same.cFore(), kButtonText);
  EXPECT_EQ(same.font(), Font());
  EXPECT_TRUE(same.enabled());
  EXPECT_EQ(same.shape() + same.back_style() + same.gradient() + same.mode() + same.img_size(), 0);
}

}  // namespace
}  // namespace sonotik
