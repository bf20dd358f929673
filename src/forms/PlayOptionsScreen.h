// The commands for one chosen track, with what it costs.
#ifndef SONOTIK_FORMS_PLAYOPTIONSSCREEN_H_
#define SONOTIK_FORMS_PLAYOPTIONSSCREEN_H_

#include <array>

#include "forms/design.h"

namespace sonotik {

struct PlayOptionsScreen {
  explicit PlayOptionsScreen(Panel& panel);

  Panel& panel;
  PictureBox cover;
  Label artist;
  Label title;
  Label message;     // "Track Already In Queue", "Insert Coins To Play AUDIO"
  Label queue_line;  // "(3) Songs In Queue"
  lvButtons_H play_now;
  lvButtons_H play_next;
  lvButtons_H add_to_queue;
  lvButtons_H download;
  lvButtons_H cancel;
  std::array<Label, 3> prices;  // Add To Queue, Play Next, Play Now
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_PLAYOPTIONSSCREEN_H_
