// SIGTERM and SIGINT as events of the loop.
#ifndef SONOTIK_DESKTOP_SIGNALS_H_
#define SONOTIK_DESKTOP_SIGNALS_H_

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace sonotik {

// Calls `on_signal` from the event loop when the process is asked to end.
class EndSignals {
 public:
  explicit EndSignals(std::function<void()> on_signal);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_SIGNALS_H_
