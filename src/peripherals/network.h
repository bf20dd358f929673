// Several stations, one player: a Terminal hands its selections to the Master as small files in a
// shared folder.
#ifndef SONOTIK_PERIPHERALS_NETWORK_H_
#define SONOTIK_PERIPHERALS_NETWORK_H_

#include <optional>
#include <string>

#include "files/file_list.h"
#include "files/files.h"

namespace sonotik {

// What one spool file asks for. Both flags 0: to the end of the queue.
struct SpooledSelection {
  int play_now_flag = 0;
  int play_next_flag = 0;
  std::string path;
};

class Network {
 public:
  explicit Network(const std::string& app_path) : app_path_(app_path) {}

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

  // Terminal: writes the selection under the first free name, "Queue.QUE", "Queue 1.QUE", ... Two
  // that choose one name at the same moment both write into it, and the first of them is taken.
  void WriteSpool(const SpooledSelection& selection) const;
  static constexpr int kPatience = 300;
  // Master: the first spool file of the own folder, for Remove to delete once it is served. One
  // whose third line hasn't ended is being written and waits, until it has stood still for
  // kPatience looks; one that can't be read is deleted at once, or nothing behind it would ever be
  // served, and throws RuntimeFailure.
  std::optional<SpooledSelection> ReadSpool();
  void RemoveSpool();

 private:
  bool StillWritten(const FileStamp& stamp, const std::string& text);

  const std::string& app_path_;
  std::string shared_folder_;
  bool master_ = false;
  bool terminal_ = false;
  FileList spool_files_{"*.que"};
  std::string served_;
  // The file that isn't whole yet, as it was at the last look, and the looks since it changed.
  std::string unfinished_;
  FileStamp unfinished_stamp_;
  int looks_ = 0;
  // A served file that can't be deleted, as it then was: it is not served again.
  std::string stuck_;
  FileStamp stuck_stamp_;
};

}  // namespace sonotik

#endif  // SONOTIK_PERIPHERALS_NETWORK_H_
