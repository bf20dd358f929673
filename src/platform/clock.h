// What the system asks of a machine's clock.
#ifndef SONOTIK_PLATFORM_CLOCK_H_
#define SONOTIK_PLATFORM_CLOCK_H_

#include <cstdint>

#include "text/dates.h"

namespace sonotik {

class Clock {
 public:
  virtual ~Clock() = default;
  // The wall clock in local time; it may jump in both directions.
  virtual DateTime Now() const = 0;
  // Milliseconds since some fixed moment; never goes back. Timers run by it.
  virtual int64_t Milliseconds() const = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_CLOCK_H_
