#include "files/paths.h"

#include <system_error>

#include "text/text.h"

namespace sonotik {
namespace fs = std::filesystem;
namespace {

bool Exists(const fs::path& path) {
  std::error_code error;
  return fs::exists(fs::symlink_status(path, error));
}

// Of two names that differ from the asked one by case only, the first by bytes is taken, so that
// the choice doesn't depend on the order in which the disk lists them.
fs::path FindIgnoringCase(const fs::path& folder, const std::string& name) {
  std::string best;
  std::error_code error;
  for (fs::directory_iterator entry(folder.empty() ? "." : folder, error), end;
       !error && entry != end; entry.increment(error)) {
    const std::string found = entry->path().filename().string();
    if (EqualsIgnoringCase(found, name) && (best.empty() || found < best)) best = found;
  }
  return folder / (best.empty() ? name : best);
}

}  // namespace

fs::path NativePath(std::string_view path) {
  std::string text;
  text.reserve(path.size());
  for (const char c : path) {
    const char native = c == '\\' ? '/' : c;
    if (native == '/' && !text.empty() && text.back() == '/') continue;
    // A NUL can't be part of a name; cutting there would name another file.
    text += native == '\0' ? '?' : native;
  }
  if (text.size() > 1 && text.back() == '/') text.pop_back();
  const fs::path as_spelled(text);
  if (text.empty() || Exists(as_spelled)) return as_spelled;

  fs::path resolved;
  bool lost = false;
  for (const fs::path& part : as_spelled) {
    const fs::path next = resolved / part;
    if (lost || Exists(next)) {
      resolved = next;
      continue;
    }
    resolved = FindIgnoringCase(resolved, part.string());
    lost = !Exists(resolved);
  }
  return resolved;
}

std::string ProgramPath(const fs::path& native) { return ReplaceAll(native.string(), "/", "\\"); }

std::string FolderOf(std::string_view path) {
  const size_t last = path.rfind('\\');
  return last == std::string_view::npos ? "" : std::string(path.substr(0, last + 1));
}

std::string NameOf(std::string_view path) {
  const size_t last = path.rfind('\\');
  return std::string(last == std::string_view::npos ? path : path.substr(last + 1));
}

std::string KindOf(std::string_view path) {
  return UpperCase(path.size() > 3 ? path.substr(path.size() - 3) : path);
}

std::string WithoutTagMark(std::string_view path) { return ReplaceAll(path, ".tag", ""); }

std::string WithSingleSeparators(std::string_view path) { return ReplaceAll(path, "\\\\", "\\"); }

}  // namespace sonotik
