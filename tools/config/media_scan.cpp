#include "tools/config/media_scan.h"

#include <algorithm>
#include <deque>
#include <map>
#include <set>
#include <string_view>
#include <system_error>

#include "catalogue/records.h"
#include "files/file_list.h"
#include "files/paths.h"
#include "text/text.h"
#include "tools/config/sidecar.h"

namespace sonotik {
namespace fs = std::filesystem;
namespace {

std::string EndingOf(std::string_view name) {
  const size_t dot = name.rfind('.');
  return dot == std::string_view::npos ? "" : std::string(name.substr(dot));
}

bool IsMedia(std::string_view name) {
  const std::string ending = EndingOf(name);
  return !ending.empty() &&
         ContainsIgnoringCase(std::string(kMediaPattern) + ";", "*" + ending + ";");
}

std::string WithEnding(std::string_view name, std::string_view ending) {
  return std::string(name.substr(0, name.rfind('.'))) + std::string(ending);
}

// Why a path has no place in a record; empty if it has.
std::string WhyNotHeld(const fs::path& path) {
  const std::string& text = path.native();
  if (text.find('\\') != std::string::npos) return "its path holds a backslash";
  if (std::any_of(text.begin(), text.end(),
                  [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; })) {
    return "its path holds a control character";
  }
  if (text.size() > TrackRecord::kPath.width) return "its path is longer than 255 characters";
  return "";
}

class Walk {
 public:
  Walk(CatalogueKind kind, const std::function<void(long)>& at_folder)
      : kind_(kind), at_folder_(at_folder) {}

  MediaScan Run(const std::vector<fs::path>& folders) {
    to_list_.assign(folders.begin(), folders.end());
    while (!to_list_.empty() || !links_.empty()) {
      // Links come last, so that a folder stands under its own path whatever points at it.
      std::deque<fs::path>& next = to_list_.empty() ? links_ : to_list_;
      const fs::path folder = std::move(next.front());
      next.pop_front();
      at_folder_(files_);
      Visit(folder);
    }
    return std::move(scan_);
  }

 private:
  struct Listing {
    std::vector<std::string> folders;
    std::vector<std::string> links;
    std::vector<std::string> files;
  };

  void Visit(const fs::path& folder) {
    std::error_code error;
    const fs::path real = fs::canonical(folder, error);
    if (!error && !seen_.insert(real).second) return;
    Listing listing;
    if (!error) error = List(folder, listing);
    if (error) {
      scan_.problems.push_back({folder.string(), "the folder cannot be read (" + error.message() +
                                                     "); its former records are kept"});
      scan_.unreachable.push_back(folder);
    }
    for (auto* names : {&listing.folders, &listing.links, &listing.files}) {
      std::sort(names->begin(), names->end(), LessIgnoringCase);
    }
    // Depth first, in the order of the names.
    for (auto name = listing.folders.rbegin(); name != listing.folders.rend(); ++name) {
      to_list_.push_front(folder / *name);
    }
    for (const std::string& name : listing.links) links_.push_back(folder / name);
    TakeFiles(folder, listing.files);
  }

  // A listing that breaks off leaves what it gave so far.
  static std::error_code List(const fs::path& folder, Listing& listing) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
      std::string name = entry->path().filename().string();
      if (name.starts_with('.')) continue;
      std::error_code ignored;
      const bool link = entry->is_symlink(ignored);
      const bool lost = link && !entry->exists(ignored) && !IsMedia(name);
      if (entry->is_directory(ignored) || lost) {
        (link ? listing.links : listing.folders).push_back(std::move(name));
      } else {
        listing.files.push_back(std::move(name));
      }
    }
    return error;
  }

  void TakeFiles(const fs::path& folder, const std::vector<std::string>& names) {
    MediaFolder album{folder, {}};
    std::map<std::string, std::string> companions;  // upper case, as spelled
    for (const std::string& name : names) {
      const std::string ending = UpperCase(EndingOf(name));
      if (ending == ".TAG" || ending == ".CDG") companions[UpperCase(name)] = name;
    }
    for (const std::string& name : names) {
      if (!IsMedia(name)) continue;
      if (kind_ == CatalogueKind::kKaraoke &&
          (UpperCase(EndingOf(name)) != ".MP3" ||
           !companions.contains(UpperCase(WithEnding(name, ".cdg"))))) {
        continue;
      }
      const std::string why = WhyNotHeld(folder / name);
      if (!why.empty()) {
        scan_.problems.push_back({(folder / name).string(), why});
        continue;
      }
      const auto sidecar = companions.find(UpperCase(name + kSidecarEnding));
      album.files.push_back({name, sidecar == companions.end() ? "" : sidecar->second});
    }
    files_ += static_cast<long>(album.files.size());
    if (!album.files.empty()) scan_.folders.push_back(std::move(album));
  }

  CatalogueKind kind_;
  const std::function<void(long)>& at_folder_;
  std::deque<fs::path> to_list_;
  std::deque<fs::path> links_;
  std::set<fs::path> seen_;
  long files_ = 0;
  MediaScan scan_;
};

}  // namespace

MediaScan ScanMedia(const std::vector<fs::path>& folders, CatalogueKind kind,
                    const std::function<void(long)>& at_folder) {
  return Walk(kind, at_folder).Run(folders);
}

}  // namespace sonotik
