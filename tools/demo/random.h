// A small random generator whose numbers are the same on every machine and library, so that the
// demo's pieces and pictures always come out alike.
#ifndef SONOTIK_TOOLS_DEMO_RANDOM_H_
#define SONOTIK_TOOLS_DEMO_RANDOM_H_

#include <cstdint>

namespace sonotik::demo {

// PCG32 (M. E. O'Neill, 2014).
class Random {
 public:
  explicit Random(uint64_t seed) : state_(seed * 2862933555777941757ULL + 3037000493ULL) {
    Next();
    Next();
  }

  uint32_t Next() {
    const uint64_t old = state_;
    state_ = old * 6364136223846793005ULL + 1442695040888963407ULL;
    const auto mixed = static_cast<uint32_t>(((old >> 18) ^ old) >> 27);
    const auto turn = static_cast<uint32_t>(old >> 59);
    return (mixed >> turn) | (mixed << ((32 - turn) & 31));
  }

  int Below(int limit) { return static_cast<int>(Next() % static_cast<uint32_t>(limit)); }
  double Unit() { return Next() / 4294967296.0; }  // 0 up to 1
  double Signed() { return Unit() * 2 - 1; }       // -1 up to 1
  double Between(double low, double high) { return low + (high - low) * Unit(); }

 private:
  uint64_t state_;
};

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_RANDOM_H_
