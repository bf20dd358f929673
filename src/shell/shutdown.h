// Leaving the program in order.
#ifndef SONOTIK_SHELL_SHUTDOWN_H_
#define SONOTIK_SHELL_SHUTDOWN_H_

#include <functional>

#include "shell/assembly.h"

namespace sonotik {

// What others give back when the program leaves; nothing until they fill it in.
struct ShutdownHooks {
  std::function<void()> ShowTaskbar = [] {};
  std::function<void()> RestoreResolution = [] {};
};

class Shutdown {
 public:
  explicit Shutdown(Assembly& house) : house_(house) {}

  ShutdownHooks hooks;

  // The timed exit, and what a service manager's request comes to: the desktop is given back, the
  // queue saved if the setting says so, the shutdown command started, the program ended.
  void TimedExit();

 private:
  Assembly& house_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_SHUTDOWN_H_
