#include "shell/clsExitWindows.h"

namespace sonotik {

void clsExitWindows::ExitWindows(int16_t how) {
  static constexpr struct {
    int16_t how;
    SessionEnd end;
  } kEnds[] = {{0, SessionEnd::kLogOff},
               {1, SessionEnd::kShutdown},
               {2, SessionEnd::kReboot},
               {8, SessionEnd::kPowerOff}};
  for (const auto& entry : kEnds) {
    if (entry.how == how) session_.End(entry.end);
  }
}

}  // namespace sonotik
