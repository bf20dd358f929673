// The program that draws to the music while no picture does. It listens by itself.
#ifndef SONOTIK_PLATFORM_VISUALISER_H_
#define SONOTIK_PLATFORM_VISUALISER_H_

#include <string>

namespace sonotik {

class Visualiser {
 public:
  virtual ~Visualiser() = default;
  // Starts a program with its arguments and doesn't wait. One that isn't there is none, silently.
  virtual void Start(const std::string& command) = 0;
  // Also one that an earlier run of this jukebox has started.
  virtual bool IsRunning() = 0;
  // Asks it to close and returns; one that still runs two seconds later is ended.
  virtual void AskToClose() = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_VISUALISER_H_
