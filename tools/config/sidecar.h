// The sidecar of a media file whose own tag the jukebox doesn't read: a text of 13 lines, CR LF, an
// element a line. Lines are known by their number; what counts of an element's name is its length.
#ifndef SONOTIK_TOOLS_CONFIG_SIDECAR_H_
#define SONOTIK_TOOLS_CONFIG_SIDECAR_H_

#include <filesystem>
#include <string>

#include "tools/config/staged_files.h"
#include "tools/config/track_info.h"

namespace sonotik {

inline constexpr char kSidecarEnding[] = ".tag";

std::string SidecarText(const TrackInfo& info);

// Fills `info` but for its path, as the jukebox would show the file. False, and nothing is filled,
// if the text is too short for that.
bool ReadSidecarText(const std::string& text, TrackInfo& info);

// The sidecar's names as the jukebox would show them, in a file that may be anything; false as
// above.
bool ReadSidecar(const std::filesystem::path& sidecar, TrackInfo& info);

// Adds the sidecar of a media file to those that are to be written; false if something lies in its
// place already, which stays as it is. Throws RuntimeFailure.
bool StageSidecar(const std::filesystem::path& media_file, const TrackInfo& info,
                  StagedFiles& staged);

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_SIDECAR_H_
