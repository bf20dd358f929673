// Reveals or hides controls step by step, by regions that grow or shrink: covers, the track list,
// genres, attract pictures.
#ifndef SONOTIK_SKINS_COVER_ANIMATION_H_
#define SONOTIK_SKINS_COVER_ANIMATION_H_

#include <vector>

#include "config/settings.h"
#include "platform/event_loop.h"
#include "platform/random_source.h"
#include "widgets/control.h"

namespace sonotik {

// The last style of the operator's lists: each caller draws one of those before it.
inline constexpr int kRandomStyle = 14;
inline constexpr int kCoverAnimationSteps = 33;
// Genres and the carousel's covers have a speed of their own, in milliseconds a step.
inline constexpr int kTileDelay = 110;

class CoverAnimation {
 public:
  CoverAnimation(EventLoop& events, RandomSource& random) : events_(events), random_(random) {}

  // `show` 1 reveals, 0 hides. Each of the steps 0 to `steps` takes `delay_ms` and lets events run,
  // also without a delay, so the caller waits that long and may be entered again: an animation
  // whose target is animated anew, or hidden, meanwhile ends there. A style beyond the list, no
  // steps at all, or too many animations that wait for this one show the control at once and give
  // false.
  bool Animate(Control& target, int show, int style, int delay_ms, int steps);
  // The same for several at once, each in its own place; those that are hidden stay hidden.
  bool AnimateTogether(const std::vector<Control*>& targets, int show, int style, int delay_ms,
                       int steps);

  // Reveals by the operator's style what shows of these, if he has covers animated. A screen that
  // is painted behind another stays there.
  void RevealCovers(const Settings& settings, std::vector<Control*> covers, int delay_ms);

  // A style of the list with "Random" drawn.
  int Drawn(int style) {
    return style == kRandomStyle ? static_cast<int>(random_.Below(kRandomStyle)) : style;
  }

  bool running() const { return run_ != nullptr; }

 private:
  // An animation that goes on, and those it was entered from.
  struct Run {
    const std::vector<Control*>& targets;
    Run* outer;
    bool overtaken = false;  // one of its targets is animated anew
  };

  EventLoop& events_;
  RandomSource& random_;
  Run* run_ = nullptr;
};

// The region of a style (0 to 13) at step i of n, in the coordinates of a control of this size.
Region RevealedRegion(int style, int i, int n, float width, float height);

}  // namespace sonotik

#endif  // SONOTIK_SKINS_COVER_ANIMATION_H_
