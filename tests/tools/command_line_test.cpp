#include "tools/config/command_line.h"

#include <gmock/gmock.h>

#include <sstream>

#include "support/test_machine.h"
#include "tools/config/report.h"
#include "tools/config/running_time.h"

namespace sonotik {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

TEST(CommandLine, TakesFoldersByKindAndRepeatedOptions) {
  const CommandLine line =
      ParseCommandLine({"--audio", "a", "b", "--app", "x", "--video", "v", "--audio", "c"});
  EXPECT_EQ(line.error, "");
  EXPECT_EQ(line.request.app, "x");
  ASSERT_EQ(line.request.folders.size(), 2u);
  EXPECT_THAT(line.request.folders.at(CatalogueKind::kAudio), ElementsAre("a", "b", "c"));
  EXPECT_THAT(line.request.folders.at(CatalogueKind::kVideo), ElementsAre("v"));
  EXPECT_TRUE(ParseCommandLine({"--app", "--help"}).help);
}

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

TEST(ProgressLine, EstimatesTheTimeLeftAndComesSeldomOutsideATerminal) {
  for (const bool terminal : {true, false}) {
    TestClock clock;
    std::ostringstream out;
    ProgressLine line(out, terminal, clock);
    BuildProgress progress{BuildProgress::Phase::kReading, CatalogueKind::kVideo, 0, 400};
    for (; progress.done < 100; ++progress.done) {
      line.Show(progress);
      clock.Add(100);
    }
    line.Show(progress);
    line.End();
    EXPECT_THAT(out.str(), HasSubstr("Reading video: 100 of 400 files, 0:30 left"));
    const std::string text = out.str();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), terminal ? 0 : 2);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), terminal ? 102 : 0);
  }
}

TEST(Summary, NamesEveryProblemWithoutItsControlCharacters) {
  BuildReport report;
  report.kinds.push_back({CatalogueKind::kAudio, true, 2, 30, 1, 4, 5});
  report.problems.push_back({"/m/\x1B[2Jx.mp3", "the file is empty"});
  report.sidecars = 1;
  EXPECT_THAT(SummaryText(report),
              AllOf(HasSubstr("audio: 2 albums (1 new), 30 tracks (4 new), 5 tracks kept"),
                    HasSubstr("x.mp3: the file is empty"), HasSubstr("1 sidecar written"),
                    Not(HasSubstr("\x1B"))));
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
