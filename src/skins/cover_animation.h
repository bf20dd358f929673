// Reveals or hides a control step by step, by a region that grows or shrinks: covers, the track
// list, attract pictures.
#ifndef SONOTIK_SKINS_COVER_ANIMATION_H_
#define SONOTIK_SKINS_COVER_ANIMATION_H_

#include "platform/event_loop.h"
#include "platform/random_source.h"
#include "widgets/control.h"

namespace sonotik {

// The last style of the operator's lists: each caller draws one of those before it.
inline constexpr int kRandomStyle = 14;
inline constexpr int kCoverAnimationSteps = 33;

class CoverAnimation {
 public:
  CoverAnimation(EventLoop& events, RandomSource& random) : events_(events), random_(random) {}

  // `show` 1 reveals, 0 hides. Each of the steps 0 to `steps` takes `delay_ms` and lets events run,
  // also without a delay, so the caller waits that long and may be entered again: an animation
  // whose target is animated anew, or hidden, meanwhile ends there. A style beyond the list, or no
  // steps at all, shows the control at once and gives false.
  bool Animate(Control& target, int show, int style, int delay_ms, int steps);

  // A style of the list with "Random" drawn.
  int Drawn(int style) {
    return style == kRandomStyle ? static_cast<int>(random_.Below(kRandomStyle)) : style;
  }

  bool running() const { return run_ != nullptr; }

 private:
  // An animation that goes on, and those it was entered from.
  struct Run {
    Control& target;
    Run* outer;
    bool overtaken = false;  // its target is animated anew
  };

  EventLoop& events_;
  RandomSource& random_;
  Run* run_ = nullptr;
};

// The region of a style (0 to 13) at step i of n, in the coordinates of a control of this size.
Region RevealedRegion(int style, int i, int n, float width, float height);

}  // namespace sonotik

#endif  // SONOTIK_SKINS_COVER_ANIMATION_H_
