// The settings record: the one home of every general setting of the jukebox. Code reads it at the
// moment of use. The rows of sonotik.ini and the captions stand beside it in settings_table.
#ifndef SONOTIK_CONFIG_SETTINGS_H_
#define SONOTIK_CONFIG_SETTINGS_H_

#include <string>

namespace sonotik {

// Initial values are those of the forms' design: what holds until a file is read. A setting that is
// picked from a list is its index there, -1 for none. Volumes are hundredths of a decibel.
struct Settings {
  // General: play options, track list options, switching, power down.
  bool shuffle_queue_each_play = false;
  bool mute_line_in_on_play = false;
  bool enable_mic_on_videos = false;
  bool allow_duplicates_in_queue = false;
  bool auto_back_on_selection = false;
  bool enable_double_click = false;
  int double_click_action = 0;
  std::string now_playing_wait = "60";  // seconds, "Time to wait before switching...."
  bool save_queue_on_shutdown = false;
  bool exit_program_at = false;
  int exit_time = -1;
  std::string shutdown_command;
  bool power_shutdown = false;
  bool power_reboot = false;
  bool power_log_off = false;
  bool power_down_atx = false;
  bool power_exit = true;
  std::string admin_pin;
  std::string delegate_pin;
  bool prompt_for_pin = false;
  int startup_database = 0;

  // Appearance.
  std::string current_skin;
  int cover_layout = -1;  // in the skin's list of *.cov files
  bool update_skins_on_load = false;
  bool hide_mouse = false;
  int show_album_artist_names = 1;
  bool full_screen = false;
  bool hide_quickjump_covers = false;
  bool show_new_on_recent_albums = false;
  bool use_animated_covers = false;
  int animation_style = 0;
  int cover_animation_speed = 0;
  std::string cover_image_name = "Cover.jpg";
  bool use_folder_name = false;
  bool display_first_image = false;
  bool use_filename_if_no_tag = false;
  bool display_track_numbers = false;
  bool show_track_first = false;
  bool use_second_monitor = false;
  int second_monitor = 0;  // the monitor's number is this plus 1
  bool use_visualisations = false;

  // Random play and jingles.
  bool enable_random_play = false;
  std::string wait_between_tracks = "5";  // seconds of dead air
  bool random_from_genres = false;
  bool random_from_audio = true;
  bool random_from_video = false;
  bool random_from_karaoke = false;
  bool use_random_volume = false;
  int random_volume = 0;
  int main_volume = 0;
  bool do_not_repeat = false;
  int do_not_repeat_count = 0;
  bool enable_jingles = false;
  int jingle_song_count = 0;
  std::string jingle_path;

  // Buttons.
  bool menu_history = true;
  bool menu_top20 = true;
  bool menu_search = true;
  bool menu_queue = true;
  bool menu_options = true;
  bool menu_decades = true;
  bool menu_carousel = true;
  bool menu_genres = true;
  bool display_player_controls = true;
  bool display_menu_bar = true;
  bool volume_slider = true;
  bool volume_buttons = true;
  bool player_buttons = true;
  bool tab_audio = true;
  bool tab_video = true;
  bool tab_karaoke = true;
  bool tab_most_played = true;
  bool tab_newly_added = true;
  bool tab_spin_on_this = true;
  bool play_it_now = true;
  bool play_next = true;
  bool add_to_queue = true;
  bool add_entire_album = true;
  bool add_album_to_carousel = false;
  bool show_ratings_thumbs = false;
  bool show_credits_display = true;
  bool show_now_playing = true;
  bool show_time_and_date = true;
  bool burn_cd = false;
  bool download_track = false;
  bool hide_add_on_track_select = false;
  bool read_only_queue = false;
  bool show_entry_digits = false;
  bool show_album_digits = false;
  bool add_all_to_queue = false;

  // Attract mode.
  std::string animation_amount = "33";
  std::string attract_delay = "20";  // seconds
  bool attract_enabled = false;
  int attract_animation_speed = 0;
  int attract_animation_style = 0;
  bool attract_random_picture = true;
  bool attract_alphabetical = false;
  std::string attract_path;

  // Keys and coins.
  bool disable_keymapping = false;
  bool enable_credit_mode = false;

  // On the pages, and in no file: these hold their design values at each start.
  bool save_carousel_on_shutdown = false;
  bool second_monitor_videos_only = false;  // "Use Second Monitor For:" is "All"

  bool operator==(const Settings&) const = default;
};

}  // namespace sonotik

#endif  // SONOTIK_CONFIG_SETTINGS_H_
