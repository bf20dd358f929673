#include "platform/timers.h"

#include <gtest/gtest.h>

#include "support/test_machine.h"

namespace sonotik {
namespace {

TEST(Timers, ALongHandlerStretchesItsOwnIntervalAndOthersRunInside) {
  TestClock clock;
  Timers timers(clock);
  Timer slow(timers, 1000);
  Timer poll(timers, 10);
  int ticks = 0;
  int polls = 0;
  slow.on_tick = [&] {
    slow.SetEnabled(false);
    ++ticks;
    for (int i = 0; i < 50; ++i) {
      clock.Add(10);
      timers.FireDue();
    }
    slow.SetEnabled(true);
  };
  poll.on_tick = [&] { ++polls; };
  slow.SetEnabled(true);
  EXPECT_EQ(timers.UntilNext(), 1000);
  clock.Add(1000);
  poll.SetEnabled(true);
  timers.FireDue();
  EXPECT_EQ(ticks, 1);
  EXPECT_EQ(polls, 50);
  poll.SetEnabled(false);
  clock.Add(999);
  timers.FireDue();
  EXPECT_EQ(ticks, 1);
  clock.Add(1);
  timers.FireDue();
  EXPECT_EQ(ticks, 2);
  slow.Retire();
  slow.SetEnabled(true);
  EXPECT_EQ(timers.UntilNext(), -1);
}

}  // namespace
}  // namespace sonotik
