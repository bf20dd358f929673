// A machine with nothing on it: a skin is put on a form, and that is all.
#ifndef SONOTIK_TOOLS_SKIN_CHECK_PORTS_H_
#define SONOTIK_TOOLS_SKIN_CHECK_PORTS_H_

#include <string>

#include "platform/displays.h"
#include "platform/event_loop.h"
#include "platform/message_box.h"

namespace sonotik {

class NoEvents : public EventLoop {
 public:
  void PumpEvents() override {}
  void PaintNow() override {}
  void WaitForEvents(int) override {}
  void Leave(int) override {}
};

class NoDisplays : public Displays {
 public:
  int MonitorCount() override { return 1; }
  DisplayMode CurrentMode() override { return {}; }
  void SetFullScreen(bool) override {}
  void SetTopMost(bool) override {}
  void SetMousePointerVisible(bool) override {}
  void SetWindowSize(int, int) override {}
  void SetWindowPosition(int, int) override {}
  void FitWindow(bool) override {}
  void ChangeResolution(int, int) override {}
  void RestoreResolution() override {}
  void SetTaskbarVisible(bool) override {}
};

class NoMessages : public MessageBox {
 public:
  void Show(const std::string&) override {}
};

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_SKIN_CHECK_PORTS_H_
