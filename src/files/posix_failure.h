// A failed system call in words.
#ifndef SONOTIK_FILES_POSIX_FAILURE_H_
#define SONOTIK_FILES_POSIX_FAILURE_H_

#include <cerrno>
#include <cstring>
#include <string>
#include <string_view>

#include "files/runtime_failure.h"

namespace sonotik {

// "cannot open \music\x: No such file or directory", from errno as it stands.
[[noreturn]] inline void FailWithErrno(std::string_view what, std::string_view path) {
  const std::string why = std::strerror(errno);
  throw RuntimeFailure(std::string(what) + " " + std::string(path) + ": " + why);
}

}  // namespace sonotik

#endif  // SONOTIK_FILES_POSIX_FAILURE_H_
