// Several stations, one player: a Terminal hands its selections to the Master as small files in a
// shared folder.
#ifndef SONOTIK_PERIPHERALS_NETWORK_H_
#define SONOTIK_PERIPHERALS_NETWORK_H_

#include <memory>
#include <optional>
#include <string>

#include "files/bounded_calls.h"
#include "peripherals/spool_folder.h"

namespace sonotik {

class Network {
 public:
  Network(const std::string& app_path, BoundedCalls& share)
      : app_path_(app_path), share_(share), spool_(std::make_shared<SpoolFolder>(app_path)) {}

  // terminal.ini: a heading, the shared folder with its closing "\", "Master", "Terminal". Without
  // the file nothing changes.
  void LoadTerminal();
  void SaveTerminal() const;

  bool master() const { return master_; }
  bool terminal() const { return terminal_; }
  void SetRole(bool master, bool terminal);
  // A prefix for file names; empty for the working folder.
  const std::string& shared_folder() const { return shared_folder_; }
  void SetSharedFolder(std::string folder) { shared_folder_ = std::move(folder); }

  // Terminal: hands the selection over whole, under the first free name, "Queue.QUE",
  // "Queue 1.QUE", ... Throws RuntimeFailure if it couldn't, also for a folder that doesn't answer,
  // and then it isn't handed over later either.
  void WriteSpool(const SpooledSelection& selection);
  // Master: what lies in its own folder, whatever the box names; that is meant. Nothing from a
  // folder that doesn't answer. See SpoolFolder.
  std::optional<SpooledSelection> ReadSpool();
  void RemoveSpool();

 private:
  const std::string& app_path_;
  std::string shared_folder_;
  bool master_ = false;
  bool terminal_ = false;
  BoundedCalls& share_;
  std::shared_ptr<SpoolFolder> spool_;
};

}  // namespace sonotik

#endif  // SONOTIK_PERIPHERALS_NETWORK_H_
