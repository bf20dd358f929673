#include "shell/options_table.h"

namespace sonotik {
namespace {

using K = OptionKind;
using Frames = std::vector<OptionFrame>;

constexpr float kPreviewHeight = 150;
constexpr float kCalendarHeight = 400;
// What the sliders of the animations run over.
constexpr int kFastest = 100;

struct Maker {
  Assembly& house;
  SettingsEffects& effects;
  OptionsState& state;
  const OptionCommands& commands;
  Settings& s = house.settings;
  OptionLists& lists = house.lists;

  static OptionRow Check(const char* caption, bool& value) {
    return {.caption = caption, .kind = K::kCheck, .value = &value};
  }
  static OptionRow Check(const char* caption, bool& value, std::function<void()> changed) {
    OptionRow row = Check(caption, value);
    row.changed = std::move(changed);
    return row;
  }
  static OptionRow Choice(
      const char* caption, bool& value, std::function<void()> changed = [] {}) {
    OptionRow row = Check(caption, value, std::move(changed));
    row.kind = K::kChoice;
    return row;
  }
  static OptionRow List(
      const char* caption, int& value, const ItemList& items, std::function<void()> changed = [] {},
      bool may_be_none = false) {
    return {.caption = caption,
            .kind = K::kList,
            .value = &value,
            .items = &items,
            .may_be_none = may_be_none,
            .changed = std::move(changed)};
  }
  static OptionRow Text(const char* caption, std::string& value, K kind = K::kText) {
    return {.caption = caption, .kind = kind, .value = &value};
  }
  static OptionRow Slide(const char* caption, int& value, int least, int most) {
    return {.caption = caption, .kind = K::kSlider, .value = &value, .least = least, .most = most};
  }
  static OptionRow Command(const char* caption, std::function<void()> run) {
    return {.caption = caption, .kind = K::kCommand, .changed = std::move(run)};
  }

  // Shows all of its list, and what is picked there goes over to the other.
  static OptionRow Genres(const char* caption, const ItemList& items, std::function<void()> run) {
    return {.caption = caption, .kind = K::kList, .items = &items, .changed = std::move(run)};
  }

  Frames General() {
    Frames frames = {
        {"Play Options...",
         {Check("Shuffle Queue Each Play", s.shuffle_queue_each_play),
          Check("Mute LINE IN on Play", s.mute_line_in_on_play),
          Check("Enable MIC on Videos", s.enable_mic_on_videos),
          Check("Allow duplicates in queue", s.allow_duplicates_in_queue),
          // Neither this limit nor "Not Used" has any effect or place in a file; that is meant.
          Check("Limit Queue:", state.limit_queue),
          List("Limit Queue:", state.queue_limit, lists.jingle_song_counts)}},
        {"Track List Options...",
         {Check("Auto Back On Selection...", s.auto_back_on_selection),
          Check("Enable Double Click...", s.enable_double_click),
          List("Enable Double Click...", s.double_click_action, lists.double_click_actions)}},
        {"Switch to now playing...",
         {Text("Time to wait before switching....", s.now_playing_wait, K::kNumber),
          Check("Not Used", state.not_used)}},
        {"Power Down Options",
         {Check("Save Queue On Shutdown", s.save_queue_on_shutdown),
          Check("Save Carousel On Shutdown", s.save_carousel_on_shutdown),
          Check("Exit Program at:", s.exit_program_at),
          List("Exit Program at:", s.exit_time, lists.exit_times),
          Text("Run Command On Shutdown:", s.shutdown_command)}},
        {"Power Down Options",
         {Choice("Shutdown", s.power_shutdown), Choice("Reboot", s.power_reboot),
          Choice("Log Off", s.power_log_off), Choice("Power Down ATX", s.power_down_atx),
          Choice("Exit To Windows", s.power_exit)}},
        {"Option Screen Settings",
         {Text("Admin Access", s.admin_pin, K::kPin),
          Text("Delegate Access", s.delegate_pin, K::kPin),
          Check("Prompt for pin", s.prompt_for_pin, commands.prompt_changed)}},
        {"Default Database",
         {List("Database to use on startup...", s.startup_database, lists.startup_databases)}}};
    // The last one is read by nothing; that is meant.
    static constexpr const char* kPermissionLines[] = {
        "Enable General Settings", "Enable Appearence Settings",   "EnableRandom Play Settings",
        "Enable Button Settings",  "Enable Attract Mode Settings", "Enable Key Shortcuts Settings",
        "Enable Coin Settings",    "Enable LED Sign Settings",     "Enable POWER OFF BUTTON",
        "Require PIN To Shutdown"};
    for (size_t i = 0; i < std::size(kPermissionLines); ++i) {
      frames[5].rows.push_back(Check(kPermissionLines[i], house.permissions.box(i)));
    }
    return frames;
  }

