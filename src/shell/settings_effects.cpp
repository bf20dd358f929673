#include "shell/settings_effects.h"

#include <algorithm>

#include "config/settings_table.h"
#include "skins/cover_layout.h"

namespace sonotik {

SettingsEffects::SettingsEffects(Assembly& house) : displays(house), house_(house) {
  house_.settings_file.on_applied = [this](int row, bool changed) { Apply(row, changed); };
}

void SettingsEffects::LoadConfig() {
  house_.settings_file.LoadConfig();
  // Only ever on: with the box off, the mode stays as it stands.
  if (house_.settings.enable_random_play) {
    house_.playback.random_mode_on = true;
    house_.form1.random.SetCaption("Random ON");
  }
}

void SettingsEffects::Apply(int row, bool changed) {
  switch (row) {
    case setting_row::kCreditMode:
      if (changed) SwitchCreditMode();
      break;
    case setting_row::kAttractTexts:
      house_.state.attract_settings_loaded = true;
      break;
    case setting_row::kCurrentSkin:
      // A skin that can't be shown is no fault of the settings.
      if (changed) {
        house_.boundary.Run("PreviewSkin",
                            [this] { house_.skins.Select(house_.settings.current_skin); });
      }
      break;
    case setting_row::kCoverLayout:
      SelectCoverLayout();
      break;
    case setting_row::kMainVolume:
      // The slider is what counts, and it keeps within its range.
      house_.settings.main_volume =
          std::clamp(house_.settings.main_volume, kLeastVolume, kMostVolume);
      house_.form1.volume.SetValue(house_.settings.main_volume);
      break;
    case setting_row::kFullScreen:
      if (changed) displays.SwitchFullScreen();
      break;
    case setting_row::kUseSecondMonitor:
    case setting_row::kSecondMonitor:
      if (changed) displays.MoveSecondMonitor();
      break;
    case setting_row::kHideMouse:
      house_.machine.displays.SetMousePointerVisible(!house_.settings.hide_mouse);
      break;
    case setting_row::kMenuButtons:
      ShowMenu();
      break;
    case setting_row::kTabs:
      HideTabs();
      break;
    case setting_row::kPlayButtons:
      ShowDisplays();
      break;
    case setting_row::kStartupDatabase:
      // A page that can't be painted is no fault of the settings.
      if (changed) {
        house_.boundary.Run("Database to use on startup...", [this] {
          house_.pages.SelectDatabase(house_.settings.startup_database);
        });
      }
      break;
    default:
      // All others are read at the moment that they matter.
      break;
  }
}

void SettingsEffects::SwitchCreditMode() {
  house_.credits.ShowCreditMode();
  // Each switch to on starts one more; switching off leaves it running.
  if (house_.settings.enable_credit_mode) {
    house_.machine.processes.StartProgram(house_.app_path + "\\creditmodule.exe",
                                          WindowState::kMinimised);
  }
}

void SettingsEffects::SelectCoverLayout() {
  const int wanted = std::max(house_.settings.cover_layout, 0);
  house_.skins.PointCoverLayouts();
  int& index = house_.settings.cover_layout;
  if (house_.lists.cover_layouts.empty()) {
    // A skin without a layout keeps the one in force.
    index = -1;
    return;
  }
  index = wanted;
  const std::string path = house_.skins.SelectedCoverLayout();
  if (path.empty()) {
    throw RuntimeFailure("the skin has no cover layout number " + std::to_string(index));
  }
  // Only another one is loaded: reading the settings again leaves the guest's page alone.
  if (path != shown_layout_) ShowCoverLayout(path);
}

void SettingsEffects::ShowCoverLayout(const std::string& path) {
  shown_layout_ = path;
  // Neither a damaged layout nor a page that can't be painted is a fault of the settings.
  house_.boundary.Run("cover layout", [&] {
    LoadCoverLayout(path, house_.cover_layout, house_.form1.album);
    house_.cursor.SetPosition(CatalogueSource::kRecords, 1);
    house_.pages.read_albums3();
  });
}

void SettingsEffects::ApplySelectedSkin() {
  if (!house_.state.attract_settings_loaded || house_.skins.selected().empty()) return;
  PutOnSkin(house_.skins.selected());
  house_.pages.SetPageValid(false);
}

void SettingsEffects::ApplySkin() {
  house_.skins.ApplySkin();
  house_.search.list_files = house_.skins.special_lists();
}

void SettingsEffects::PutOnSkin(const std::string& skin) {
  const std::string not_found = house_.covers.NotFoundPicture();
  house_.settings.current_skin = skin;
  ApplySkin();
  // What plays without a cover shows the picture of the skin that is worn.
  if (house_.form1.now_playing_cover.picture() == not_found) {
    house_.tracks.ShowCover(house_.covers.NotFoundPicture());
  }
  if (house_.lists.cover_layouts.empty()) {
    house_.pages.read_albums3();
  } else {
    house_.settings.cover_layout = 0;
    ShowCoverLayout(house_.skins.SelectedCoverLayout());
  }
}

void SettingsEffects::ShowMenu() {
  const Settings& settings = house_.settings;
  Form1& form = house_.form1;
  const bool menu[] = {settings.menu_history,  settings.menu_top20,   settings.menu_search,
                       settings.menu_queue,    settings.menu_options, settings.menu_decades,
                       settings.menu_carousel, settings.menu_genres};
  // A menu button shows at 1 and at nothing else.
  for (size_t i = 0; i < std::size(menu); ++i) form.menu_buttons[i].SetVisible(menu[i]);
  form.player.SetVisible(settings.display_player_controls);
  form.menu.SetVisible(settings.display_menu_bar);
  form.volume.SetVisible(settings.volume_slider);
  for (const PlayerButton button : {PlayerButton::kVolumeDown, PlayerButton::kVolumeUp}) {
    form.player_buttons[static_cast<size_t>(button)].SetVisible(settings.volume_buttons);
  }
  for (const PlayerButton button :
       {PlayerButton::kRestart, PlayerButton::kPause, PlayerButton::kNext}) {
    form.player_buttons[static_cast<size_t>(button)].SetVisible(settings.player_buttons);
  }
}

std::array<bool, 6> SettingsEffects::Tabs() const {
  const Settings& settings = house_.settings;
  return {settings.tab_audio,       settings.tab_video,       settings.tab_karaoke,
          settings.tab_most_played, settings.tab_newly_added, settings.tab_spin_on_this};
}

void SettingsEffects::HideTabs() {
  const auto tabs = Tabs();
  for (size_t i = 0; i < tabs.size(); ++i) {
    // Never made visible here: a tab that was hidden before stays so. The search results have a
    // strip of their own for the first three.
    if (!tabs[i]) house_.form1.album.tabs[i].SetVisible(false);
  }
}

void SettingsEffects::ShowTabs() {
  const auto tabs = Tabs();
  for (size_t i = 0; i < tabs.size(); ++i) house_.form1.album.tabs[i].SetVisible(tabs[i]);
}

void SettingsEffects::ShowDisplays() {
  const Settings& settings = house_.settings;
  Form1& form = house_.form1;
  form.credits.SetVisible(settings.show_credits_display);
  form.play_caption.SetVisible(settings.show_credits_display);
  form.clock.SetVisible(settings.show_time_and_date);
  for (Control* item : {static_cast<Control*>(&form.now_playing_artist),
                        static_cast<Control*>(&form.now_playing_title),
                        static_cast<Control*>(&form.now_playing_cover)}) {
    item->SetVisible(settings.show_now_playing);
  }
  NowPlayingScreen& screen = form.now_playing;
  for (Control* item :
       {static_cast<Control*>(&screen.rating), static_cast<Control*>(&screen.rating_caption),
        static_cast<Control*>(&screen.rating_up), static_cast<Control*>(&screen.rating_down)}) {
    item->SetVisible(settings.show_ratings_thumbs);
  }
  if (settings.show_ratings_thumbs) house_.rating.ShowRating();
}

}  // namespace sonotik
