#include "desktop/virtual_keys.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace sonotik {
namespace {

TEST(VirtualKeys, EveryCodeHasItsOwnKeyOrKnowinglyNone) {
  const std::set<int> none = {0,  1,  2,  3,  4,  5,  6,  7,  10, 11, 14, 15, 21, 22, 23, 24,
                              25, 26, 28, 29, 30, 31, 42, 58, 59, 60, 61, 62, 63, 64, 94, 95};
  std::map<uint32_t, int> taken;
  for (int code = 0; code < kVirtualKeys; ++code) {
    const auto symbols = KeySymbolsOf(code);
    EXPECT_EQ(symbols[0] == 0, none.contains(code)) << code;
    for (const uint32_t symbol : symbols) {
      if (symbol == 0) continue;
      EXPECT_TRUE(taken.emplace(symbol, code).second) << code << " and " << taken[symbol];
    }
  }
  EXPECT_EQ(KeySymbolsOf(-1)[0], 0U);
  EXPECT_EQ(KeySymbolsOf('A')[0], static_cast<uint32_t>('a'));
  EXPECT_EQ(KeySymbolsOf('7')[0], static_cast<uint32_t>('7'));
  EXPECT_NE(KeySymbolsOf(16)[1], 0U);
  EXPECT_EQ(MouseButtonOf(1), 1);
  EXPECT_EQ(MouseButtonOf(2), 3);
  EXPECT_EQ(MouseButtonOf(4), 2);
  EXPECT_EQ(MouseButtonOf(27), 0);
}

}  // namespace
}  // namespace sonotik