  Frames Appearance() {
    OptionsScreen& screen = house.form1.options;
    const auto move_second = [effects = &effects] { effects->displays.MoveSecondMonitor(); };
    OptionRow names = {.caption = "Show Album/Arist Names",
                       .kind = K::kCheck,
                       .value = &s.show_album_artist_names};
    return {{"Appearance Options",
             {List("Selected Skin:", state.shown_skin, lists.skins,
                   [this_house = &house, this_state = &state] {
                     const int index = this_state->shown_skin;
                     this_house->skins.Select(this_house->lists.skins[static_cast<size_t>(index)]);
                   }),
              {.caption = "",
               .kind = K::kList,
               .control = &screen.skin_preview,
               .height = kPreviewHeight},
              {.caption = "", .kind = K::kList, .control = &screen.skin_resolution, .height = 24},
              Command("Apply Skin", commands.apply_skin),
              Command("Refresh Skin List", commands.refresh_skins),
              List("Resolution:", s.cover_layout, lists.cover_layouts,
                   [effects = &effects] { effects->SelectCoverLayout(); }),
              Check("Update Skins On Load", s.update_skins_on_load),
              Check("Hide Mouse", s.hide_mouse),
              names,
              Check("Full Screen Mode...", s.full_screen,
                    [effects = &effects] { effects->displays.SwitchFullScreen(); })}},
            {"Album Options",
             {Check("Hide QUICKJUMP Covers", s.hide_quickjump_covers),
              Check("Show New On Recent Albums", s.show_new_on_recent_albums)}},
            {"Animation Options",
             {Check("Use Animated Covers", s.use_animated_covers),
              List("Animation Style:", s.animation_style, lists.cover_animations),
              Slide("Animation Speed", s.cover_animation_speed, 0, kFastest)}},
            {"Cover Filename Options",
             {Text("Cover image name", s.cover_image_name),
              Check("Use folder name...", s.use_folder_name),
              Check("Display 1st image found", s.display_first_image)}},
            {"Track Display Options",
             {Check("Use Filename If No Tag Found", s.use_filename_if_no_tag),
              Check("Display Track Numbers", s.display_track_numbers),
              Check("Show Track First Compilations", s.show_track_first)}},
            {"Video\\Visualisations Options",
             {Check("Use second monitor", s.use_second_monitor, move_second),
              List("Second Monitor ID:", s.second_monitor, lists.monitors, move_second),
              {.caption = "Use Second Monitor For:",
               .kind = K::kList,
               .value = &s.second_monitor_videos_only,
               .items = &state.monitor_uses,
               .changed = move_second},
              Check("Use WINAMP visualizations for AUDIO", s.use_visualisations)}}};
  }

  // With none ticked the machine could choose nothing: the last one that is taken away comes back.
  OptionRow Source(const char* caption, bool& value) {
    return Check(caption, value, [&settings = s, &value] {
      if (!settings.random_from_audio && !settings.random_from_video &&
          !settings.random_from_karaoke) {
        value = true;
      }
    });
  }

