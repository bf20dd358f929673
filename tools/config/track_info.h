// What a media file says about itself.
#ifndef SONOTIK_TOOLS_CONFIG_TRACK_INFO_H_
#define SONOTIK_TOOLS_CONFIG_TRACK_INFO_H_

#include <filesystem>
#include <string>

namespace sonotik {

// Clean text in UTF-8, at most 255 bytes each; empty where nothing is known.
struct TrackInfo {
  std::string path;  // as the catalogue writes it
  std::string artist;
  std::string title;
  std::string album;
  std::string composer;
  std::string track;  // as the tag gives it: "3", "3/12"
  std::string year;
  std::string genre;
  std::string comment;
  std::string running_time;  // minutes ":" two-digit seconds
};

// True for the kinds whose own tags the jukebox reads (MP3, WMA, M4A, M4P); it reads all others'
// names from a sidecar.
bool HasOwnTag(const std::filesystem::path& file);

// Fills `info` but for its path, as far as the file tells. Gives a word of warning if the file is
// there but no sound can be found in it; it may play all the same, so this isn't a failure. Throws
// RuntimeFailure for what can't be read at all.
std::string ReadTrackInfo(const std::filesystem::path& file, TrackInfo& info);

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_TRACK_INFO_H_
