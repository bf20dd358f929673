#include "config/settings_table.h"

namespace sonotik {
namespace {

using S = Settings;
using L = OptionLists;

SettingValue Check(const char* caption, bool S::*member) {
  return {SettingKind::kCheck, member, caption};
}
SettingValue Truth(const char* caption, bool S::*member) {
  return {SettingKind::kTruth, member, caption};
}
SettingValue Text(const char* caption, std::string S::*member) {
  return {SettingKind::kText, member, caption};
}
SettingValue Int16(const char* caption, int S::*member) {
  return {SettingKind::kInt16, member, caption};
}
SettingValue Int32(const char* caption, int S::*member) {
  return {SettingKind::kInt32, member, caption};
}
SettingValue Index(const char* caption, int S::*member, ItemList L::*list) {
  return {SettingKind::kIndex, member, caption, list};
}
SettingValue Constant(const char* line) { return {SettingKind::kConstant, {}, line}; }
SettingValue Version() { return {SettingKind::kVersion, {}, ""}; }

// Labels stand with their slips: the file has to look as it always did.
std::vector<SettingRow> MakeRows() {
  return {
      {1, "Sonotik Alpha INI File.", {}},
      {2, "By Tomas Wendling", {}},
      {3, nullptr, {Version()}},
      {4, nullptr, {Version()}},
      {5, nullptr, {Version()}},
      {6, nullptr, {Check("Shuffle Queue Each Play", &S::shuffle_queue_each_play)}},
      {7, "Cover Settings", {Text("Cover image name", &S::cover_image_name)}},
      {8, nullptr, {Check("Use folder name...", &S::use_folder_name)}},
      {9, nullptr, {Check("Display 1st image found", &S::display_first_image)}},
      {11, nullptr, {{SettingKind::kSkinNames, {}, "Selected Skin:"}}},
      {12, "Credit Settings", {Check("Enable Credit mode", &S::enable_credit_mode)}},
      {13,
       "Attract Mode Settings",
       {Text("Animation Amount:", &S::animation_amount),
        Text("Attract Delay:", &S::attract_delay)}},
      {14, "[Current Skin]", {Text("Selected Skin:", &S::current_skin)}},
      {15,
       "Show Details on album view",
       {Int16("Show Album/Arist Names", &S::show_album_artist_names)}},
      {16, "Number of covers to show settings", {Int16("Resolution:", &S::cover_layout)}},
      {17, "Null", {}},
      {18, "Unused Option", {}},
      {19, "Use Random Mode", {Check("Enable Random Play", &S::enable_random_play)}},
      {20, "Allow Random Songs In History", {Constant(" 0 ")}},
      {21, "Random Mode Volume", {Int32("Volume For Random Play Songs:", &S::random_volume)}},
      {22, "Main Volume", {Int32("Main Volume", &S::main_volume)}},
      {23, "Allow Duplicates", {Check("Allow duplicates in queue", &S::allow_duplicates_in_queue)}},
      {24, "Save Queue on Shutdown", {Check("Save Queue On Shutdown", &S::save_queue_on_shutdown)}},
      // 1 hides the mouse, whatever the label says.
      {25, "Show mouse", {Check("Hide Mouse", &S::hide_mouse)}},
      {26, "Require Pin", {Check("Prompt for pin", &S::prompt_for_pin)}},
      {27, "Full Screen mode", {Check("Full Screen Mode...", &S::full_screen)}},
      {28, "Use Animations", {Check("Use Animated Covers", &S::use_animated_covers)}},
      {29,
       "Animation Style",
       {Index("Animation Style:", &S::animation_style, &L::cover_animations)}},
      {30,
       nullptr,
       {Check("History", &S::menu_history), Check("Top 20", &S::menu_top20),
        Check("Search", &S::menu_search), Check("Queue", &S::menu_queue),
        Check("Options", &S::menu_options), Check("Decades", &S::menu_decades),
        Check("Carousel View", &S::menu_carousel), Check("Genres", &S::menu_genres),
        Check("Display Player Controls", &S::display_player_controls),
        Check("Display Menu Bar", &S::display_menu_bar), Check("Volume Slider", &S::volume_slider),
        Check("Volume Buttons", &S::volume_buttons), Check("Player Buttons", &S::player_buttons)}},
      {31, "Mute Line Ine", {Check("Mute LINE IN on Play", &S::mute_line_in_on_play)}},
      {32, "Use Animated Help", {Constant(" 0 ")}},
      {33, "Show Help After Timeout", {Constant("NULL")}},
      {34, "Use Second Screen for Videos", {Check("Use second monitor", &S::use_second_monitor)}},
      {35, "Monitor To Use", {Index("Second Monitor ID:", &S::second_monitor, &L::monitors)}},
      {36,
       "Use WINAMP Visualisations if not video playing",
       {Check("Use WINAMP visualizations for AUDIO", &S::use_visualisations)}},
      {37,
       "Dead Air Time",
       {{SettingKind::kNumberText, &S::wait_between_tracks, "Wait Time Between Tracks:"}}},
      {38, "Use Tag for track list", {Constant(" 0 ")}},
      {39, "Use Filename for tack list", {Constant(" 0 ")}},
      {40, "NEW track list", {Constant(" 0 ")}},
      {41,
       "Use Filename if no tag found",
       {Check("Use Filename If No Tag Found", &S::use_filename_if_no_tag)}},
      {42, "Display Track Numbers", {Check("Display Track Numbers", &S::display_track_numbers)}},
      {43,
       "Display Tabs",
       {Check("Audio", &S::tab_audio), Check("Video", &S::tab_video),
        Check("Karaoke", &S::tab_karaoke), Check("Most Played", &S::tab_most_played),
        Check("Newly Added", &S::tab_newly_added), Check("SPIN on THIS", &S::tab_spin_on_this)}},
      {44, "Random Play Settings", {Constant(" 0 ")}},
      {45,
       "Play Button Settings",
       {Check("Play It Now", &S::play_it_now), Check("Play Next", &S::play_next),
        Check("Add To Queue", &S::add_to_queue), Check("Add Entire Album", &S::add_entire_album),
        Check("Add Album To Carousel", &S::add_album_to_carousel),
        Check("Show Ratings Thumbs", &S::show_ratings_thumbs),
        Check("Show Credits Display", &S::show_credits_display),
        Check("Show Now Playing", &S::show_now_playing),
        Check("ShowTime And Date", &S::show_time_and_date), Check("BurnCD", &S::burn_cd),
        Check("Download Track", &S::download_track)}},
      {46,
       "Random play categories",
       {Check("Audio", &S::random_from_audio), Check("Video", &S::random_from_video),
        Check("Karaoke", &S::random_from_karaoke),
        Check("Use Selected Genres", &S::random_from_genres)}},
      {47, "Use new graphic", {Check("Show New On Recent Albums", &S::show_new_on_recent_albums)}},
      {48, "Disable QUICKJUMP", {Check("Hide QUICKJUMP Covers", &S::hide_quickjump_covers)}},
      {49, "Resolution", {Constant("Null")}},
      {50, "Check Skins", {Check("Update Skins On Load", &S::update_skins_on_load)}},
      {51, "Run Command On Shutdown", {Text("Run Command On Shutdown:", &S::shutdown_command)}},
      {52, "Admin Pin", {Text("Admin Access", &S::admin_pin)}},
      {53, "Delegate Pin", {Text("Delegate Access", &S::delegate_pin)}},
      {54,
       "Auto back to album view",
       {Check("Auto Back On Selection...", &S::auto_back_on_selection)}},
      {55, "NULL", {}},
      {56,
       "Time out to now playing screen",
       {Text("Time to wait before switching....", &S::now_playing_wait)}},
      {57,
       "Show Track First on Comp Albums",
       {Check("Show Track First Compilations", &S::show_track_first)}},
      {58,
       "Hide ADD Album and ADD Carasoule",
       {Check("Hide Add Carousel / Album on track select", &S::hide_add_on_track_select)}},
      {59,
       "Shutdown at",
       {Index("Exit Program at:", &S::exit_time, &L::exit_times),
        Check("Exit Program at:", &S::exit_program_at)}},
      {60, "Disable Key Mapping", {Check("Disable Keymapping", &S::disable_keymapping)}},
      {61,
       "Random Songs Repeated",
       {Check("Do Not Repeat song for:", &S::do_not_repeat),
        Index("Do Not Repeat song for:", &S::do_not_repeat_count, &L::no_repeat_counts)}},
      {62,
       "Double Click Options",
       {Check("Enable Double Click...", &S::enable_double_click),
        Index("Enable Double Click...", &S::double_click_action, &L::double_click_actions)}},
      {63, "Cover animation speed", {Int32("Animation Speed", &S::cover_animation_speed)}},
      {64, "Attract mode animation speed", {Int32("Animation Speed", &S::attract_animation_speed)}},
      {65,
       "Attract mode animation style",
       {Index("Attract AnimationStyle:", &S::attract_animation_style, &L::cover_animations),
        Truth("Random Picture", &S::attract_random_picture),
        Truth("Alphabetical Order", &S::attract_alphabetical)}},
      {66, "Attract mode Enabled", {Check("Attract Mode Enabled", &S::attract_enabled)}},
      {67, "Attract mode Path", {Text("Attract Mode Path:", &S::attract_path)}},
      {68, "Enable Jingles", {Check("Enable Jingles", &S::enable_jingles)}},
      {69,
       "Play every x songs",
       {Index("Song Count:", &S::jingle_song_count, &L::jingle_song_counts)}},
      {70,
       "Jingles Path",
       {Text("Jingle Path", &S::jingle_path), Truth("Shutdown", &S::power_shutdown),
        Truth("Reboot", &S::power_reboot), Truth("Log Off", &S::power_log_off),
        Truth("Power Down ATX", &S::power_down_atx), Truth("Exit To Windows", &S::power_exit)}},
      {71,
       "Use Seperate Slider for Random",
       {Check("Use This Volume For Random", &S::use_random_volume)}},
      {72, "Random Genre", {}},
      {73, "OLD GENRE", {}},
      {74,
       "Start Up Database",
       {Index("Database to use on startup...", &S::startup_database, &L::startup_databases)}},
      {75, "Read Only Queue", {Check("Set Queue Read Only", &S::read_only_queue)}},
      {76, "Show Key Pad Entry Display", {Check("Show Entry Digits", &S::show_entry_digits)}},
      {77, "Show Key Pad Entry On Album", {Check("Show Album Digits", &S::show_album_digits)}},
      {78, "Enable MIC for Videos", {Check("Enable MIC on Videos", &S::enable_mic_on_videos)}},
      {79, "Add all to queue", {Check("Add All To Queue", &S::add_all_to_queue)}},
  };
}

}  // namespace

const std::vector<SettingRow>& SettingRows() {
  static const std::vector<SettingRow> rows = MakeRows();
  return rows;
}

const std::vector<int>& HeldBackRows() {
  static const std::vector<int> rows = {41, 42, 36, 24, 27, 34, 35, 19, 23,
                                        25, 28, 26, 21, 22, 7,  15, 8,  9};
  return rows;
}

}  // namespace sonotik
