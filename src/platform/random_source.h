// Random numbers, uniform in [0, 1).
#ifndef SONOTIK_PLATFORM_RANDOM_SOURCE_H_
#define SONOTIK_PLATFORM_RANDOM_SOURCE_H_

#include <cstdint>

namespace sonotik {

class RandomSource {
 public:
  virtual ~RandomSource() = default;
  virtual double Next() = 0;
  virtual void Seed(uint64_t seed) = 0;

  // The whole part of a random number times n: 0 to n - 1.
  int64_t Below(int64_t n) { return static_cast<int64_t>(Next() * static_cast<double>(n)); }
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_RANDOM_SOURCE_H_
