// The jukebox: everything built and joined, ready to be started.
#ifndef SONOTIK_SHELL_JUKEBOX_H_
#define SONOTIK_SHELL_JUKEBOX_H_

#include <string>

#include "playback/genre_lists.h"
#include "shell/assembly.h"
#include "shell/chart_ways.h"
#include "shell/genre_ways.h"
#include "shell/key_poll.h"
#include "shell/menu.h"
#include "shell/navigation.h"
#include "shell/options.h"
#include "shell/search_ways.h"
#include "shell/settings_effects.h"
#include "shell/shutdown.h"
#include "shell/start_up.h"
#include "shell/ticks.h"

namespace sonotik {

class Jukebox {
 public:
  // `app_path` is the program's folder as a program path, without a closing "\".
  Jukebox(std::string app_path, Machine& machine)
      : house(std::move(app_path), machine),
        effects(house),
        start_up(house, effects),
        ticks(house),
        menu(house),
        navigation(house, menu),
        chart_ways(house, menu, navigation),
        search_ways(house, menu, navigation),
        genre_ways(house),
        keys(house, menu, navigation),
        options(house, effects),
        shutdown(house, effects.displays) {
    start_up.hooks.load_sign = [this] {
      house.sign.LoadSign();
      house.led_sign.CommitChanges();
    };
    options.commit_sign = [this] { house.led_sign.CommitChanges(); };
    shutdown.hooks.send_closing_text = [this] { house.led_sign.Clear(); };
    shutdown.hooks.save_random = [this] { SaveGenreLists(house.app_path, house.lists); };
    house.calendar.swap_skin = [this](const std::string& name) { effects.PutOnSkin(name); };
    start_up.hooks.ApplySkin = [this] { effects.ApplySkin(); };
    start_up.hooks.update_skinlist = [this] { house.skins.UpdateSkinList(); };
    ticks.hooks.key_is_held = [this] { return keys.KeyIsHeld(); };
    ticks.hooks.PollKeys = [this] { keys.PollKeys(); };
    menu.hooks.power_down = [this] { shutdown.power_down(); };
    start_up.hooks.load_history_chart = [this](const std::string& path) {
      house.charts.load_history_chart(path);
    };
    menu.hooks.reset_search = [this] { house.search.Reset(); };
    menu.hooks.show_genres = [this] { house.genres.show_genres(); };
    start_up.hooks.genre_scroll_show = [this] { house.genres.genre_scroll_show(); };
    start_up.hooks.clear_search = [this] { house.search.suggestions().Clear(); };
    start_up.hooks.read_window_style = [this] { effects.displays.ReadWindowStyle(); };
    start_up.hooks.apply_window_style = [this] { effects.displays.ApplyWindowStyle(); };
    ticks.hooks.ticker_visible = [this] { return house.video_window.ticker_visible(); };
    ticks.hooks.hide_ticker = [this] { house.video_window.HideTicker(); };
    ticks.hooks.leave_program = [this] { shutdown.TimedExit(); };
  }

  // See StartUp::Form_Load.
  StartUpResult Start() { return start_up.Form_Load(); }
  // SIGTERM, Ctrl+C.
  void LeaveInOrder() {
    house.boundary.Run("leaving", [this] { shutdown.TimedExit(); });
  }
  // The window refuses to close unless the program itself leaves.
  bool MayClose() const { return house.state.shutting_down; }

  Assembly house;
  SettingsEffects effects;
  StartUp start_up;
  Ticks ticks;
  Menu menu;
  Navigation navigation;
  ChartWays chart_ways;
  SearchWays search_ways;
  GenreWays genre_ways;
  KeyPoll keys;
  Options options;
  Shutdown shutdown;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_JUKEBOX_H_
