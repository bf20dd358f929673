// The main window: every screen is a panel of it, the menu bar and the player panel lie outside.
#ifndef SONOTIK_FORMS_FORM1_H_
#define SONOTIK_FORMS_FORM1_H_

#include <array>
#include <vector>

#include "forms/AlbumScreen.h"
#include "forms/CarouselScreen.h"
#include "forms/DecadesScreen.h"
#include "forms/GenreScreen.h"
#include "forms/HistoryScreen.h"
#include "forms/NowPlayingScreen.h"
#include "forms/OptionsScreen.h"
#include "forms/PinScreen.h"
#include "forms/PlayOptionsScreen.h"
#include "forms/QueueScreen.h"
#include "forms/SearchResultsScreen.h"
#include "forms/SearchScreen.h"
#include "forms/Top20Screen.h"
#include "forms/TrackListScreen.h"
#include "widgets/ucAniGIF.h"

namespace sonotik {

// The sixteen screen panels by index.
namespace screen {
inline constexpr size_t kHistory = 0;
inline constexpr size_t kTop20 = 1;
inline constexpr size_t kSearch = 2;
inline constexpr size_t kQueue = 3;
inline constexpr size_t kOptions = 4;
inline constexpr size_t kDecades = 5;
inline constexpr size_t kCarousel = 6;
inline constexpr size_t kNowPlaying = 7;
inline constexpr size_t kAlbum = 8;
inline constexpr size_t kTrackList = 9;
inline constexpr size_t kSearchResults = 10;
inline constexpr size_t kGenre = 11;
inline constexpr size_t kSearchChoice = 12;
inline constexpr size_t kPlayOptions = 13;
inline constexpr size_t kChartChoice = 14;
inline constexpr size_t kCarouselStrip = 15;
}  // namespace screen

enum class MenuButton {
  kHistory,
  kTop20,
  kSearch,
  kShowQueue,
  kOptions,
  kDecades,
  kCarousel,
  kGenres,
  kAlbumView,
};

enum class PlayerButton { kRestart, kPause, kNext, kVolumeDown, kVolumeUp };

// Volumes of the sliders, in hundredths of a decibel.
inline constexpr int kLeastVolume = -4000;
inline constexpr int kMostVolume = 0;

struct Form1 {
  Form1();

  Form form;
  Panel menu;
  std::array<lvButtons_H, 9> menu_buttons;  // by MenuButton
  std::array<Panel, 16> panels;             // by screen::
  Panel player;
  std::array<lvButtons_H, 5> player_buttons;  // by PlayerButton
  Slider volume;
  lvButtons_H random;  // "Random ON", "Random OFF"
  // The status labels.
  Label now_playing_artist;
  Label now_playing_title;
  Label position;
  Label length;
  Label paused;
  PictureBox now_playing_cover;
  ucAniGIF now_playing_indicator;
  Label credits;
  Label play_caption;  // beside the credit display: "Play NOW"
  Label clock;
  // Over the NowPlayingScreen while a fact of the playing song is up.
  Label song_fact;
  // Further panels beside the sixteen.
  Panel pin_screen;
  Panel attract_picture;
  Panel genre_bar;

  AlbumScreen album;
  JumpToLetterScreen jump_to_letter;
  TrackListScreen track_list;
  PlayOptionsScreen play_options;
  QueueScreen queue;
  NowPlayingScreen now_playing;
  CarouselScreen carousel;
  DecadesScreen decades;
  HistoryScreen history;
  Top20Screen top20;
  SearchScreen search;
  SearchChoiceScreen search_choice;
  SearchResultsScreen search_results;
  SearchingPanel searching;
  GenreScreen genre;
  GenreBar genre_buttons;
  OptionsScreen options;
  PinScreen pin;

  Panel& panel(size_t index) { return panels[index]; }
  // Hides panels 0 to 13 and no others.
  void HideAllScreens();
  // Shows one panel in front.
  void ShowScreen(size_t index);
  // A fact of the song lies over the screen that is looked at; where somebody works it would cover
  // what he works with.
  void RaiseFact();
  // How often a screen was shown: where it has grown, somebody went on from where he was.
  unsigned long screens_shown() const { return screens_shown_; }
  // What no file of a skin places keeps its share of its panel, whatever size a skin gives that.
  void FitUnplaced();

 private:
  unsigned long screens_shown_ = 0;
  size_t shown_last_ = screen::kAlbum;
  struct Unplaced {
    Control* control;
    Rect design;
    Rect panel;  // its size in the design
  };
  void KeepShare(Control& control);
  void PlaceFact();

  std::vector<Unplaced> unplaced_;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_FORM1_H_
