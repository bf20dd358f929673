#include "files/file_list.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "files/paths.h"
#include "text/text.h"

namespace sonotik {
namespace fs = std::filesystem;
namespace {

bool Matches(std::string_view patterns, std::string_view name) {
  while (!patterns.empty()) {
    const size_t end = std::min(patterns.find(';'), patterns.size());
    std::string_view ending = patterns.substr(0, end);
    patterns.remove_prefix(std::min(end + 1, patterns.size()));
    if (!ending.empty() && ending[0] == '*') ending.remove_prefix(1);
    if (ending == ".*" || (name.size() >= ending.size() &&
                           EqualsIgnoringCase(name.substr(name.size() - ending.size()), ending))) {
      return true;
    }
  }
  return false;
}

template <typename Keep>
std::vector<std::string> NamesIn(std::string_view folder, Keep keep) {
  std::vector<std::string> names;
  if (TrimBlanks(folder).empty()) return names;
  std::error_code error;
  for (fs::directory_iterator entry(NativePath(folder), error), end; !error && entry != end;
       entry.increment(error)) {
    std::string name = entry->path().filename().string();
    // Every list that holds paths is one of lines; a name of two lines would be two entries there,
    // and a backslash in a name would be a folder.
    if (name.find_first_of("\r\n\\") != std::string::npos) continue;
    if (keep(*entry, name)) names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end(), LessIgnoringCase);
  return names;
}

}  // namespace

void FileList::SetFolder(std::string_view folder) {
  folder_ = folder;
  if (folder_.size() > 1 && folder_.back() == '\\') folder_.pop_back();
  Refresh();
}

void FileList::Refresh() {
  names_ = NamesIn(folder_, [this](const fs::directory_entry& entry, const std::string& name) {
    std::error_code error;
    return Matches(pattern_, name) && !entry.is_directory(error);
  });
}

std::string FileList::PathAt(int index) const {
  const std::string name = NameAt(index);
  return name.empty() ? "" : folder_ + "\\" + name;
}

std::string FileList::NameAt(int index) const {
  return index < 0 || index >= count() ? "" : names_[static_cast<size_t>(index)];
}

std::vector<std::string> FoldersIn(std::string_view folder) {
  return NamesIn(folder, [](const fs::directory_entry& entry, const std::string&) {
    std::error_code error;
    return entry.is_directory(error);
  });
}

}  // namespace sonotik