  Frames RandomPlay() {
    return {{"Random Play Options",
             {Check("Enable Random Play", s.enable_random_play),
              Text("Wait Time Between Tracks:", s.wait_between_tracks, K::kNumber),
              Source("Audio", s.random_from_audio), Source("Video", s.random_from_video),
              Source("Karaoke", s.random_from_karaoke),
              Check("Use This Volume For Random", s.use_random_volume),
              Slide("Volume For Random Play Songs:", s.random_volume, kLeastVolume, kMostVolume),
              Check("Do Not Repeat song for:", s.do_not_repeat),
              List("Do Not Repeat song for:", s.do_not_repeat_count, lists.no_repeat_counts),
              Check("Use Selected Genres", s.random_from_genres),
              Genres(">>", lists.available_genres, commands.add_genre),
              Genres("<<", lists.selected_genres, commands.remove_genre),
              Command("Reset GENRE Lists", commands.reset_genres)}},
            {"Jingles....",
             {Check("Enable Jingles", s.enable_jingles),
              List("Song Count:", s.jingle_song_count, lists.jingle_song_counts),
              Text("Jingle Path", s.jingle_path, K::kFolder)}}};
  }

  Frames Buttons() {
    const auto menu = [this](const char* caption, bool& value) {
      return Check(caption, value, [effects = &effects] { effects->ShowMenu(); });
    };
    const auto tab = [this](const char* caption, bool& value) {
      return Check(caption, value, [effects = &effects] { effects->ShowTabs(); });
    };
    const auto display = [this](const char* caption, bool& value) {
      return Check(caption, value, [effects = &effects] { effects->ShowDisplays(); });
    };
    return {{"Menu Button Options",
             {menu("History", s.menu_history), menu("Top 20", s.menu_top20),
              menu("Search", s.menu_search), menu("Queue", s.menu_queue),
              menu("Options", s.menu_options), menu("Decades", s.menu_decades),
              menu("Carousel View", s.menu_carousel), menu("Genres", s.menu_genres)}},
            {"Play Button Options",
             {Check("Play It Now", s.play_it_now), Check("Play Next", s.play_next),
              Check("Add To Queue", s.add_to_queue), Check("Add Entire Album", s.add_entire_album),
              Check("Add Album To Carousel", s.add_album_to_carousel), Check("BurnCD", s.burn_cd),
              Check("Download Track", s.download_track),
              Check("Hide Add Carousel / Album on track select", s.hide_add_on_track_select)}},
            {"Misc Button Options",
             {menu("Display Player Controls", s.display_player_controls),
              menu("Display Menu Bar", s.display_menu_bar), menu("Volume Slider", s.volume_slider),
              menu("Volume Buttons", s.volume_buttons), menu("Player Buttons", s.player_buttons),
              display("Show Ratings Thumbs", s.show_ratings_thumbs),
              display("Show Credits Display", s.show_credits_display),
              display("Show Now Playing", s.show_now_playing),
              display("ShowTime And Date", s.show_time_and_date)}},
            {"Tab Display Options",
             {tab("Audio", s.tab_audio), tab("Video", s.tab_video), tab("Karaoke", s.tab_karaoke),
              tab("Most Played", s.tab_most_played), tab("Newly Added", s.tab_newly_added),
              tab("SPIN on THIS", s.tab_spin_on_this)}},
            {"Keypad Display Options",
             {Check("Show Entry Digits", s.show_entry_digits),
              Check("Show Album Digits", s.show_album_digits)}},
            {"Queue Display Options", {Check("Set Queue Read Only", s.read_only_queue)}},
            {"Search Results Options", {Check("Add All To Queue", s.add_all_to_queue)}}};
  }

