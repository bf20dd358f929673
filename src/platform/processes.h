// Other programs.
#ifndef SONOTIK_PLATFORM_PROCESSES_H_
#define SONOTIK_PLATFORM_PROCESSES_H_

#include <string>

namespace sonotik {

enum class WindowState { kNormal, kMinimised, kHidden };

class Processes {
 public:
  virtual ~Processes() = default;
  // Starts a program file (a program path) without arguments and doesn't wait. A failure is not
  // reported: nobody here looks at it.
  virtual void StartProgram(const std::string& path, WindowState state) = 0;
  // Starts a command line that the operator has written, and doesn't wait.
  virtual void StartCommand(const std::string& command, WindowState state) = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_PROCESSES_H_
