// The numbers by which the rest of the system ends a session.
#ifndef SONOTIK_SHELL_CLSEXITWINDOWS_H_
#define SONOTIK_SHELL_CLSEXITWINDOWS_H_

#include <cstdint>

#include "platform/session.h"

namespace sonotik {

class clsExitWindows {
 public:
  explicit clsExitWindows(Session& session) : session_(session) {}

  // 0 logs off, 1 shuts down, 2 reboots, 8 powers off; any other number does nothing.
  void ExitWindows(int16_t how);

 private:
  Session& session_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_CLSEXITWINDOWS_H_
