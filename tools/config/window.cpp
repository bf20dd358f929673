#include "tools/config/window.h"

#include <QApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <chrono>
#include <ctime>

#include "tools/config/names.h"
#include "tools/config/report.h"

namespace sonotik {
namespace {

constexpr int64_t kProgressStep = 100;  // milliseconds

// What the counts of the three kinds and the last line take, so that nothing moves under a finger.
constexpr int kSummaryLines = 4;

constexpr const char* kTitles[] = {"Audio", "Video", "Karaoke"};

constexpr char kLook[] =
    "QWidget { background: #1a1d30; color: #f0f1f8; font-size: 17px; }"
    "QListWidget, QProgressBar { background: #262b44; border: 0; border-radius: 6px; padding: 6px; "
    "}"
    "QProgressBar { text-align: center; min-height: 36px; }"
    "QProgressBar::chunk { background: #8a5f1e; border-radius: 6px; }"
    "QPushButton { background: #343c60; border: 0; border-radius: 8px; min-height: 48px;"
    " padding: 0 22px; }"
    "QPushButton:disabled { color: #6c7392; }"
    "QListWidget::item { padding: 4px; }"
    "QListWidget::item:selected { background: #c98a2c; color: #1c1408; }"
    "QScrollBar { background: #262b44; }"
    "QScrollBar::handle { background: #4a5480; border-radius: 4px; min-height: 32px; }"
    "#build { background: #ffb84d; color: #1c1408; font-weight: bold; }"
    "#title { color: #ffb84d; font-weight: bold; }";

int64_t Now() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

Date Today() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&now, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

QString Shown(const std::string& text) { return QString::fromStdString(CleanText(text)); }

}  // namespace

ConfigWindow::ConfigWindow(std::filesystem::path app) : app_(std::move(app)) {
  setWindowTitle("Sonotik Config");
  setStyleSheet(kLook);
  resize(1000, 720);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(20, 16, 20, 20);
  grid->setSpacing(12);
  for (int kind = 0; kind < 3; ++kind) {
    QListWidget& list = lists_[static_cast<size_t>(kind)];
    auto* title = new QLabel(kTitles[kind]);
    title->setObjectName("title");
    auto* add = new QPushButton("Add folder");
    auto* remove = new QPushButton("Remove");
    connect(add, &QPushButton::clicked, this, [this, kind] {
      const QString folder = QFileDialog::getExistingDirectory(this, kTitles[kind]);
      if (!folder.isEmpty()) AddFolder(static_cast<CatalogueKind>(kind), folder);
    });
    connect(remove, &QPushButton::clicked, this, [this, &list] {
      delete list.takeItem(list.currentRow());
      Remember();
    });
    auto* row = new QHBoxLayout;
    row->addWidget(add);
    row->addWidget(remove);
    grid->addWidget(title, 0, kind);
    grid->addWidget(&list, 1, kind);
    grid->addLayout(row, 2, kind);
  }
  for (const auto& [kind, folders] : LoadFolders(app_)) {
    for (const auto& folder : folders) {
      lists_[static_cast<size_t>(kind)].addItem(QString::fromStdString(folder.string()));
    }
  }
  build_.setObjectName("build");
  stop_.setEnabled(false);
  bar_.setRange(0, 1);
  bar_.setFormat("");
  ensurePolished();
  summary_.setWordWrap(true);
  summary_.setAlignment(Qt::AlignTop);
  summary_.ensurePolished();
  summary_.setMinimumHeight(kSummaryLines * summary_.fontMetrics().lineSpacing());
  summary_.setText("Add the folders that hold your media, then build the catalogue.");
  problems_.setWordWrap(true);
  problems_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  grid->addWidget(&build_, 3, 0, 1, 2);
  grid->addWidget(&stop_, 3, 2);
  grid->addWidget(&bar_, 4, 0, 1, 3);
  grid->addWidget(&summary_, 5, 0, 1, 3);
  auto* unread = new QLabel("Could not be read");
  unread->setObjectName("title");
  grid->addWidget(unread, 6, 0, 1, 3);
  grid->addWidget(&problems_, 7, 0, 1, 3);
  connect(&build_, &QPushButton::clicked, this, [this] { Build(); });
  connect(&stop_, &QPushButton::clicked, this, [this] { stop_asked_ = true; });
}

ConfigWindow::~ConfigWindow() {
  stop_asked_ = true;
  if (worker_.joinable()) worker_.join();
}

void ConfigWindow::AddFolder(CatalogueKind kind, const QString& folder) {
  QListWidget& list = lists_[static_cast<size_t>(kind)];
  if (!list.findItems(folder, Qt::MatchExactly).isEmpty()) return;
  list.addItem(folder);
  Remember();
}

KindFolders ConfigWindow::Folders() const {
  KindFolders folders;
  for (size_t kind = 0; kind < lists_.size(); ++kind) {
    for (int i = 0; i < lists_[kind].count(); ++i) {
      folders[static_cast<CatalogueKind>(kind)].emplace_back(
          lists_[kind].item(i)->text().toStdString());
    }
  }
  return folders;
}

void ConfigWindow::Remember() {
  try {
    SaveFolders(app_, Folders());
  } catch (const std::exception& failure) {
    summary_.setText(Shown(failure.what()));
  }
}

void ConfigWindow::Build() {
  if (building()) return;
  BuildRequest request;
  request.app = app_;
  request.folders = Folders();
  request.today = Today();
  if (request.folders.empty()) return summary_.setText("Add a folder of media files first.");
  stop_asked_ = false;
  build_.setEnabled(false);
  stop_.setEnabled(true);
  problems_.clear();
  summary_.clear();
  bar_.setFormat("");
  // The window lives on while the files are read; all that it shows comes back to its own thread.
  worker_ = std::thread([this, request = std::move(request)] {
    BuildHooks hooks;
    hooks.stop_asked = [this] { return stop_asked_.load(); };
    hooks.progress = [this](const BuildProgress& progress) {
      if (Now() - last_shown_ < kProgressStep) return;
      last_shown_ = Now();
      QMetaObject::invokeMethod(
          this, [this, progress] { ShowProgress(progress); }, Qt::QueuedConnection);
    };
    BuildReport report;
    std::string failure;
    try {
      report = BuildCatalogue(request, hooks);
    } catch (const std::exception& error) {
      failure = error.what();
    }
    QMetaObject::invokeMethod(
        this, [this, report, failure] { Finish(report, failure); }, Qt::QueuedConnection);
  });
}

void ConfigWindow::ShowProgress(const BuildProgress& progress) {
  if (!building()) return;
  // Without a maximum the bar just moves.
  bar_.setRange(0, static_cast<int>(progress.total));
  bar_.setValue(static_cast<int>(progress.done));
  const QString count = QString::number(progress.done);
  switch (progress.phase) {
    case BuildProgress::Phase::kLooking:
      return bar_.setFormat("Looking: " + count + " files");
    case BuildProgress::Phase::kReading:
      return bar_.setFormat(count + " of " + QString::number(progress.total) + " files read");
    case BuildProgress::Phase::kWriting:
      return bar_.setFormat("Writing the catalogue");
  }
}

void ConfigWindow::Finish(const BuildReport& report, const std::string& failure) {
  worker_.join();
  build_.setEnabled(true);
  stop_.setEnabled(false);
  bar_.setRange(0, 1);
  bar_.setValue(failure.empty() && !report.stopped ? 1 : 0);
  bar_.setFormat(!failure.empty() ? "Failed" : report.stopped ? "Stopped" : "Done");
  for (const Problem& problem : report.problems) {
    problems_.addItem(Shown(problem.path + ": " + problem.reason));
  }
  // The problems stand in their list; the counts come behind them.
  std::string text = SummaryText(report);
  for (size_t i = 0; i < report.problems.size(); ++i) text.erase(0, text.find('\n') + 1);
  summary_.setText(failure.empty() ? QString::fromStdString(text).trimmed() : Shown(failure));
}

int RunWindow(int& argc, char** argv, const std::filesystem::path& app) {
  const QApplication application(argc, argv);
  ConfigWindow window(app);
  window.show();
  return QApplication::exec();
}

}  // namespace sonotik
