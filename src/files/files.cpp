// The file system's edge. The standard library has no way to flush a file to the disk or to lock
// one, so these few calls are POSIX's.
#include "files/files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "files/paths.h"
#include "files/posix_failure.h"
#include "text/text.h"

namespace sonotik {
namespace fs = std::filesystem;
namespace {

class Handle {
 public:
  Handle(const fs::path& path, int flags) : fd_(::open(path.c_str(), flags | O_CLOEXEC, 0666)) {}
  ~Handle() {
    if (fd_ >= 0) ::close(fd_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  bool open() const { return fd_ >= 0; }
  int get() const { return fd_; }
  // A file system without modes keeps its own ways.
  void Restrict(FileAccess access) const {
    if (access == FileAccess::kOwnerOnly && ::fchmod(fd_, 0600) != 0) return;
  }

 private:
  int fd_;
};

bool WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(fd, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<size_t>(written));
  }
  return true;
}

void FlushFolder(const fs::path& folder) {
  const Handle handle(folder.empty() ? fs::path(".") : folder, O_RDONLY | O_DIRECTORY);
  if (handle.open()) ::fsync(handle.get());
}

}  // namespace

bool FileExists(std::string_view path) {
  if (TrimBlanks(path).empty()) return false;
  std::error_code error;
  const auto status = fs::status(NativePath(path), error);
  return fs::exists(status) && !fs::is_directory(status);
}

bool FolderExists(std::string_view path) {
  if (TrimBlanks(path).empty()) return false;
  std::error_code error;
  return fs::is_directory(NativePath(path), error);
}

int64_t FileLength(std::string_view path) {
  struct stat status;
  if (::stat(NativePath(path).c_str(), &status) != 0) FailWithErrno("cannot measure", path);
  return status.st_size;
}

FileStamp StampOf(std::string_view path) {
  struct stat status;
  if (::stat(NativePath(path).c_str(), &status) != 0) return {};
  constexpr int64_t kNanoseconds = 1000000000;
  return {status.st_size, status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec};
}

std::string ReadWholeFile(std::string_view path) {
  const Handle file(NativePath(path), O_RDONLY);
  if (!file.open()) FailWithErrno("cannot open", path);
  std::string bytes;
  char block[65536];
  for (;;) {
    const ssize_t count = ::read(file.get(), block, sizeof block);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) FailWithErrno("cannot read", path);
    if (count == 0) return bytes;
    bytes.append(block, static_cast<size_t>(count));
  }
}

std::string FirstLineOf(std::string_view path) {
  if (!FileExists(path)) return "";
  const std::string text = ReadWholeFile(path);
  return text.substr(0, text.find_first_of("\r\n"));
}

void ReplaceFile(std::string_view path, std::string_view bytes, FileAccess access) {
  const fs::path target = NativePath(path);
  fs::path beside = target;
  beside += ".part";
  {
    const Handle file(beside, O_WRONLY | O_CREAT | O_TRUNC);
    if (!file.open()) FailWithErrno("cannot create", path);
    file.Restrict(access);
    if (!WriteAll(file.get(), bytes) || ::fsync(file.get()) != 0) {
      const int error = errno;
      ::unlink(beside.c_str());
      errno = error;
      FailWithErrno("cannot write", path);
    }
  }
  if (::rename(beside.c_str(), target.c_str()) != 0) {
    const int error = errno;
    ::unlink(beside.c_str());
    errno = error;
    FailWithErrno("cannot replace", path);
  }
  FlushFolder(target.parent_path());
}

void AppendToFile(std::string_view path, std::string_view bytes, FileAccess access) {
  const Handle file(NativePath(path), O_WRONLY | O_CREAT | O_APPEND);
  if (!file.open()) FailWithErrno("cannot open", path);
  file.Restrict(access);
  if (!WriteAll(file.get(), bytes)) FailWithErrno("cannot write", path);
}

void DeleteFileIfThere(std::string_view path) {
  std::error_code error;
  fs::remove(NativePath(path), error);
  if (error) {
    errno = error.value();
    FailWithErrno("cannot delete", path);
  }
}

void RenameFile(std::string_view from, std::string_view to) {
  std::error_code error;
  fs::rename(NativePath(from), NativePath(to), error);
  if (error) {
    errno = error.value();
    FailWithErrno("cannot rename", from);
  }
}

void MakeFolder(std::string_view path) {
  std::error_code error;
  fs::create_directories(NativePath(path), error);
  if (error) throw RuntimeFailure("can't make the folder " + std::string(path));
}

void ChangeWorkingFolder(std::string_view path) {
  if (::chdir(NativePath(path).c_str()) != 0) FailWithErrno("cannot change to", path);
}

FolderLock::~FolderLock() {
  if (handle_ >= 0) ::close(handle_);
}

bool FolderLock::Take(std::string_view folder) {
  const fs::path file = NativePath(folder) / "sonotik.lock";
  handle_ = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (handle_ < 0) return true;
  return ::flock(handle_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

}  // namespace sonotik
