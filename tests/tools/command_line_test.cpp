#include "tools/config/command_line.h"

#include <gtest/gtest.h>

#include "tools/config/running_time.h"

namespace sonotik {
namespace {

TEST(CommandLine, RefusesWhatItDoesNotUnderstand) {
  const std::vector<std::string> cases[] = {{},
                                            {"--app", "x"},
                                            {"--audio", "a"},
                                            {"a", "--app", "x", "--audio", "a"},
                                            {"--app", "x", "y", "--audio", "a"},
                                            {"--app", "x", "--audio"},
                                            {"--app", "--audio", "a"},
                                            {"--app", "x", "--audio", ""},
                                            {"--app", "x", "--music", "a"}};
  for (const auto& words : cases) {
    EXPECT_NE(ParseCommandLine(words).error, "") << testing::PrintToString(words);
  }
}

TEST(RunningTime, WaitsForNoProgramThatHangsOrNeverEnds) {
  const auto go_on = [] { return false; };
  // "yes" repeats its words for ever, "tail" without a file would wait for one.
  EXPECT_FALSE(RunningTimeProbe("yes").Seconds("/x", go_on));
  EXPECT_FALSE(RunningTimeProbe("yes", std::chrono::milliseconds(0)).Seconds("/x", go_on));
  EXPECT_FALSE(RunningTimeProbe("yes").Seconds("/x", [] { return true; }));
  EXPECT_FALSE(RunningTimeProbe("true").Seconds("/x", go_on));

  RunningTimeProbe none("sonotik-no-such-program");
  EXPECT_FALSE(none.missing());
  EXPECT_FALSE(none.Seconds("/x", go_on));
  EXPECT_TRUE(none.missing());
}

}  // namespace
}  // namespace sonotik
