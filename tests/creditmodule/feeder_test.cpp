// The delivered feeder, run as a coin mechanism's script runs it.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

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
  ~FeederTest() override {
    if (input >= 0) ::close(input);
  }
  // With `argument`, or without one.
  void Run(const char* argument) {
    int ends[2];
    ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
    child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      ::dup2(ends[0], STDIN_FILENO);
      const std::string program = (folder.native() / "creditmodule.exe").string();
      ::execl(program.c_str(), program.c_str(), argument, nullptr);
      ::_exit(99);
    }
    ::close(ends[0]);
    input = ends[1];
  }
  void Type(std::string_view text) {
    ASSERT_EQ(::write(input, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  void EndInput() {
    ::close(input);
    input = -1;
  }
  int Result() {
    int status = -1;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  std::string Taken() {
    std::string all;
    while (const auto text = coins.Take()) all += *text + ";";
    return all;
  }

  TempFolder folder;
  TextBox coins;
  pid_t child = -1;
  int input = -1;
};

TEST_F(FeederTest, HandsOverWhatItIsToldAndEnds) {
  Run("2");
  EXPECT_EQ(Result(), 1) << "there is no jukebox yet";
  EndInput();
  ASSERT_TRUE(coins.Open(folder.path(), kCoinBox));
  Run("2");
  EXPECT_EQ(Result(), 0);
  EXPECT_EQ(Taken(), "2;");
}

TEST_F(FeederTest, HandsOverACreditForEachLineUntilItIsAskedToEnd) {
  ASSERT_TRUE(coins.Open(folder.path(), kCoinBox));
  Run(nullptr);
  Type("coin\n\ncoin\nlast without an end");
  EndInput();
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
