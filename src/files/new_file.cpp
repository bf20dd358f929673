#include "files/new_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "files/files.h"
#include "files/paths.h"
#include "files/posix_failure.h"

namespace sonotik {

NewFile::NewFile(std::string_view path, std::string bytes) : bytes_(std::move(bytes)) {
  const std::string start = NativePath(path).string();
  int file = -1;
  // Others write here too, and what one that was cut off has left behind keeps its name.
  for (int n = 0; file < 0; ++n) {
    own_ = start + '.' + std::to_string(n) + ".part";
    file = ::open(own_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file < 0 && errno != EEXIST) FailWithErrno("cannot create", path);
  }
  const bool whole =
      ::write(file, bytes_.data(), bytes_.size()) == static_cast<ssize_t>(bytes_.size()) &&
      ::fsync(file) == 0;
  const int error = errno;
  ::close(file);
  if (whole) return;
  ::unlink(own_.c_str());
  errno = error;
  FailWithErrno("cannot write", path);
}

NewFile::~NewFile() { ::unlink(own_.c_str()); }

bool NewFile::TakeName(std::string_view path) const {
  if (::link(own_.c_str(), NativePath(path).c_str()) == 0) return true;
  if (errno == EEXIST) return false;
  if (errno != EPERM && errno != EOPNOTSUPP && errno != ENOSYS) FailWithErrno("cannot name", path);
  if (FileExists(path)) return false;
  AppendToFile(path, bytes_);
  return true;
}

}  // namespace sonotik
