// Everything of the jukebox, built once and joined: each object gets just what it needs, and what
// would point upwards is a callback that is filled in here.
#ifndef SONOTIK_SHELL_ASSEMBLY_H_
#define SONOTIK_SHELL_ASSEMBLY_H_

#include <string>

#include "access/credits.h"
#include "access/key_map.h"
#include "access/permissions.h"
#include "access/pin_entry.h"
#include "catalogue/album_pages.h"
#include "catalogue/carousel.h"
#include "catalogue/charts.h"
#include "catalogue/decades.h"
#include "catalogue/genres.h"
#include "catalogue/history.h"
#include "catalogue/history_view.h"
#include "catalogue/letter_jump.h"
#include "catalogue/play_options.h"
#include "catalogue/search.h"
#include "catalogue/search_results.h"
#include "catalogue/song_facts.h"
#include "catalogue/top20.h"
#include "catalogue/track_list.h"
#include "config/settings_file.h"
#include "files/milestone_log.h"
#include "forms/Form1.h"
#include "forms/Form2.h"
#include "forms/Form3.h"
#include "forms/Splash.h"
#include "peripherals/cls_Winamp.h"
#include "peripherals/input_muting.h"
#include "peripherals/led_sign.h"
#include "peripherals/network.h"
#include "peripherals/sign_settings.h"
#include "platform/machine.h"
#include "playback/attract.h"
#include "playback/fact_display.h"
#include "playback/genre_lists.h"
#include "playback/media_engine.h"
#include "playback/queue.h"
#include "playback/queue_view.h"
#include "playback/random_play.h"
#include "playback/rating.h"
#include "playback/selection.h"
#include "playback/track_sequence.h"
#include "playback/video_window.h"
#include "shell/boundary.h"
#include "shell/calendar.h"
#include "skins/cover_animation.h"
#include "skins/skin_loader.h"

namespace sonotik {

// The counters of the two timers, and how the program stands.
struct ShellState {
  double idle_seconds = 0;
  double attract_seconds = 0;
  int random_wait_seconds = 0;
  int jingle_song_count = 0;
  int ticker_seconds = 0;
  Date last_seen_date;
  // The display mode found at start.
  DisplayMode saved_mode;
  bool attract_settings_loaded = false;
  bool shutting_down = false;
};

struct Assembly {
  Assembly(std::string app_path, Machine& machine);
  Assembly(const Assembly&) = delete;
  Assembly& operator=(const Assembly&) = delete;

  const std::string app_path;
  Machine& machine;
  Boundary boundary;
  ShellState state;
  Timer timer1;
  Timer state_timer;

  Settings settings;
  OptionLists lists;
  Splash splash;
  Form1 form1;
  Form2 form2;
  Form3 form3;

  MilestoneLog log;
  SettingsFile settings_file;
  Credits credits;
  KeyMap key_map;
  Permissions permissions;
  PinEntry pin;
  InputMuting inputs;
  cls_Winamp winamp;
  BoundedCalls share;
  Network network;
  SignSettings sign;
  LedSign led_sign;

  TagFields fields;
  TagReader tags;
  CoverLayout cover_layout;
  SkinLoader skins;
  CoverFinder covers;
  Catalogue catalogue;
  CatalogueCursor cursor;
  CoverAnimation animation;
  AlbumPages pages;
  LetterJump letter_jump;
  Carousel carousel;
  TrackList track_list;
  PlayOptions play_options;
  SearchResults search_results;
  Search search;
  Charts charts;
  Decades decades;
  Genres genres;
  History history;
  HistoryView history_view;
  Top20 top20;
  FactTable facts;

  PlaybackState playback;
  MediaEngine engine;
  VideoWindow video_window;
  Queue queue;
  QueueView queue_view;
  TrackSequence tracks;
  Selection selection;
  RandomPlay random_play;
  Jingles jingles;
  FactDisplay fact_display;
  Rating rating;
  Attract attract;
  Calendar calendar;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_ASSEMBLY_H_
