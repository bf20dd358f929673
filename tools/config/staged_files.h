// Files that replace others all together: written beside them, flushed, and renamed only when every
// one of them is whole.
#ifndef SONOTIK_TOOLS_CONFIG_STAGED_FILES_H_
#define SONOTIK_TOOLS_CONFIG_STAGED_FILES_H_

#include <filesystem>
#include <string_view>
#include <vector>

namespace sonotik {

class StagedFiles {
 public:
  StagedFiles() = default;
  // Takes away what was not committed.
  ~StagedFiles();
  StagedFiles(const StagedFiles&) = delete;
  StagedFiles& operator=(const StagedFiles&) = delete;

  // Writes `target` + ".part" and flushes it to the disk. Never writes through a link that lies in
  // its place. Throws RuntimeFailure.
  void Add(const std::filesystem::path& target, std::string_view bytes);

  // Renames all, one after the other, in the order in which they were added. Throws RuntimeFailure;
  // those before the failing one then stand already.
  void Commit();

 private:
  std::vector<std::filesystem::path> targets_;
};

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_STAGED_FILES_H_
