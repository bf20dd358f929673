#include "desktop/qt_machine.h"

#include <QApplication>
#include <QEventLoop>
#include <QIcon>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <chrono>
#include <ctime>

#include "config/version.h"
#include "desktop/text_decoding.h"
#include "files/files.h"
#include "files/paths.h"

namespace sonotik {

DateTime SystemClock::Now() const {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return {{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday},
          local.tm_hour,
          local.tm_min,
          local.tm_sec};
}

int64_t SystemClock::Milliseconds() const {
  using namespace std::chrono;
  return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

void QtEventLoop::PumpEvents() { QCoreApplication::processEvents(); }

void QtEventLoop::PaintNow() { QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest); }

void QtEventLoop::WaitForEvents(int most_ms) {
  QEventLoop nested;
  QTimer::singleShot(most_ms, Qt::PreciseTimer, &nested, &QEventLoop::quit);
  nested.exec();
}

void QtEventLoop::Leave(int exit_status) {
  left_ = true;
  exit_status_ = exit_status;
  QCoreApplication::exit(exit_status);
}

void QtEventLoop::Drive(Timers& timers) {
  wake_.setSingleShot(true);
  wake_.setTimerType(Qt::PreciseTimer);
  const auto plan = [this, &timers] {
    const int64_t wait = timers.UntilNext();
    if (wait < 0) {
      wake_.stop();
    } else {
      wake_.start(static_cast<int>(wait));
    }
  };
  timers.on_change = plan;
  QObject::connect(&wake_, &QTimer::timeout, [&timers, plan] {
    // Planned before as well: a handler may let events run, and the other timers go on then.
    plan();
    timers.FireDue();
    plan();
  });
}

int QtEventLoop::Run() { return left_ ? exit_status_ : QCoreApplication::exec(); }

void QtProcesses::StartProgram(const std::string& path, WindowState) {
  if (!FileExists(path)) return;
  QProcess::startDetached(QString::fromStdString(NativePath(path).string()), {});
}

void QtProcesses::StartCommand(const std::string& command, WindowState) {
  QProcess::startDetached("/bin/sh", {"-c", QString::fromLocal8Bit(command.c_str())});
}

void QtMessageBox::Show(const std::string& text) {
  QMessageBox box;
  box.setWindowTitle(kProgramTitle);
  // The main window may stand above all others.
  box.setWindowFlag(Qt::WindowStaysOnTopHint);
  box.setText(Decode(text));
  // Words are enough; the style's own icon is made for small buttons.
  box.addButton(QMessageBox::Ok)->setIcon(QIcon());
  box.setStyleSheet(
      "QMessageBox { background: #26304a; padding: 24px; }"
      "QLabel { color: #f0f1f8; font-size: 20px; padding: 16px; }"
      "QPushButton { background: #ffb84d; color: #1c1408; font-size: 20px; font-weight: bold;"
      " padding: 14px 48px; border: 0; border-radius: 8px; }");
  box.exec();
}

}  // namespace sonotik
