// What catches the eye while nobody touches the cabinet: pictures, in turn with what plays.
#ifndef SONOTIK_PLAYBACK_ATTRACT_H_
#define SONOTIK_PLAYBACK_ATTRACT_H_

#include <functional>

#include "config/settings.h"
#include "files/file_list.h"
#include "forms/Form1.h"
#include "platform/random_source.h"
#include "skins/cover_animation.h"

namespace sonotik {

class Attract {
 public:
  Attract(const Settings& settings, RandomSource& random, CoverAnimation& animation, Form1& form)
      : settings_(settings), random_(random), animation_(animation), form1_(form) {}

  // Whether somebody has touched the cabinet since the change began: then it goes no further.
  std::function<bool()> touched = [] { return false; };

  // One change: the next picture for what plays, or what plays for the picture. An empty folder
  // still takes its turn, with the last picture.
  void Change();
  // A touch: the picture goes, and with it the screen behind, for the album pages.
  void End();

 private:
  void Animate(Panel& panel, int show);
  static void Hide(Panel& panel);

  const Settings& settings_;
  RandomSource& random_;
  CoverAnimation& animation_;
  Form1& form1_;
  FileList files_{"*.jpg;*.jpeg;*.png;*.bmp;*.gif"};
};

}  // namespace sonotik

#endif  // SONOTIK_PLAYBACK_ATTRACT_H_
