// Whole files: look, read, replace, append, delete. All paths are the program's.
#ifndef SONOTIK_FILES_FILES_H_
#define SONOTIK_FILES_FILES_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sonotik {

// A file in the system's sense: there, and no folder. A blank path is none.
bool FileExists(std::string_view path);
bool FolderExists(std::string_view path);

// Length in bytes; throws RuntimeFailure if there is no such file.
int64_t FileLength(std::string_view path);

// By what a file is told from an earlier state of itself; a file that isn't there has size -1.
struct FileStamp {
  int64_t size = -1;
  int64_t changed_ns = 0;
  bool operator==(const FileStamp&) const = default;
};
FileStamp StampOf(std::string_view path);

// The whole file. Throws RuntimeFailure if it can't be read.
std::string ReadWholeFile(std::string_view path);

// The first line of a text file without its end; empty if there is no such file. Throws
// RuntimeFailure if it can't be read.
std::string FirstLineOf(std::string_view path);

// Who may read a file that is made: whoever the user's own settings allow, or nobody else, where a
// PIN stands in it.
enum class FileAccess { kUsual, kOwnerOnly };

// Puts a new file in the place of an old one: written beside it, flushed to the disk and renamed
// over it, so that a power cut leaves the old one or the new one. Throws RuntimeFailure, and then
// the old file still stands.
void ReplaceFile(std::string_view path, std::string_view bytes,
                 FileAccess access = FileAccess::kUsual);

// Writes behind what is there; a missing file is made. Throws RuntimeFailure.
void AppendToFile(std::string_view path, std::string_view bytes,
                  FileAccess access = FileAccess::kUsual);

// No error if it isn't there; throws RuntimeFailure if it can't be deleted.
void DeleteFileIfThere(std::string_view path);

// Over a file of that name too. Throws RuntimeFailure, and then nothing has changed.
void RenameFile(std::string_view from, std::string_view to);

// With the folders above it; no error if it is there. Throws RuntimeFailure.
void MakeFolder(std::string_view path);

// Changes the working folder. Throws RuntimeFailure.
void ChangeWorkingFolder(std::string_view path);

// Holds a folder for one instance of the program: a lock that the kernel frees when the process
// ends, however it ends.
class FolderLock {
 public:
  FolderLock() = default;
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  // False if another process holds the folder. A folder where no lock can be made (a read-only
  // disk) counts as free: better a second instance than a cabinet that doesn't start.
  bool Take(std::string_view folder);

 private:
  int handle_ = -1;
};

}  // namespace sonotik

#endif  // SONOTIK_FILES_FILES_H_
