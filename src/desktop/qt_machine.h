// The machine's ports on the toolkit and the standard library: clock, random numbers, event loop,
// processes, messages.
#ifndef SONOTIK_DESKTOP_QT_MACHINE_H_
#define SONOTIK_DESKTOP_QT_MACHINE_H_

#include <QTimer>
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
