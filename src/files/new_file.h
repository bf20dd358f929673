// A file that others look for: it has its name only once it is whole.
#ifndef SONOTIK_FILES_NEW_FILE_H_
#define SONOTIK_FILES_NEW_FILE_H_

#include <filesystem>
#include <string>
#include <string_view>

namespace sonotik {

class NewFile {
 public:
  // Writes it, flushed to the disk, under a name of its own that begins like `path` and ends in
  // ".part". Throws RuntimeFailure.
  NewFile(std::string_view path, std::string bytes);
  // The name of its own goes.
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  // Gives it this name in the same folder. False if a file has it already; throws RuntimeFailure.
  // On a disk that knows no second name for a file it is written there anew: of two that do so at
  // the same moment one stands behind the other in one file.
  bool TakeName(std::string_view path) const;

 private:
  std::filesystem::path own_;
  std::string bytes_;
};

}  // namespace sonotik

#endif  // SONOTIK_FILES_NEW_FILE_H_
