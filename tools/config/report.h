// What the operator reads on a terminal while a catalogue is built, and at its end.
#ifndef SONOTIK_TOOLS_CONFIG_REPORT_H_
#define SONOTIK_TOOLS_CONFIG_REPORT_H_

#include <cstdint>
#include <ostream>
#include <string>

#include "platform/clock.h"
#include "tools/config/catalogue_builder.h"

namespace sonotik {

// One line: what is being done, counts, and an estimate of the time left.
class ProgressLine {
 public:
  // On a terminal the line is rewritten where it stands; elsewhere a new one comes now and then.
  ProgressLine(std::ostream& out, bool terminal, const Clock& clock)
      : out_(out), terminal_(terminal), clock_(clock), last_(clock.Milliseconds()) {}

  void Show(const BuildProgress& progress);
  // Clears the line on a terminal.
  void End();

 private:
  std::string Text(const BuildProgress& progress, int64_t now);

  std::ostream& out_;
  bool terminal_;
  const Clock& clock_;
  int64_t last_;
  int64_t reading_since_ = -1;
  size_t shown_ = 0;
};

// Names come from anybody's disk, so no control character of theirs comes through.
std::string SummaryText(const BuildReport& report);

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_REPORT_H_
