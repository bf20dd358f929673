#include "files/program_folder.h"

#include <unistd.h>

#include <string>
#include <string_view>
#include <system_error>

namespace sonotik {
namespace fs = std::filesystem;

fs::path ProgramFolder(const char* started_as, const char* search_path) {
  fs::path program(started_as == nullptr ? "" : started_as);
  if (program.has_parent_path()) {
    return fs::absolute(program.parent_path()).lexically_normal();
  }
  std::string_view folders(search_path == nullptr ? "" : search_path);
  while (!folders.empty()) {
    const size_t end = std::min(folders.find(':'), folders.size());
    const fs::path candidate = fs::path(folders.substr(0, end)) / program;
    if (!program.empty() && ::access(candidate.c_str(), X_OK) == 0) {
      return fs::absolute(candidate.parent_path()).lexically_normal();
    }
    folders.remove_prefix(std::min(end + 1, folders.size()));
  }
  std::error_code error;
  return fs::current_path(error);
}

}  // namespace sonotik
