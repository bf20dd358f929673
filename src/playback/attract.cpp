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
    // Gone before the other comes, or a touch on that one would end the picture behind it.
    Hide(picture);
    if (!touched()) Animate(now_playing, 1);
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
  // A guest who touches anything meanwhile keeps what he went to.
  if (touched()) return now_playing.SetRegion({});
  picture.BringToFront();
  Animate(picture, 1);
  if (touched()) {
    Hide(picture);
    now_playing.SetRegion({});
  } else {
    Hide(now_playing);
  }
}

void Attract::End() {
  if (!form1_.attract_picture.visible()) return;
  const unsigned long shown = form1_.screens_shown();
  Hide(form1_.panel(screen::kNowPlaying));
  Animate(form1_.attract_picture, 0);
  Hide(form1_.attract_picture);
  // A guest who opened a screen meanwhile, or is asked for his PIN, stays there.
  if (form1_.screens_shown() != shown || form1_.pin_screen.visible()) return;
  form1_.ShowScreen(screen::kAlbum);
}

void Attract::Hide(Panel& panel) {
  panel.SetVisible(false);
  // Whole again for whoever shows it next.
  panel.SetRegion({});
}

void Attract::Animate(Panel& panel, int show) {
  const double steps = std::clamp(NumberOrZero(settings_.animation_amount), 0.0, kMostSteps);
  animation_.Animate(panel, show, animation_.Drawn(settings_.attract_animation_style),
                     settings_.attract_animation_speed, static_cast<int>(steps));
}

}  // namespace sonotik
