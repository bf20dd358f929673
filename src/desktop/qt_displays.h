// Monitors, modes and both windows, on the toolkit and the X server.
#ifndef SONOTIK_DESKTOP_QT_DISPLAYS_H_
#define SONOTIK_DESKTOP_QT_DISPLAYS_H_

#include <QWidget>

#include "desktop/randr_screen.h"
#include "platform/displays.h"

namespace sonotik {

// Without an X server the monitors are the toolkit's, and no mode ever changes. The windows scale
// what they show, so a mode that is refused costs nothing but the monitor's own scaling.
class QtDisplays : public Displays {
 public:
  explicit QtDisplays(const char* display = nullptr);

  // The windows come once there are some; until then what is asked of them is kept.
  void SetWindow(QWidget* window);
  void SetSecondWindow(QWidget* window);

  std::vector<Monitor> Monitors() override;
  DisplayMode CurrentMode() override;
  void SetMousePointerVisible(bool visible) override;
  WindowStyle Style() override { return style_; }
  // Only TopMost shows: the full-screen state takes the frame, and the rest is the desktop's.
  void SetStyle(const WindowStyle& style) override;
  void SetWindowSize(int width, int height) override;
  void SetWindowPosition(int left, int top) override;
  void FitWindow(bool on_top) override;
  void ChangeResolution(int width, int height) override { screen_.ChangeMode(width, height); }
  void RestoreResolution() override { screen_.RestoreMode(); }
  void SetTaskbarVisible(bool visible) override;
  void PlaceSecondWindow(const MonitorArea& area) override;
  void ShowSecondWindow(bool visible) override;

 private:
  bool top_most() const { return style_[static_cast<size_t>(StyleFlag::TopMost)]; }
  // The main window over the whole first monitor.
  void CoverMonitor();
  void Apply();
  void ApplySecond();

  RandrScreen screen_;
  QWidget* window_ = nullptr;
  QWidget* second_ = nullptr;
  WindowStyle style_;
  bool full_screen_ = false;
  bool pointer_ = true;
  MonitorArea second_area_;
  bool second_shown_ = false;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_QT_DISPLAYS_H_
