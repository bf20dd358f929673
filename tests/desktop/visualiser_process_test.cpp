// The visualisation as a real process.
#include "desktop/visualiser_process.h"

#include <gtest/gtest.h>

#include "desktop/event_loop.h"
#include "support/temp_folder.h"

namespace sonotik {
namespace {

class VisualiserProcessTest : public testing::Test {
 protected:
  ~VisualiserProcessTest() override { VisualiserProcess(folder.path(), 0).AskToClose(); }
  // A script that draws nothing until it is ended; it leaves "ready" once it is deaf or not.
  std::string Script(const std::string& deaf) {
    folder.Write("draw \"it\"", deaf + "touch \"$1\"\nwhile :; do sleep 0.05; done\n");
    const std::string path = (folder.native() / "draw \"it\"").string();
    return "/bin/sh " + Quoted(path) + " " + Quoted((folder.native() / "ready").string());
  }
  static std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) quoted += c == '"' ? "\"\"\"" : std::string(1, c);
    return quoted + "\"";
  }
  TempFolder folder;
};

TEST_F(VisualiserProcessTest, ItIsFoundByTheNextRunClosedWhenAskedAndLeavesOthersAlone) {
  {
    VisualiserProcess first(folder.path());
    EXPECT_FALSE(first.IsRunning());
    first.Start("no-such-program-here --full");
    EXPECT_FALSE(first.IsRunning());
    first.Start(Script(""));
    ASSERT_TRUE(Becomes([&] { return folder.Has("ready"); }));
  }
  VisualiserProcess next(folder.path());
  VisualiserProcess others(folder.path() + "2");
  EXPECT_TRUE(next.IsRunning());
  EXPECT_FALSE(others.IsRunning());
  others.AskToClose();
  EXPECT_TRUE(next.IsRunning());
  next.AskToClose();
  EXPECT_FALSE(next.IsRunning()) << "one that closes keeps no new one away";
  VisualiserProcess again(folder.path());
  EXPECT_TRUE(Becomes([&] { return !again.IsRunning(); }));
}

TEST_F(VisualiserProcessTest, ADeafOneIsEndedWhenItsTimeIsOver) {
  VisualiserProcess other(folder.path());
  {
    VisualiserProcess visualiser(folder.path(), 50);
    visualiser.Start(Script("trap '' TERM\n"));
    ASSERT_TRUE(Becomes([&] { return folder.Has("ready"); }));
    visualiser.AskToClose();
    EXPECT_TRUE(other.IsRunning());
  }
  EXPECT_TRUE(Becomes([&] { return !other.IsRunning(); }));
}

}  // namespace
}  // namespace sonotik
