// The home screen: a page of covers, its tabs, and three ways to jump.
#ifndef SONOTIK_FORMS_ALBUMSCREEN_H_
#define SONOTIK_FORMS_ALBUMSCREEN_H_

#include <array>

#include "forms/design.h"

namespace sonotik {

// 12 cover positions belong to the design; start-up makes the others, so 51 are in use at most.
inline constexpr int kDesignCovers = 12;
inline constexpr int kMostCovers = 51;

// The items that repeat for each cover of a page.
struct CoverPosition {
  PictureBox cover;
  PictureBox frame;
  PictureBox reflection;
  Label new_badge;
  Label album;
  Label artist;
};

// The tabs in the order of the settings file.
enum class AlbumTab { kAudio, kVideo, kKaraoke, kMostPlayed, kNewSongs, kSpinOnThis };

struct AlbumScreen {
  explicit AlbumScreen(Panel& panel);

  Panel& panel;
  std::array<CoverPosition, kMostCovers> covers;
  std::array<lvButtons_H, 6> tabs;  // by AlbumTab
  lvButtons_H previous;
  lvButtons_H jump_to_letter;
  lvButtons_H next;
  Label page_caption;
  // In the place of the page buttons, where a skin asks for it.
  Panel left_scroll;
  Panel right_scroll;
  lvButtons_H scroll_back;
  lvButtons_H scroll_forward;
  // The second letter panel: "A" to "Z", then "Jump To Start".
  Panel letters;
  std::array<lvButtons_H, 27> letter_buttons;
  // The letter strip of 27 equal zones and its thumb.
  Panel strip;
  Panel strip_thumb;
};

// The letter panel that lies over the covers: "A" to "Z", "Jump To Start", "Done".
struct JumpToLetterScreen {
  explicit JumpToLetterScreen(Panel& parent);

  Panel panel;
  Label heading;
  std::array<lvButtons_H, 26> letter_buttons;
  lvButtons_H jump_to_start;
  lvButtons_H done;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_ALBUMSCREEN_H_
