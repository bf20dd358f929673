// Leaving the program in order.
#ifndef SONOTIK_SHELL_SHUTDOWN_H_
#define SONOTIK_SHELL_SHUTDOWN_H_

#include <functional>

#include "shell/assembly.h"
#include "shell/display_effects.h"

namespace sonotik {

// What others close or save when the program leaves, in the order in which it happens;
// nothing until they fill it in.
struct ShutdownHooks {
  std::function<void()> send_closing_text = [] {};
  std::function<void()> save_random = [] {};
};

class Shutdown {
 public:
  Shutdown(Assembly& house, DisplayEffects& displays) : house_(house), displays_(displays) {}

  ShutdownHooks hooks;

  // The operator's way out: closes what plays beside, saves what the settings ask for and ends the
  // session as chosen. What was to be saved is on the disk before the session is asked to end.
  void power_down();
  // The timed exit, and what a service manager's request comes to. It leaves the player beside, the
  // sign, random.dat and the session alone; that is meant.
  void TimedExit();

 private:
  void SaveQueue();
  void RunCommand();
  void EndSession();
  void Unload();

  Assembly& house_;
  DisplayEffects& displays_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_SHUTDOWN_H_
