// The "Searching" panel for the length of a scan.
#ifndef SONOTIK_CATALOGUE_SCAN_PROGRESS_H_
#define SONOTIK_CATALOGUE_SCAN_PROGRESS_H_

#include <cstdint>

#include "forms/SearchScreen.h"
#include "platform/machine.h"

namespace sonotik {

// Shows the panel and has it painted before the scan begins, and takes it away at its end, however
// that comes. The scan holds the thread: nothing but painting runs while it lasts.
class ScanProgress {
 public:
  ScanProgress(Machine& machine, SearchingPanel& searching);
  ~ScanProgress();
  ScanProgress(const ScanProgress&) = delete;
  ScanProgress& operator=(const ScanProgress&) = delete;

  // How many records there are, if there are any; the bar counts them, or goes up to `steps`.
  void SetCount(int64_t count, int steps = 0);
  // So many records are done. The bar moves a few times a second, whatever the records' number.
  void Done(int64_t records) {
    if (records % kRecordsBetweenLooks == 0) Look(records);
  }

 private:
  // Asking the clock costs as much as a few records.
  static constexpr int64_t kRecordsBetweenLooks = 1024;
  void Look(int64_t records);

  Machine& machine_;
  SearchingPanel& searching_;
  int64_t painted_at_;
  int64_t records_a_step_ = 1;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_SCAN_PROGRESS_H_