  Frames AttractMode() {
    return {{"General Attract Mode Options",
             {Check("Attract Mode Enabled", s.attract_enabled),
              Text("Attract Delay:", s.attract_delay, K::kNumber),
              Text("Animation Amount:", s.animation_amount, K::kNumber),
              Slide("Animation Speed", s.attract_animation_speed, 0, kFastest),
              List("Attract AnimationStyle:", s.attract_animation_style, lists.cover_animations),
              Choice("Random Picture", s.attract_random_picture),
              Choice("Alphabetical Order", s.attract_alphabetical),
              Text("Attract Mode Path:", s.attract_path, K::kFolder)}},
            {"Calendar Settings For:",
             {{.caption = "",
               .kind = K::kList,
               .control = commands.calendar,
               .height = kCalendarHeight},
              Text("Attract Mode Path:", state.of_day.attract_path, K::kFolder),
              List("Swap To Holiday Skin:", state.holiday_skin, lists.calendar_skins,
                   commands.holiday_skin, true),
              Text("LED Sign Path:", state.of_day.sign_path),
              Text("Jingles Path:", state.of_day.jingles_path, K::kFolder),
              Text("Random Play Database:", state.of_day.database_path),
              Command("Save Date Info", commands.save_day)},
             true}};
  }

  Frames Keys() {
    struct Group {
      const char* caption;
      size_t first;
      std::vector<const char*> keys;
    };
    static const Group kGroups[] = {
        {"Browse/Select Albums", 0, {"UP", "DOWN", "LEFT", "RIGHT", "SELECT"}},
        {"Browse Key Mappings", 5, {"Browse Back", "Browse Forward"}},
        {"Audio Player Key Mappings",
         7,
         {"Restart Track", "Pause Audio", "Next Track", "Increase Vol", "Decrease Vol"}},
        {"Menu Key Mappings",
         12,
         {"Album View", "History", "Top20", "Search", "Show Queue", "Options", "Decades",
          "Carousel View", "Random On/Off"}},
        {"Keypad Mappings",
         21,
         {"8", "7", "6", "5", "4", "3", "2", "1", "0", "9", "Play NOW", "Play NEXT",
          "Add to Queue"}},
        {"Power Off", 34, {"Power Off Key"}}};
    Frames frames;
    for (const Group& group : kGroups) {
      OptionFrame frame{group.caption, {}};
      for (size_t i = 0; i < group.keys.size(); ++i) {
        frame.rows.push_back(List(
            group.keys[i], house.key_map.selection(group.first + i), lists.key_codes, [] {}, true));
      }
      frames.push_back(std::move(frame));
    }
    frames.back().rows.push_back(Check("Disable Keymapping", s.disable_keymapping));
    return frames;
  }

  Frames Coins() {
    static constexpr const char* kWays[] = {"Add To Queue (Normal)", "Play Next", "Play Now"};
    static constexpr const char* kKinds[] = {"Audio", "Video", "Karaoke"};
    Frames frames = {{"Credit Mode",
                      {Check("Enable Credit mode", s.enable_credit_mode,
                             [effects = &effects] { effects->SwitchCreditMode(); })}}};
    for (size_t kind = 0; kind < 3; ++kind) {
      OptionFrame frame{kKinds[kind], {}, kind == 1};
      for (size_t way = 0; way < 3; ++way) {
        frame.rows.push_back(
            List(kWays[way], house.credits.price_selection(way, kind), lists.prices));
      }
      frames.push_back(std::move(frame));
    }
    return frames;
  }

  Frames Sign() {
    return {{"Networked Settings",
             {Choice("Master", state.master, commands.role_changed),
              Choice("Terminal", state.terminal, commands.role_changed),
              {.caption = "Shared Folder",
               .kind = K::kText,
               .value = &state.shared_folder,
               .changed = commands.role_changed}}},
            {"BETABRITE Config Settings",
             {List("Sign", house.sign.model, lists.sign_types),
              List("Port", house.sign.port, lists.sign_ports),
              Text("Settings", house.sign.port_settings)},
             true},
            {"BETABRITE Message Settings",
             {Check("Enable LED Sign", house.sign.enabled),
              Command("Commit Changes", commands.commit_sign)}}};
  }
};

}  // namespace

OptionSections MakeOptionSections(Assembly& house, SettingsEffects& effects, OptionsState& state,
                                  const OptionCommands& commands) {
  Maker make{house, effects, state, commands};
  return {make.General(),     make.Appearance(), make.RandomPlay(), make.Buttons(),
          make.AttractMode(), make.Keys(),       make.Coins(),      make.Sign()};
}

}  // namespace sonotik
