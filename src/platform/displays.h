// Monitors, the main window's size, and what the desktop shows beside it.
#ifndef SONOTIK_PLATFORM_DISPLAYS_H_
#define SONOTIK_PLATFORM_DISPLAYS_H_

namespace sonotik {

// A mode of the first monitor: pixels, bits a pixel, hertz.
struct DisplayMode {
  int width = 0;
  int height = 0;
  int colour_depth = 0;
  int frequency = 0;
};

// What a window's frame counts for, left and right together and top and bottom.
inline constexpr int kFrameWidth = 4;
inline constexpr int kFrameHeight = 20;

class Displays {
 public:
  virtual ~Displays() = default;
  // At least 1.
  virtual int MonitorCount() = 0;
  virtual DisplayMode CurrentMode() = 0;
  // The main window over the whole first monitor, without a frame; or as a window with one.
  virtual void SetFullScreen(bool full_screen) = 0;
  virtual void SetTopMost(bool top_most) = 0;
  virtual void SetMousePointerVisible(bool visible) = 0;

  // The main window with its frame, in pixels, and where it stands on the first monitor.
  virtual void SetWindowSize(int width, int height) = 0;
  virtual void SetWindowPosition(int left, int top) = 0;
  // The main window as large as the first monitor, above all others if it is asked for.
  virtual void FitWindow(bool on_top) = 0;
  // Another size of the first monitor's mode, until it is restored; a size that it doesn't have
  // leaves the mode as it is.
  virtual void ChangeResolution(int width, int height) = 0;
  virtual void RestoreResolution() = 0;
  virtual void SetTaskbarVisible(bool visible) = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_DISPLAYS_H_
