#include "desktop/signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace sonotik {
namespace {

// A signal handler may do nothing but write to a pipe.
int g_pipe[2] = {-1, -1};

void OnSignal(int) {
  const char byte = 1;
  [[maybe_unused]] const ssize_t written = ::write(g_pipe[1], &byte, 1);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> on_signal) {
  if (::pipe2(g_pipe, O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(g_pipe[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [on_signal] {
    char byte = 0;
    while (::read(g_pipe[0], &byte, 1) > 0) {
    }
    on_signal();
  });
  struct sigaction action {};
  action.sa_handler = OnSignal;
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(signal, &action, nullptr);
}

EndSignals::~EndSignals() {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) std::signal(signal, SIG_DFL);
  notifier_.reset();
  ::close(g_pipe[0]);
  ::close(g_pipe[1]);
}

}  // namespace sonotik
