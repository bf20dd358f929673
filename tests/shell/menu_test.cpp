// The ways between the screens.
#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class MenuTest : public JukeboxTest {
 protected:
  void EnterPin(const std::string& digits) {
    for (const char digit : digits) Click(form().pin.keys[static_cast<size_t>(digit - '0')]);
    Click(form().pin.keys[0]);
  }
};

TEST_F(MenuTest, EachButtonShowsItsScreenAloneAndBackMeansTheAlbums) {
  Start();
  using enum MenuButton;
  const std::tuple<MenuButton, size_t, lvButtons_H*> cases[] = {
      {kHistory, screen::kHistory, &form().history.back},
      {kTop20, screen::kTop20, &form().top20.back},
      {kSearch, screen::kSearchChoice, nullptr},
      {kShowQueue, screen::kQueue, &form().queue.back},
      {kOptions, screen::kOptions, &form().options.back},
      {kDecades, screen::kDecades, &form().decades.back},
      {kCarousel, screen::kCarousel, &form().carousel.back},
      {kGenres, screen::kGenre, &form().genre.back},
      {kAlbumView, screen::kAlbum, nullptr}};
  form().panel(screen::kChartChoice).SetVisible(true);
  for (const auto& [button, shown, back] : cases) {
    form().pin_screen.SetVisible(true);
    jukebox->menu.Open(button);
    EXPECT_EQ(Shown(), Screens{shown});
    EXPECT_FALSE(form().pin_screen.visible());
    if (back == nullptr) continue;
    Click(*back);
    EXPECT_EQ(Shown(), Screens{screen::kAlbum});
  }
  EXPECT_TRUE(form().panel(screen::kChartChoice).visible());
}

TEST_F(MenuTest, ThePinDecidesWhoSeesWhichSections) {
  settings.prompt_for_pin = true;
  settings.admin_pin = settings.delegate_pin = "12";
  folder.Write("permissions.ini",
               " 0 \r\n 1 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n 0 \r\n 0 \r\n");
  Start();
  std::string log;
  const auto open = [&](const std::string& pin, const std::string& who, bool opens) {
    jukebox->menu.Open(MenuButton::kOptions);
    EXPECT_TRUE(Shown().empty());
    EnterPin(pin);
    EXPECT_FALSE(form().pin_screen.visible());
    EXPECT_EQ(Shown(), Screens{opens ? screen::kOptions : screen::kAlbum}) << pin;
    log += "01/15/2024 12:00:00 " + who + " pin entered... " + (opens ? "" : pin) + "\r\n";
  };
  for (const std::string& wrong : {std::string("99"), std::string(), std::string(500, '9')}) {
    open(wrong, "Incorrect", false);
  }
  // One PIN for both is the Admin's. It leaves the last section as it stood.
  OptionsScreen& options = form().options;
  options.sections[7].SetVisible(false);
  open("12", "Correct ADMIN", true);
  EXPECT_TRUE(options.sections[0].visible() && options.power_off.visible());
  EXPECT_FALSE(options.sections[7].visible());
  house().settings.admin_pin = "3";
  open("12", "Correct DELEGATE", true);
  for (size_t i = 0; i < kOptionSections; ++i) {
    EXPECT_EQ(options.sections[i].visible(), i == 1 || i == 7) << i;
  }
  EXPECT_FALSE(options.power_off.visible());
  house().settings.delegate_pin = "";
  open("", "Correct DELEGATE", true);
  EXPECT_EQ(folder.Read("password.txt"), log);
}

TEST_F(MenuTest, ATrackForAdultsWantsThePinAndThenItsPlayOptions) {
  settings.admin_pin = "5";
  settings.enable_double_click = true;
  settings.use_animated_covers = true;
  folder.Write("music/Night/1.wav", "x");
  std::string sidecar = Sidecar("Ada", "Dawn", "Night", "0:30");
  sidecar.replace(sidecar.find("<genre>"), 7, "<genre>Adult");
  folder.Write("music/Night/1.wav.tag", sidecar);
  WriteAlbums({{"Night", "Ada"}});
  Start();
  const TrackListScreen& list = form().track_list;
  Click(form().album.covers[0].cover);
  // Whatever lets touches in before the PIN is asked.
  machine.events.on_pump = [&] { EXPECT_FALSE(form().play_options.play_now.showing()); };
  Click(list.rows[0].title);
  machine.events.on_pump = [] {};
  EXPECT_FALSE(form().panel(screen::kPlayOptions).visible());
  // Neither the second tap nor a button beside the PIN leads around it.
  form().form.DoubleClickMouse(Middle(list.rows[0].title));
  EXPECT_EQ(Playing(), "");
  EXPECT_FALSE(list.play_now.visible() || list.add_to_queue.visible());
  EnterPin("5");
  EXPECT_EQ(Shown(), Screens{screen::kPlayOptions});
  EXPECT_EQ(form().play_options.title.caption(), "Dawn");
}

TEST_F(MenuTest, ATouchAtAnyStepOfAnAttractChangeLeadsToAScreen) {
  Start();
  house().settings.animation_amount = "3";
  house().settings.attract_animation_style = 0;
  // Through the part of the picture that has gone already, a finger meets the screen behind.
  const Control* const touches[] = {&form().attract_picture, &form().panel(screen::kNowPlaying)};
  for (int which = 0; which < 4; ++which) {
    const bool picture_first = which % 2 == 1;
    for (int step = 1; step <= 8; ++step) {
      form().HideAllScreens();
      if (!picture_first) form().ShowScreen(screen::kNowPlaying);
      form().attract_picture.SetVisible(picture_first);
      form().attract_picture.BringToFront();
      machine.events.on_pump = [&, now = 0]() mutable {
        if (++now != step) return;
        house().state.idle_seconds = 0;
        if (form().attract_picture.visible()) return touches[which / 2]->on_click();
        jukebox->menu.Open(MenuButton::kAlbumView);
      };
      house().state.idle_seconds = 61;
      house().attract.Change();
      machine.events.on_pump = [] {};
      EXPECT_FALSE(form().attract_picture.visible()) << which << step;
      EXPECT_EQ(Shown(), Screens{screen::kAlbum}) << which << step;
    }
  }
}

TEST_F(MenuTest, AScreenOpenedWhileTheAttractPictureGoesStays) {
  Start();
  house().settings.prompt_for_pin = true;
  house().settings.animation_amount = "3";
  house().settings.attract_animation_style = 0;
  for (const auto& [button, shown] : {std::pair{MenuButton::kHistory, Screens{screen::kHistory}},
                                      std::pair{MenuButton::kOptions, Screens{}}}) {
    form().HideAllScreens();
    form().attract_picture.SetVisible(true);
    machine.events.on_pump = [&, now = 0]() mutable {
      if (++now == 2) jukebox->menu.Open(button);
    };
    form().attract_picture.on_click();
    machine.events.on_pump = [] {};
    EXPECT_EQ(Shown(), shown);
  }
}

TEST_F(MenuTest, AnAttractPictureDoesNotComeBackOnceAGuestWentOn) {
  Start();
  form().attract_picture.SetVisible(true);
  jukebox->menu.Show(screen::kHistory);  // As a key does, which touches nothing.
  EXPECT_FALSE(form().attract_picture.visible());
}

}  // namespace
}  // namespace sonotik
