// The visualisation as a process of its own, known by a mark in its environment: so it is found
// again by the next run, with whatever a script has started.
#ifndef SONOTIK_DESKTOP_VISUALISER_PROCESS_H_
#define SONOTIK_DESKTOP_VISUALISER_PROCESS_H_

#include <QElapsedTimer>
#include <QTimer>
#include <string>
#include <vector>

#include "platform/visualiser.h"

namespace sonotik {

class VisualiserProcess : public Visualiser {
 public:
  // `folder` is the jukebox's, so that two on one machine leave each other's alone. Whoever was
  // asked to close gets `ms_to_close`.
  explicit VisualiserProcess(std::string folder, int ms_to_close = 2000);
  // Waits for the time of one that was asked. One that wasn't goes on.
  ~VisualiserProcess() override;
  VisualiserProcess(const VisualiserProcess&) = delete;
  VisualiserProcess& operator=(const VisualiserProcess&) = delete;

  void Start(const std::string& command) override;
  bool IsRunning() override { return !Running().empty(); }
  void AskToClose() override;

 private:
  std::vector<int> Marked() const;
  std::vector<int> Running() const;
  std::vector<int> StillClosing() const;
  bool WasAsked(int process) const;
  void End();

  std::string mark_;
  int ms_to_close_;
  // To close: a new one may start while they still do.
  std::vector<int> asked_;
  QTimer end_;
  QElapsedTimer since_asked_;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_VISUALISER_PROCESS_H_
