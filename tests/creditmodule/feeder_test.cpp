// The delivered feeder, run as a coin mechanism's script runs it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>

#include "files/text_box.h"
#include "support/temp_folder.h"

namespace sonotik {
namespace {

class FeederTest : public testing::Test {
 protected:
  FeederTest() {
    // The jukebox finds its feeder in its folder, under the name that it asks for.
    std::filesystem::create_symlink(SONOTIK_FEEDER, folder.native() / "creditmodule.exe");
  }
  // The script's own words, and how its last program ended.
  void Run(const std::string& before, const std::string& argument) {
    const std::string program = (folder.native() / "creditmodule.exe").string();
    script = ::popen((before + "'" + program + "'" + argument).c_str(), "r");
  }
  int Result() {
    const int status = ::pclose(script);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  std::string Taken() {
    std::string all;
    while (const auto text = coins.Take()) all += *text + ";";
    return all;
  }

  TempFolder folder;
  TextBox coins;
  FILE* script = nullptr;
};

TEST_F(FeederTest, HandsOverWhatItIsToldAndEnds) {
  Run("", " 2");
  EXPECT_EQ(Result(), 1) << "there is no jukebox yet";
  ASSERT_TRUE(coins.Open(folder.path(), kCoinBox));
  Run("", " 2");
  EXPECT_EQ(Result(), 0);
  EXPECT_EQ(Taken(), "2;");
}

TEST_F(FeederTest, HandsOverACreditForEachLineUntilItIsAskedToEnd) {
  ASSERT_TRUE(coins.Open(folder.path(), kCoinBox));
  Run("printf 'coin\n\ncoin\nlast without an end' | ", "");
  std::string taken;
  while (taken.size() < 6) taken += Taken();
  // Behind the end of its input it stays for the request alone.
  while (PutIntoTextBox(folder.path(), kCreditModuleBox, "close") != BoxAnswer::kTaken) {
  }
  EXPECT_EQ(Result(), 0);
  EXPECT_EQ((taken + Taken()).substr(0, 6), "1;1;1;");
}

}  // namespace
}  // namespace sonotik
