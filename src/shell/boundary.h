// The one place where ordinary failures are caught: the boundary of an event handler.
#ifndef SONOTIK_SHELL_BOUNDARY_H_
#define SONOTIK_SHELL_BOUNDARY_H_

#include <functional>
#include <iostream>
#include <string>

#include "files/runtime_failure.h"

namespace sonotik {

class Boundary {
 public:
  // Runs a handler. A failure ends it, leaves one line behind, and the program goes on.
  template <typename Handler>
  void Run(const char* name, Handler&& handler) {
    try {
      handler();
    } catch (const RuntimeFailure& failure) {
      ++failures_;
      std::cerr << "sonotik: " << name << ": " << failure.what() << std::endl;
    }
  }

  // A handler with its boundary, for a control to call.
  template <typename Handler>
  auto Guarded(const char* name, Handler handler) {
    return [this, name, handler](auto&&... arguments) {
      this->Run(name, [&] { handler(arguments...); });
    };
  }

  // Handlers that have failed so far.
  int failures() const { return failures_; }

 private:
  int failures_ = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_BOUNDARY_H_
