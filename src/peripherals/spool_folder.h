// The Master's side of the shared folder: the selections that Terminals have left there.
#ifndef SONOTIK_PERIPHERALS_SPOOL_FOLDER_H_
#define SONOTIK_PERIPHERALS_SPOOL_FOLDER_H_

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "files/file_list.h"
#include "files/files.h"

namespace sonotik {

// What one spool file asks for. Both flags 0: to the end of the queue.
struct SpooledSelection {
  int play_now_flag = 0;
  int play_next_flag = 0;
  std::string path;
};

class SpoolFolder {
 public:
  explicit SpoolFolder(std::string folder) : folder_(std::move(folder)) {}

  // Looks at a spool file, ten seconds of them at a hundred a second.
  static constexpr int kPatience = 1000;
  // The first spool file, for Remove to delete once it is served. Of two selections in one file the
  // first alone is served; that is meant. A file whose third line hasn't ended is being written and
  // is passed over, until it has stood still for kPatience looks; so is one that is far too long.
  // One that is no selection goes out of the way, its name and ".bad", or nothing behind it would
  // ever be served, and throws RuntimeFailure.
  std::optional<SpooledSelection> Read();
  void Remove();

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

  std::string folder_;
  FileList spool_files_{"*.que"};
  std::string served_;
  FileStamp served_stamp_;
  std::map<std::string, Waiting> waiting_;  // by path
};

}  // namespace sonotik

#endif  // SONOTIK_PERIPHERALS_SPOOL_FOLDER_H_
