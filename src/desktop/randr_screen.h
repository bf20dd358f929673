// The X server's monitors and the mode of the first one, through RandR.
#ifndef SONOTIK_DESKTOP_RANDR_SCREEN_H_
#define SONOTIK_DESKTOP_RANDR_SCREEN_H_

#include <QSocketNotifier>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/displays.h"

struct _XDisplay;

namespace sonotik {

// On a connection of its own. Without an X server, or one without RandR, there are no monitors and
// no mode changes. What the server refuses stays as it is, silently.
//
// The mode that was found is noted at the server itself, for as long as the changed one is in
// force: a program that was killed leaves its note, by which the next one can put the screen right.
class RandrScreen {
 public:
  // nullptr for the display of the environment.
  explicit RandrScreen(const char* display = nullptr);
  ~RandrScreen();
  RandrScreen(const RandrScreen&) = delete;
  RandrScreen& operator=(const RandrScreen&) = delete;

  bool connected() const { return display_ != nullptr; }
  // The primary one first.
  std::vector<Monitor> Monitors();
  DisplayMode CurrentMode();
  // False if the monitor has no mode of this size, or none that leaves the other monitors alone.
  bool ChangeMode(int width, int height);
  // The mode that was found, also by a program that was killed; nothing happens while it is in
  // force.
  void RestoreMode();

  // A while after monitors have come, gone or changed, once for all that happened at a time.
  std::function<void()> on_changed = [] {};

 private:
  struct Disconnect {
    void operator()(_XDisplay* display) const;
  };
  struct FoundMode;
  void ReadEvents();
  // Changes mode and size of the screen together; only for a screen with one monitor, since it
  // switches all others off.
  bool SetScreenMode(int width, int height, int rate);
  // The mode of the first monitor's output among others, in its place; 0 by `mode_id` for the best
  // one of the size.
  bool SetOutputMode(int width, int height, unsigned long mode_id);
  bool SetMode(const FoundMode& mode);
  FoundMode Present();
  std::optional<FoundMode> ReadNote();
  int ActiveOutputs();

  std::unique_ptr<_XDisplay, Disconnect> display_;
  std::unique_ptr<QSocketNotifier> events_;
  QTimer told_;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_RANDR_SCREEN_H_
