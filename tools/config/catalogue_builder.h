// Builds the jukebox's catalogue from folders of media files. It prints nothing and asks nothing:
// a command line and a window stand over it alike.
#ifndef SONOTIK_TOOLS_CONFIG_CATALOGUE_BUILDER_H_
#define SONOTIK_TOOLS_CONFIG_CATALOGUE_BUILDER_H_

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "text/dates.h"
#include "tools/config/media_scan.h"

namespace sonotik {

struct BuildRequest {
  std::filesystem::path app;  // the jukebox's own folder, where the catalogue goes
  // Kinds without an entry keep their files untouched.
  std::map<CatalogueKind, std::vector<std::filesystem::path>> folders;
  Date today;
  std::string ffprobe = "ffprobe";  // the program that knows the running times of films
};

struct BuildProgress {
  enum class Phase { kLooking, kReading, kWriting } phase = Phase::kLooking;
  CatalogueKind kind = CatalogueKind::kAudio;
  long done = 0;   // files found or read
  long total = 0;  // files to read, 0 while it isn't known
};

// Both are called often, on the thread that builds.
struct BuildHooks {
  std::function<void(const BuildProgress&)> progress = [](const BuildProgress&) {};
  // Once this gives true the build ends, and the old catalogue stands as it was.
  std::function<bool()> stop_asked = [] { return false; };
};

struct KindReport {
  CatalogueKind kind = CatalogueKind::kAudio;
  bool written = false;
  size_t albums = 0;
  size_t tracks = 0;
  size_t new_albums = 0;
  size_t new_tracks = 0;
  size_t kept_tracks = 0;  // from folders that could not be reached
};

struct BuildReport {
  bool stopped = false;
  std::vector<KindReport> kinds;  // those asked for
  int genres = 0;
  int sidecars = 0;
  std::vector<Problem> problems;

  bool AnyWritten() const;
};

// Throws RuntimeFailure if the catalogue can't be written, or an old one that is there can't be
// read: then the old one stands. What goes wrong with media files and folders is in the report.
BuildReport BuildCatalogue(const BuildRequest& request, const BuildHooks& hooks);

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_CATALOGUE_BUILDER_H_
