#include "shell/menu.h"

namespace sonotik {

template <typename Handler>
void Menu::OnClick(Control& control, const char* name, Handler handler) {
  control.on_click = house_.boundary.Guarded(name, handler);
}

Menu::Menu(Assembly& house) : house_(house) { Wire(); }

void Menu::Wire() {
  Form1& form = house_.form1;
  for (size_t i = 0; i < form.menu_buttons.size(); ++i) {
    OnClick(form.menu_buttons[i], "menu", [this, i] { Open(static_cast<MenuButton>(i)); });
  }
  for (lvButtons_H* back :
       {&form.track_list.back, &form.queue.back, &form.carousel.back, &form.decades.back,
        &form.history.back, &form.top20.back, &form.search.back, &form.search_results.back,
        &form.genre.back, &form.options.back}) {
    OnClick(*back, "BACK", [this] { Back(); });
  }
  // The pickers' own take only the picker away.
  DecadesScreen& decades = form.decades;
  OnClick(decades.month_back, "BACK", [&decades] { decades.month_picker.SetVisible(false); });
  OnClick(decades.year_back, "BACK", [&decades] { decades.year_picker.SetVisible(false); });

  for (size_t i = 0; i < form.panels.size(); ++i) {
    // The play options know by themselves when a touch beside their buttons closes them.
    if (i == screen::kPlayOptions) continue;
    OnClick(form.panels[i], "screen", [this] { TouchEmptySpace(); });
  }
  OnClick(form.attract_picture, "attract picture", [this] { house_.attract.End(); });

  for (size_t i = 1; i < form.pin.keys.size(); ++i) {
    OnClick(form.pin.keys[i], "PIN", [this, i] { house_.pin.PressDigit(static_cast<int>(i)); });
  }
  OnClick(form.pin.keys[0], "ENTER", [this] { house_.pin.Enter(); });
  OnClick(form.options.power_off, "Power OFF", [this] { hooks.power_down(); });
}

void Menu::Open(MenuButton button) {
  Form1& form = house_.form1;
  house_.track_list.SelectRow(-1);
  form.pin_screen.SetVisible(false);
  form.HideAllScreens();
  // These three say themselves what they show. Behind a PIN no screen stands; that is meant.
  if (button != MenuButton::kGenres && button != MenuButton::kOptions &&
      button != MenuButton::kSearch) {
    form.ShowScreen(static_cast<size_t>(button));
  }
  switch (button) {
    case MenuButton::kHistory:
      hooks.history_first_page();
      return hooks.history_show2();
    case MenuButton::kTop20:
      hooks.top20_first_page();
      HideTop20Commands();
      return hooks.Top20_show3();
    case MenuButton::kSearch:
      return form.ShowScreen(screen::kSearchChoice);
    case MenuButton::kShowQueue:
      return OpenQueue();
    case MenuButton::kOptions:
      return house_.pin.EnterOptions();
    case MenuButton::kDecades:
      // A picker of years that was left open stays open; that is meant.
      return form.decades.month_picker.SetVisible(false);
    case MenuButton::kCarousel:
      return house_.carousel.Carousel_show();
    case MenuButton::kGenres:
      return OpenGenres();
    case MenuButton::kAlbumView:
      return;
  }
}

void Menu::OpenQueue() {
  house_.queue_view.Reset();
  house_.queue_view.HideRowCommands();
  house_.queue_view.Update_queue2();
}

void Menu::OpenGenres() {
  Form1& form = house_.form1;
  if (house_.skins.screens.genre_style() < 1) {
    hooks.show_genres();
    form.ShowScreen(screen::kGenre);
    return house_.genres.Reveal();
  }
  // The skin has its own captions on the bar.
  house_.genres.genre_scroll_show();
  // The bar takes the menu's place, over the album pages.
  form.menu.SetVisible(false);
  form.genre_bar.SetVisible(true);
  form.ShowScreen(screen::kAlbum);
  house_.genres.Reveal();
}

void Menu::Back() {
  house_.form1.HideAllScreens();
  house_.form1.ShowScreen(screen::kAlbum);
  house_.track_list.SelectRow(-1);
}

void Menu::Show(size_t index) {
  house_.form1.HideAllScreens();
  house_.form1.ShowScreen(index);
}

void Menu::EnterOptions() {
  house_.form1.HideAllScreens();
  house_.pin.EnterOptions();
}

void Menu::TouchEmptySpace() { house_.attract.End(); }

void Menu::HideTop20Commands() {
  for (lvButtons_H& command : house_.form1.top20.commands) command.SetVisible(false);
}

}  // namespace sonotik
