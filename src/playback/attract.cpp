#include "playback/attract.h"

#include <algorithm>

#include "text/numbers.h"

namespace sonotik {
namespace {

// More than anybody can see; a number typed too long must not hold the screen for hours.
constexpr double kMostSteps = 500;

}  // namespace

void Attract::Change() {
  Panel& picture = form1_.attract_picture;
  Panel& now_playing = form1_.panel(screen::kNowPlaying);
  if (picture.visible()) {
    Animate(picture, 0);
    Animate(now_playing, 1);
    picture.SetVisible(false);
    // One that began meanwhile.
    form1_.RaiseFact();
    return;
  }
  files_.SetFolder(settings_.attract_path);
  // At random in both orders of the choice; that is meant.
  if (files_.count() > 0) {
    picture.SetPicture(files_.PathAt(static_cast<int>(random_.Below(files_.count()))));
  }
  Animate(now_playing, 0);
  picture.BringToFront();
  Animate(picture, 1);
  now_playing.SetVisible(false);
}

void Attract::End() {
  if (!form1_.attract_picture.visible()) return;
  form1_.panel(screen::kNowPlaying).SetVisible(false);
  Animate(form1_.attract_picture, 0);
  form1_.attract_picture.SetVisible(false);
}

void Attract::Animate(Panel& panel, int show) {
  const double steps = std::clamp(NumberOrZero(settings_.animation_amount), 0.0, kMostSteps);
  animation_.Animate(panel, show, animation_.Drawn(settings_.attract_animation_style),
                     settings_.attract_animation_speed, static_cast<int>(steps));
}

}  // namespace sonotik
