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
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_DISPLAYS_H_
