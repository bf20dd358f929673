// Monitors, the main window's style and size, the second monitor's window, and what the desktop
// shows beside them. Places and sizes are pixels of the whole desktop.
#ifndef SONOTIK_PLATFORM_DISPLAYS_H_
#define SONOTIK_PLATFORM_DISPLAYS_H_

#include <array>
#include <cstddef>
#include <functional>
#include <vector>

namespace sonotik {

// A mode of the first monitor: pixels, bits a pixel, hertz.
struct DisplayMode {
  int width = 0;
  int height = 0;
  int colour_depth = 0;
  int frequency = 0;
};

struct MonitorArea {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const MonitorArea&) const = default;
};

struct Monitor {
  MonitorArea whole = {};
  MonitorArea work = {};  // beside the desktop's bars
  int colour_depth = 0;
  bool primary = false;
};

// What a window's frame counts for, left and right together and top and bottom.
inline constexpr int kFrameWidth = 4;
inline constexpr int kFrameHeight = 20;

// The style of a window, a flag each.
enum class StyleFlag {
  AutoDrag,
  AutoSysMenu,
  Client,
  ControlBox,
  MaxButton,
  MinButton,
  Sizable,
  Titlebar,
  ToolWindow,
  TopMost,
  WhatsThisButton,
};
inline constexpr size_t kStyleFlags = 11;
using WindowStyle = std::array<bool, kStyleFlags>;  // by StyleFlag

class Displays {
 public:
  virtual ~Displays() = default;
  // The one of the main window first; none where the machine doesn't tell.
  virtual std::vector<Monitor> Monitors() = 0;
  // After a monitor has come, gone or changed its size.
  std::function<void()> on_monitors_changed = [] {};
  virtual DisplayMode CurrentMode() = 0;
  virtual void SetMousePointerVisible(bool visible) = 0;

  // The main window's.
  virtual WindowStyle Style() = 0;
  virtual void SetStyle(const WindowStyle& style) = 0;
  // With its frame, and where it stands on the first monitor.
  virtual void SetWindowSize(int width, int height) = 0;
  virtual void SetWindowPosition(int left, int top) = 0;
  // As large as the first monitor, above all others if it is asked for.
  virtual void FitWindow(bool on_top) = 0;
  // Another size of the first monitor's mode, until it is restored; a size that it doesn't have
  // leaves the mode as it is.
  virtual void ChangeResolution(int width, int height) = 0;
  virtual void RestoreResolution() = 0;
  // The desktop's bars give way to a full-screen window: hidden means that the main window is one.
  virtual void SetTaskbarVisible(bool visible) = 0;

  // The window of the second monitor. It takes no focus, and where it shares a monitor with the
  // main window it stands behind that.
  virtual void PlaceSecondWindow(const MonitorArea& area) = 0;
  virtual void ShowSecondWindow(bool visible) = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_DISPLAYS_H_
