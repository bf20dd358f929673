#include "skins/cover_animation.h"

#include <algorithm>

namespace sonotik {
namespace {

constexpr int kStrips = 8;
// Who turns pages faster than they appear enters an animation from the wait of another, and none of
// these returns before the innermost does: without a bound that is the end of the stack.
constexpr int kMostNested = 8;

// From the middle of the control, this part of its width and height.
Rect Centred(float width, float height, float across, float down) {
  return {width * (1 - across) / 2, height * (1 - down) / 2, width * across, height * down};
}

// A thin line in the middle first grows to the whole width, then to the whole height.
Rect Unfolded(int i, int n, float width, float height) {
  const float line = 1 / static_cast<float>(n);
  const float part = static_cast<float>(i) / static_cast<float>(n);
  if (part < 0.5F) return Centred(width, height, 2 * part, line);
  return Centred(width, height, 1, line + (1 - line) * (2 * part - 1));
}

}  // namespace

Region RevealedRegion(int style, int i, int n, float width, float height) {
  const float part = static_cast<float>(i) / static_cast<float>(n);
  const float w = width * part;
  const float h = height * part;
  Region strips;
  for (int k = 0; k < kStrips; ++k) {
    const float at = static_cast<float>(k) / kStrips;
    if (style == 12) strips.push_back({0, height * at, width, h / kStrips});
    if (style == 13) strips.push_back({width * at, 0, w / kStrips, height});
  }
  switch (style) {
    case 0:
      return {{0, 0, w, height}};
    case 1:
      return {{width - w, 0, w, height}};
    case 2:
      return {{0, 0, width, h}};
    case 3:
      return {{0, height - h, width, h}};
    case 4:
      return {{0, 0, w, h}};
    case 5:
      return {{0, height - h, w, h}};
    case 6:
      return {{width - w, 0, w, h}};
    case 7:
      return {{width - w, height - h, w, h}};
    case 8:
      return {Centred(width, height, part, 1)};
    case 9:
      return {Centred(width, height, 1, part)};
    case 10:
      return {Centred(width, height, part, part)};
    case 11:
      return {Unfolded(i, n, width, height)};
    default:
      return strips;
  }
}

bool CoverAnimation::Animate(Control& target, int show, int style, int delay_ms, int steps) {
  target.SetVisible(true);
  return AnimateTogether({&target}, show, style, delay_ms, steps);
}

bool CoverAnimation::AnimateTogether(const std::vector<Control*>& targets, int show, int style,
                                     int delay_ms, int steps) {
  for (Control* target : targets) target->SetRegion({});
  int nested = 0;
  for (Run* run = run_; run != nullptr; run = run->outer, ++nested) {
    for (Control* target : targets) {
      if (std::ranges::count(run->targets, target) > 0) run->overtaken = true;
    }
  }
  if (nested >= kMostNested || targets.empty()) return false;
  if (style < 0 || style >= kRandomStyle || steps <= 0) return false;
  Run run{targets, run_};
  run_ = &run;
  const struct Leave {
    Run*& current;
    Run* outer;
    ~Leave() { current = outer; }
  } leave{run_, run.outer};
  for (int i = 0; i <= steps; ++i) {
    for (Control* target : targets) {
      const auto [left, top, width, height] = target->place();
      Region region = RevealedRegion(style, i, steps, width, height);
      if (show == 0) region = Without({{0, 0, width, height}}, region);
      target->SetRegion(std::move(region));
    }
    if (delay_ms > 0) {
      events_.WaitForEvents(delay_ms);
    } else {
      events_.PumpEvents();
    }
    if (run.overtaken) return true;
    if (std::ranges::none_of(targets, &Control::showing)) break;
  }
  // Revealed they are whole again, whatever size they take from here on.
  for (Control* target : targets) {
    if (show != 0 || !target->visible()) target->SetRegion({});
  }
  return true;
}

void CoverAnimation::RevealCovers(const Settings& settings, std::vector<Control*> covers,
                                  int delay_ms) {
  if (!settings.use_animated_covers) return;
  std::erase_if(covers, [](const Control* cover) { return !cover->showing(); });
  AnimateTogether(covers, 1, Drawn(settings.animation_style), delay_ms, kCoverAnimationSteps);
}

}  // namespace sonotik
