#include "desktop/visualiser_process.h"

#include <unistd.h>
#include <csignal>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

namespace sonotik {
namespace {

constexpr char kMarkName[] = "SONOTIK_VISUALISER";

}  // namespace

VisualiserProcess::VisualiserProcess(std::string folder, int ms_to_close)
    : mark_(std::move(folder)), ms_to_close_(ms_to_close) {
  end_.setSingleShot(true);
  end_.setInterval(ms_to_close_);
  QObject::connect(&end_, &QTimer::timeout, [this] { End(); });
}

VisualiserProcess::~VisualiserProcess() {
  while (!asked_.empty() && since_asked_.elapsed() < ms_to_close_ && !StillClosing().empty()) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  End();
}

void VisualiserProcess::Start(const std::string& command) {
  QStringList words = QProcess::splitCommand(QString::fromLocal8Bit(command.c_str()));
  if (words.isEmpty()) return;
  QProcess process;
  process.setProgram(words.takeFirst());
  process.setArguments(words);
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(kMarkName, QString::fromLocal8Bit(mark_.c_str()));
  process.setProcessEnvironment(environment);
  process.startDetached();
}

std::vector<int> VisualiserProcess::Marked() const {
  const QByteArray mark = QByteArray(kMarkName) + '=' + QByteArray::fromStdString(mark_);
  std::vector<int> found;
  for (const QString& name : QDir("/proc").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    bool is_number = false;
    const int process = name.toInt(&is_number);
    if (!is_number || process == ::getpid()) continue;
    // Only one's own processes can be read.
    QFile file("/proc/" + name + "/environ");
    if (file.open(QIODevice::ReadOnly) && file.readAll().split('\0').contains(mark)) {
      found.push_back(process);
    }
  }
  return found;
}

std::vector<int> VisualiserProcess::Running() const {
  std::vector<int> running = Marked();
  std::erase_if(running, [this](int process) { return WasAsked(process); });
  return running;
}

std::vector<int> VisualiserProcess::StillClosing() const {
  std::vector<int> closing = Marked();
  std::erase_if(closing, [this](int process) { return !WasAsked(process); });
  return closing;
}

bool VisualiserProcess::WasAsked(int process) const {
  return std::ranges::find(asked_, process) != asked_.end();
}

void VisualiserProcess::AskToClose() {
  for (const int process : Running()) {
    ::kill(process, SIGTERM);
    asked_.push_back(process);
  }
  since_asked_.start();
  end_.start();
}

void VisualiserProcess::End() {
  for (const int process : StillClosing()) ::kill(process, SIGKILL);
  asked_.clear();
}

}  // namespace sonotik
