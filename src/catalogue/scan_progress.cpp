#include "catalogue/scan_progress.h"

#include <algorithm>
#include <limits>

namespace sonotik {
namespace {

constexpr int64_t kRepaintMs = 250;

int BarValue(int64_t records) {
  return static_cast<int>(std::min<int64_t>(records, std::numeric_limits<int>::max()));
}

}  // namespace

ScanProgress::ScanProgress(Machine& machine, SearchingPanel& searching)
    : machine_(machine), searching_(searching), painted_at_(machine.clock.Milliseconds()) {
  searching_.progress.SetValue(0);
  searching_.panel.SetVisible(true);
  searching_.panel.BringToFront();
  machine_.events.PaintNow();
}

ScanProgress::~ScanProgress() { searching_.panel.SetVisible(false); }

void ScanProgress::SetCount(int64_t count, int steps) {
  if (count == 0) return;
  searching_.progress.SetMax(steps == 0 ? BarValue(count) : steps);
  if (steps != 0) records_a_step_ = count / steps + 1;
}

void ScanProgress::Look(int64_t records) {
  const int64_t now = machine_.clock.Milliseconds();
  if (now - painted_at_ < kRepaintMs) return;
  painted_at_ = now;
  searching_.progress.SetValue(BarValue(records / records_a_step_));
  machine_.events.PaintNow();
}

}  // namespace sonotik
