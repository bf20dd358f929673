// Timers: switches that the logic throws, and a list that fires those that are due.
#ifndef SONOTIK_PLATFORM_TIMERS_H_
#define SONOTIK_PLATFORM_TIMERS_H_

#include <cstdint>
#include <functional>
#include <vector>

#include "platform/clock.h"

namespace sonotik {

class Timers;

// A timer fires each `interval_ms` while it is enabled. Switching it on starts a whole interval, so
// a handler that switches its own timer off on entry and on at its end never enters itself, and a
// long handler stretches the interval.
class Timer {
 public:
  Timer(Timers& timers, int interval_ms);
  ~Timer();
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  bool enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  // Counts from the next time that it is switched on.
  void SetInterval(int interval_ms) { interval_ms_ = interval_ms; }
  // Off for good, whoever switches it on: the program leaves.
  void Retire();

  std::function<void()> on_tick;

 private:
  friend class Timers;
  Timers& timers_;
  int interval_ms_;
  int64_t due_ = 0;
  bool enabled_ = false;
  bool retired_ = false;
  int holds_ = 0;

  friend class TimerHold;
};

// Holds a timer off for the length of a handler and switches it on at its end, however that comes.
// Events that run inside may hold it again: the outermost alone gives it back.
class TimerHold {
 public:
  explicit TimerHold(Timer& timer) : timer_(timer) {
    ++timer_.holds_;
    timer_.SetEnabled(false);
  }
  ~TimerHold() {
    if (--timer_.holds_ == 0) timer_.SetEnabled(true);
  }
  TimerHold(const TimerHold&) = delete;
  TimerHold& operator=(const TimerHold&) = delete;

 private:
  Timer& timer_;
};

class Timers {
 public:
  explicit Timers(const Clock& clock) : clock_(clock) {}

  // Fires each timer that is due, once. Entered again from a handler (through pending events) it
  // serves the other timers.
  void FireDue();
  // Milliseconds until the next timer is due: 0 if one is, -1 if none is enabled.
  int64_t UntilNext() const;
  // Told when a timer was switched on, so that whoever waits can wait less.
  std::function<void()> on_change;

 private:
  friend class Timer;
  const Clock& clock_;
  std::vector<Timer*> timers_;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_TIMERS_H_
