// A machine with nothing on it: a skin is put on a form, and that is all.
#ifndef SONOTIK_TOOLS_SKIN_CHECK_PORTS_H_
#define SONOTIK_TOOLS_SKIN_CHECK_PORTS_H_

#include <string>
#include <vector>

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
  std::vector<Monitor> Monitors() override { return {}; }
  DisplayMode CurrentMode() override { return {}; }
  void SetMousePointerVisible(bool) override {}
  WindowStyle Style() override { return {}; }
  void SetStyle(const WindowStyle&) override {}
  void SetWindowSize(int, int) override {}
  void SetWindowPosition(int, int) override {}
  void FitWindow(bool) override {}
  void ChangeResolution(int, int) override {}
  void RestoreResolution() override {}
  void SetTaskbarVisible(bool) override {}
  void PlaceSecondWindow(const MonitorArea&) override {}
  void ShowSecondWindow(bool) override {}
};

class NoMessages : public MessageBox {
 public:
  void Show(const std::string&) override {}
};

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_SKIN_CHECK_PORTS_H_
