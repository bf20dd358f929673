// The machine's ports on the toolkit and the standard library: clock, random numbers, event loop,
// displays, processes, messages.
#ifndef SONOTIK_DESKTOP_QT_MACHINE_H_
#define SONOTIK_DESKTOP_QT_MACHINE_H_

#include <QTimer>
#include <QWidget>
#include <random>

#include "platform/machine.h"

namespace sonotik {

class SystemClock : public Clock {
 public:
  DateTime Now() const override;
  int64_t Milliseconds() const override;
};

class MersenneTwister : public RandomSource {
 public:
  double Next() override { return std::uniform_real_distribution<double>(0, 1)(engine_); }
  void Seed(uint64_t seed) override { engine_.seed(seed); }

 private:
  std::mt19937_64 engine_{std::random_device{}()};
};

// The toolkit's loop, and the timers that run on it.
class QtEventLoop : public EventLoop {
 public:
  void PumpEvents() override;
  void PaintNow() override;
  void WaitForEvents(int most_ms) override;
  void Leave(int exit_status) override;
  // Fires the timers when they are due, for as long as the loop runs.
  void Drive(Timers& timers);
  // Runs until Leave; the status it was given.
  int Run();

 private:
  QTimer wake_;
  bool left_ = false;
  int exit_status_ = 0;
};

class QtDisplays : public Displays {
 public:
  // The window comes once there is one; until then what is asked of it is kept.
  void SetWindow(QWidget* window);
  int MonitorCount() override;
  DisplayMode CurrentMode() override;
  void SetFullScreen(bool full_screen) override;
  void SetTopMost(bool top_most) override;
  void SetMousePointerVisible(bool visible) override;
  void SetWindowSize(int width, int height) override;
  void SetWindowPosition(int left, int top) override;
  void FitWindow(bool on_top) override;
  // The window scales whatever a skin is drawn for to the monitor, and covers the desktop's bars:
  // neither the mode nor the bars have to change.
  void ChangeResolution(int, int) override {}
  void RestoreResolution() override {}
  void SetTaskbarVisible(bool) override {}

 private:
  void Apply();

  QWidget* window_ = nullptr;
  bool full_screen_ = false;
  bool top_most_ = false;
  bool pointer_ = true;
};

class QtProcesses : public Processes {
 public:
  void StartProgram(const std::string& path, WindowState state) override;
  // Run by the shell, as the operator has written it; nothing else ever is.
  void StartCommand(const std::string& command, WindowState state) override;
};

class QtMessageBox : public MessageBox {
 public:
  void Show(const std::string& text) override;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_QT_MACHINE_H_
