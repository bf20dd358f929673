#include "platform/timers.h"

#include <algorithm>

namespace sonotik {

Timer::Timer(Timers& timers, int interval_ms) : timers_(timers), interval_ms_(interval_ms) {
  timers_.timers_.push_back(this);
}

Timer::~Timer() { std::erase(timers_.timers_, this); }

void Timer::Retire() {
  retired_ = true;
  enabled_ = false;
}

void Timer::SetEnabled(bool enabled) {
  if (retired_) return;
  if (enabled && !enabled_) due_ = timers_.clock_.Milliseconds() + interval_ms_;
  const bool woken = enabled && !enabled_;
  enabled_ = enabled;
  if (woken && timers_.on_change) timers_.on_change();
}

void Timers::FireDue() {
  // By index: a handler may make or end timers.
  for (size_t i = 0; i < timers_.size(); ++i) {
    Timer& timer = *timers_[i];
    const int64_t now = clock_.Milliseconds();
    if (!timer.enabled_ || timer.due_ > now) continue;
    timer.due_ = now + timer.interval_ms_;
    if (timer.on_tick) timer.on_tick();
  }
}

int64_t Timers::UntilNext() const {
  int64_t next = -1;
  for (const Timer* timer : timers_) {
    if (!timer->enabled_) continue;
    const int64_t left = std::max<int64_t>(0, timer->due_ - clock_.Milliseconds());
    if (next < 0 || left < next) next = left;
  }
  return next;
}

}  // namespace sonotik
