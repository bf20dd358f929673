// One album: its cover, a page of tracks with their commands, and other albums of the artist.
#ifndef SONOTIK_FORMS_TRACKLISTSCREEN_H_
#define SONOTIK_FORMS_TRACKLISTSCREEN_H_

#include <array>

#include "forms/design.h"

namespace sonotik {

inline constexpr int kMostTrackRows = 13;
inline constexpr int kQuickJumpCovers = 4;

struct TrackRow {
  Label title;
  Label time;
};

struct TrackListScreen {
  explicit TrackListScreen(Panel& panel);

  Panel& panel;
  PictureBox cover;
  Label album_heading;
  Label artist_heading;
  Label released_heading;
  std::array<TrackRow, kMostTrackRows> rows;
  lvButtons_H play_now;
  lvButtons_H play_next;
  lvButtons_H add_to_queue;
  lvButtons_H add_entire_album;
  lvButtons_H add_to_carousel;
  lvButtons_H burn_cd;
  lvButtons_H download;
  lvButtons_H up;
  lvButtons_H down;
  lvButtons_H back;
  std::array<PictureBox, kQuickJumpCovers> quick_jump;
  lvButtons_H quick_jump_left;
  lvButtons_H quick_jump_right;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_TRACKLISTSCREEN_H_
