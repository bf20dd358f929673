// Flushing a file, and opening one only if it is new, are not in the standard library: these few
// calls are POSIX's.
#include "tools/config/staged_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <set>
#include <string>

#include "files/runtime_failure.h"

namespace sonotik {
namespace fs = std::filesystem;
namespace {

fs::path Beside(const fs::path& target) {
  fs::path beside = target;
  return beside += ".part";
}

[[noreturn]] void Fail(const char* what, const fs::path& path, int error) {
  throw RuntimeFailure(std::string(what) + " " + path.string() + ": " + std::strerror(error));
}

// 0, or the error number.
int WriteNewFile(const fs::path& path, std::string_view bytes) {
  const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (fd < 0) return errno;
  int error = 0;
  while (!bytes.empty() && error == 0) {
    const ssize_t written = ::write(fd, bytes.data(), bytes.size());
    if (written > 0) bytes.remove_prefix(static_cast<size_t>(written));
    if (written < 0 && errno != EINTR) error = errno;
  }
  if (error == 0 && ::fsync(fd) != 0) error = errno;
  if (::close(fd) != 0 && error == 0) error = errno;
  return error;
}

}  // namespace

StagedFiles::~StagedFiles() {
  for (const fs::path& target : targets_) ::unlink(Beside(target).c_str());
}

void StagedFiles::Add(const fs::path& target, std::string_view bytes) {
  const fs::path beside = Beside(target);
  // What a run that was cut off has left, or a link that would lead the bytes elsewhere.
  ::unlink(beside.c_str());
  const int error = WriteNewFile(beside, bytes);
  if (error != 0) {
    if (error != EEXIST) ::unlink(beside.c_str());
    Fail("cannot write", target, error);
  }
  targets_.push_back(target);
}

void StagedFiles::Commit() {
  std::set<fs::path> folders;
  while (!targets_.empty()) {
    const fs::path& target = targets_.front();
    if (::rename(Beside(target).c_str(), target.c_str()) != 0)
      Fail("cannot replace", target, errno);
    folders.insert(target.parent_path());
    targets_.erase(targets_.begin());
  }
  for (const fs::path& folder : folders) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) continue;
    ::fsync(fd);
    ::close(fd);
  }
}

}  // namespace sonotik
