// What the settings of the monitors do at the moment that they change, and what a monitor does that
// comes or goes.
#ifndef SONOTIK_SHELL_DISPLAY_EFFECTS_H_
#define SONOTIK_SHELL_DISPLAY_EFFECTS_H_

#include "shell/assembly.h"

namespace sonotik {

class DisplayEffects {
 public:
  explicit DisplayEffects(Assembly& house);

  // While the program starts: the window's style into its check boxes, and "Full Screen Mode..."
  // through them to the window.
  void ReadWindowStyle();
  void ApplyWindowStyle();

  // "Full Screen Mode..." has been switched.
  void SwitchFullScreen();
  // "Use second monitor", "Second Monitor ID:" or "Use Second Monitor For:" has been changed.
  void MoveSecondMonitor();

  // The program ends: the desktop's bars show, and a mode that the skin has changed goes back.
  void GiveBack();

 private:
  void MonitorsChanged();

  Assembly& house_;
  bool started_ = false;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_DISPLAY_EFFECTS_H_
