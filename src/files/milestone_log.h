// debug.log: what the start-up has reached, one line a milestone. The file is only ever appended
// to, and nothing truncates it.
#ifndef SONOTIK_FILES_MILESTONE_LOG_H_
#define SONOTIK_FILES_MILESTONE_LOG_H_

#include <string>

#include "files/files.h"
#include "platform/clock.h"
#include "text/dates.h"

namespace sonotik {

class MilestoneLog {
 public:
  MilestoneLog(const std::string& app_path, const Clock& clock)
      : app_path_(app_path), clock_(clock) {}

  // Date, blank, time, blank and the text.
  void LogMilestone(const std::string& text) const {
    const DateTime now = clock_.Now();
    AppendToFile(app_path_ + "\\debug.log",
                 DateText(now.date) + " " + TimeText(now) + " " + text + "\r\n");
  }

 private:
  const std::string& app_path_;
  const Clock& clock_;
};

}  // namespace sonotik

#endif  // SONOTIK_FILES_MILESTONE_LOG_H_
