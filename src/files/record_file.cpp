#include "files/record_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "files/paths.h"
#include "files/posix_failure.h"
#include "files/runtime_failure.h"

namespace sonotik {
namespace {

constexpr int64_t kBlockBytes = 65536;

// Bytes got; fewer than asked only at the end of the file, -1 for an error.
ssize_t ReadAt(int fd, std::span<char> bytes, int64_t offset) {
  size_t got = 0;
  while (got < bytes.size()) {
    const ssize_t count = ::pread(fd, bytes.data() + got, bytes.size() - got,
                                  static_cast<off_t>(offset + static_cast<int64_t>(got)));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return -1;
    if (count == 0) break;
    got += static_cast<size_t>(count);
  }
  return static_cast<ssize_t>(got);
}

int64_t LengthOf(int fd) {
  struct stat status;
  return ::fstat(fd, &status) == 0 ? status.st_size : 0;
}

}  // namespace

RecordFile::RecordFile(std::string_view path, size_t record_size)
    : path_(path), record_size_(record_size) {
  const auto native = NativePath(path);
  fd_ = ::open(native.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd_ < 0 && errno == ENOENT) {
    fd_ = ::open(native.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  }
  if (fd_ < 0) FailWithErrno("cannot open", path_);
  records_ = LengthOf(fd_) / static_cast<int64_t>(record_size_);
}

RecordFile::~RecordFile() { ::close(fd_); }

void RecordFile::Read(int64_t n, std::span<char> record) {
  const std::string_view bytes = View(n);
  std::copy_n(bytes.data(), std::min(record.size(), bytes.size()), record.data());
}

std::string_view RecordFile::View(int64_t n) {
  if (n < 1) throw RuntimeFailure("there is no record " + std::to_string(n) + " in " + path_);
  if (n > records_) return {};
  const int64_t size = static_cast<int64_t>(record_size_);
  if (n < first_ || n >= first_ + held_) {
    // A single record for a single question, a block for a scan.
    const int64_t wanted = n == last_asked_ + 1 ? std::max<int64_t>(1, kBlockBytes / size) : 1;
    held_ = 0;
    block_.resize(static_cast<size_t>(std::min(wanted, records_ - n + 1) * size));
    const ssize_t got = ReadAt(fd_, block_, (n - 1) * size);
    if (got < 0) FailWithErrno("cannot read", path_);
    // The file may have been cut since it was opened.
    held_ = got / size;
    first_ = n;
  }
  last_asked_ = n;
  if (n >= first_ + held_) return {};
  return {block_.data() + (n - first_) * size, record_size_};
}

void AppendRecord(std::string_view path, std::span<const char> record) {
  const int fd = ::open(NativePath(path).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
  if (fd < 0) FailWithErrno("cannot open", path);
  const int64_t size = static_cast<int64_t>(record.size());
  const int64_t offset = LengthOf(fd) / size * size;
  ssize_t written = -1;
  do {
    written = ::pwrite(fd, record.data(), record.size(), static_cast<off_t>(offset));
  } while (written < 0 && errno == EINTR);
  const int error = errno;
  ::close(fd);
  errno = written < 0 ? error : ENOSPC;
  if (written != static_cast<ssize_t>(record.size())) FailWithErrno("cannot write", path);
}

void PutField(std::span<char> record, size_t offset, size_t width, std::string_view text) {
  const auto field = record.subspan(offset, width);
  const size_t length = std::min(width, text.size());
  std::copy_n(text.data(), length, field.begin());
  std::fill(field.begin() + static_cast<std::ptrdiff_t>(length), field.end(), ' ');
}

}  // namespace sonotik
