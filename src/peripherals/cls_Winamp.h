// The visualisation beside audio tracks: another program, started and closed from here.
#ifndef SONOTIK_PERIPHERALS_CLS_WINAMP_H_
#define SONOTIK_PERIPHERALS_CLS_WINAMP_H_

#include <string>

#include "platform/visualiser.h"

namespace sonotik {

class cls_Winamp {
 public:
  // The one command that closes it.
  static constexpr int kClose = 40001;

  cls_Winamp(const std::string& app_path, Visualiser& visualiser)
      : app_path_(app_path), visualiser_(visualiser) {}

  // Runs the first line of visualiser.txt; without that file projectM, where it is installed.
  // Nothing if one runs already, or for an empty line.
  void Start();
  bool IsWinampRunning() { return visualiser_.IsRunning(); }
  // Does nothing while none runs, and for any other command.
  void Execute(int command);

 private:
  const std::string& app_path_;
  Visualiser& visualiser_;
};

}  // namespace sonotik

#endif  // SONOTIK_PERIPHERALS_CLS_WINAMP_H_
