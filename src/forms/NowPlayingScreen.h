// What plays: the picture or the cover, its names, and what comes next.
#ifndef SONOTIK_FORMS_NOWPLAYINGSCREEN_H_
#define SONOTIK_FORMS_NOWPLAYINGSCREEN_H_

#include <array>

#include "forms/design.h"
#include "widgets/ucAniGIF.h"

namespace sonotik {

struct NowPlayingScreen {
  explicit NowPlayingScreen(Panel& panel);

  Panel& panel;
  PictureBox cover;
  PictureBox cover_frame;
  Label artist;
  Label title;
  Label length;
  VideoBox video;
  lvButtons_H full_screen;
  // Shown with "Show Ratings Thumbs".
  ucAniGIF rating;
  Label rating_caption;  // "Current Rating:"
  lvButtons_H rating_up;
  lvButtons_H rating_down;
  // The "Next Song:" panel.
  Panel next_song;
  Label next_song_caption;
  PictureBox next_song_cover;
  Label next_song_artist;
  Label next_song_title;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_NOWPLAYINGSCREEN_H_
