#include "desktop/coin_box.h"

#include <gtest/gtest.h>

#include <thread>

#include "desktop/event_loop.h"
#include "support/temp_folder.h"

namespace sonotik {
namespace {

TEST(CoinBoxes, NoCoinOfTwoFeedersAtOnceIsLost) {
  const TempFolder folder;
  CoinBox box;
  int coins = 0;
  box.Open(folder.path(), [&](const std::string& text) { coins += std::stoi(text); });
  const auto feed = [&](const char* text) {
    for (int i = 0; i < 200; ++i) {
      EXPECT_EQ(PutIntoTextBox(folder.path(), kCoinBox, text), BoxAnswer::kTaken);
    }
  };
  std::thread one(feed, "1");
  std::thread two(feed, "2");
  EXPECT_TRUE(Becomes([&] { return coins == 600; })) << coins;
  one.join();
  two.join();
}

TEST(CoinBoxes, AFeederThatIsNotThereOrStandsStillNeverHoldsTheEnd) {
  const TempFolder folder;
  CoinBox box;
  box.Open(folder.path(), [](const std::string&) {});
  EXPECT_TRUE(box.CloseFeeder()) << "there is none, and that is no fault";
  // One that keeps its box and takes nothing: full, it is gone.
  TextBox feeder;
  ASSERT_TRUE(feeder.Open(folder.path(), kCreditModuleBox));
  int asked = 0;
  while (box.CloseFeeder()) ASSERT_LT(++asked, 100000);
  EXPECT_GT(asked, 0);
}

}  // namespace
}  // namespace sonotik
