#include "desktop/qt_displays.h"

#include <QGuiApplication>
#include <QScreen>

namespace sonotik {
namespace {

MonitorArea AreaOf(const QRect& rect) {
  return {rect.left(), rect.top(), rect.width(), rect.height()};
}

QRect RectOf(const MonitorArea& area) { return {area.left, area.top, area.width, area.height}; }

}  // namespace

QtDisplays::QtDisplays(const char* display) : screen_(display) {
  style_.fill(false);
  for (const StyleFlag flag : {StyleFlag::Titlebar, StyleFlag::Sizable, StyleFlag::ControlBox,
                               StyleFlag::MinButton, StyleFlag::MaxButton}) {
    style_[static_cast<size_t>(flag)] = true;
  }
  screen_.on_changed = [this] { on_monitors_changed(); };
}

void QtDisplays::SetWindow(QWidget* window) {
  window_ = window;
  Apply();
}

void QtDisplays::SetSecondWindow(QWidget* window) {
  second_ = window;
  // The desktop has no say in it: it stands where the monitor is, frameless, and never takes the
  // keyboard from the main window.
  second_->setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint |
                          Qt::WindowDoesNotAcceptFocus);
  second_->setAttribute(Qt::WA_ShowWithoutActivating);
  second_->setCursor(Qt::BlankCursor);
  ApplySecond();
}

std::vector<Monitor> QtDisplays::Monitors() {
  std::vector<Monitor> monitors = screen_.Monitors();
  const auto screens = QGuiApplication::screens();
  if (monitors.empty()) {
    for (const QScreen* screen : screens) {
      monitors.push_back({AreaOf(screen->geometry()), AreaOf(screen->availableGeometry()),
                          screen->depth(), screen == QGuiApplication::primaryScreen()});
    }
    return monitors;
  }
  for (Monitor& monitor : monitors) {
    for (const QScreen* screen : screens) {
      if (AreaOf(screen->geometry()) == monitor.whole) {
        monitor.work = AreaOf(screen->availableGeometry());
      }
    }
  }
  return monitors;
}

DisplayMode QtDisplays::CurrentMode() {
  if (screen_.connected()) return screen_.CurrentMode();
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  return {screen->size().width(), screen->size().height(), screen->depth(),
          static_cast<int>(screen->refreshRate())};
}

void QtDisplays::SetMousePointerVisible(bool visible) {
  pointer_ = visible;
  Apply();
}

void QtDisplays::SetStyle(const WindowStyle& style) {
  style_ = style;
  Apply();
}

void QtDisplays::SetWindowSize(int width, int height) {
  // The desktop puts its own frame around.
  if (window_ != nullptr) window_->resize(width - kFrameWidth, height - kFrameHeight);
}

void QtDisplays::SetWindowPosition(int left, int top) {
  if (window_ != nullptr) window_->move(left, top);
}

void QtDisplays::FitWindow(bool on_top) {
  style_[static_cast<size_t>(StyleFlag::TopMost)] = on_top;
  CoverMonitor();
  Apply();
}

void QtDisplays::SetTaskbarVisible(bool visible) {
  full_screen_ = !visible;
  Apply();
}

void QtDisplays::CoverMonitor() {
  const auto monitors = Monitors();
  if (window_ != nullptr && !monitors.empty()) {
    window_->setGeometry(RectOf(monitors.front().whole));
  }
}

void QtDisplays::Apply() {
  if (window_ == nullptr) return;
  const bool shown = window_->isVisible();
  if (window_->windowFlags().testFlag(Qt::WindowStaysOnTopHint) != top_most()) {
    window_->setWindowFlag(Qt::WindowStaysOnTopHint, top_most());
  }
  if (full_screen_) {
    // Where no window manager runs, nobody else gives the window the monitor's size.
    CoverMonitor();
    window_->setWindowState(window_->windowState() | Qt::WindowFullScreen);
  } else {
    window_->setWindowState(window_->windowState() & ~Qt::WindowFullScreen);
  }
  window_->setCursor(pointer_ ? Qt::ArrowCursor : Qt::BlankCursor);
  if (shown) window_->show();
}

void QtDisplays::PlaceSecondWindow(const MonitorArea& area) {
  second_area_ = area;
  ApplySecond();
}

void QtDisplays::ShowSecondWindow(bool visible) {
  second_shown_ = visible;
  ApplySecond();
}

void QtDisplays::ApplySecond() {
  if (second_ == nullptr) return;
  second_->setGeometry(RectOf(second_area_));
  second_->setVisible(second_shown_);
  if (!second_shown_) return;
  if (window_ != nullptr && window_->geometry().intersects(second_->geometry())) {
    second_->lower();
  } else {
    second_->raise();
  }
}

}  // namespace sonotik
