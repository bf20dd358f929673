// Several stations, one player: a Terminal hands its selections to the Master as small files in a
// shared folder.
#ifndef SONOTIK_PERIPHERALS_NETWORK_H_
#define SONOTIK_PERIPHERALS_NETWORK_H_

#include <map>
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
  // Looks at a spool file, ten seconds of them at a hundred a second.
  static constexpr int kPatience = 1000;
  // Master: the first spool file of the own folder, for Remove to delete once it is served. One
  // whose third line hasn't ended is being written and is passed over, until it has stood still for
  // kPatience looks. One that is no selection goes out of the way, its name and ".bad", or nothing
  // behind it would ever be served, and throws RuntimeFailure.
  std::optional<SpooledSelection> ReadSpool();
  void RemoveSpool();

 private:
  // A file that stays where it is, as it was at the last look.
  struct Waiting {
    FileStamp stamp;
    int looks = 0;
    // Served, and not to be deleted: it is not served again.
    bool served = false;
  };
  bool StillWritten(const FileStamp& stamp, const std::string& text);
  // Runs what takes the served file away; while it can't, the file counts as served.
  template <typename Take>
  void TakeAway(Take take);
  void ForgetGoneFiles();

  const std::string& app_path_;
  std::string shared_folder_;
  bool master_ = false;
  bool terminal_ = false;
  FileList spool_files_{"*.que"};
  std::string served_;
  FileStamp served_stamp_;
  std::map<std::string, Waiting> waiting_;  // by path
};

}  // namespace sonotik

#endif  // SONOTIK_PERIPHERALS_NETWORK_H_
