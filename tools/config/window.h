// The window over the catalogue builder: folders in, progress, counts and what could not be read.
#ifndef SONOTIK_TOOLS_CONFIG_WINDOW_H_
#define SONOTIK_TOOLS_CONFIG_WINDOW_H_

#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>
#include <array>
#include <atomic>
#include <thread>

#include "tools/config/remembered_folders.h"

namespace sonotik {

class ConfigWindow : public QWidget {
 public:
  // Builds the catalogue of the jukebox in this folder.
  explicit ConfigWindow(std::filesystem::path app);
  // Ends a build that runs, and the old catalogue stands.
  ~ConfigWindow() override;

  void AddFolder(CatalogueKind kind, const QString& folder);
  void Build();

  bool building() const { return worker_.joinable(); }
  QString summary() const { return summary_.text(); }
  int problems() const { return problems_.count(); }
  int folders(CatalogueKind kind) const { return lists_[static_cast<size_t>(kind)].count(); }

 private:
  KindFolders Folders() const;
  void Remember();
  void ShowProgress(const BuildProgress& progress);
  void Finish(const BuildReport& report, const std::string& failure);

  const std::filesystem::path app_;
  std::array<QListWidget, 3> lists_;
  QPushButton build_{"Build the catalogue"};
  QPushButton stop_{"Stop"};
  QProgressBar bar_;
  QLabel summary_;
  QListWidget problems_;
  std::thread worker_;
  std::atomic<bool> stop_asked_{false};
  std::atomic<int64_t> last_shown_{0};
};

// The window for the jukebox in this folder, until it is closed.
int RunWindow(int& argc, char** argv, const std::filesystem::path& app);

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_WINDOW_H_
