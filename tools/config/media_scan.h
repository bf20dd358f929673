// Finds the media files of a catalogue in the operator's folders.
#ifndef SONOTIK_TOOLS_CONFIG_MEDIA_SCAN_H_
#define SONOTIK_TOOLS_CONFIG_MEDIA_SCAN_H_

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace sonotik {

enum class CatalogueKind { kAudio, kVideo, kKaraoke };

// Something on the disk that could not be taken or done, for the operator to read.
struct Problem {
  std::string path;  // as the machine writes it
  std::string reason;
};

struct MediaFile {
  std::string name;
  std::string sidecar;  // the name of its sidecar, empty if it has none
};

// An album: a folder that directly holds media files, in the order of a track list.
struct MediaFolder {
  std::filesystem::path path;
  std::vector<MediaFile> files;
};

struct MediaScan {
  std::vector<MediaFolder> folders;
  // Folders of which it can't be told what they hold: absent, locked, or behind a broken link.
  std::vector<std::filesystem::path> unreachable;
  std::vector<Problem> problems;
};

// Walks the folders and all below them, each once however many ways lead there, but for hidden
// ones. `at_folder` is called with the count of media files so far before each folder is listed;
// what it throws ends the walk.
MediaScan ScanMedia(const std::vector<std::filesystem::path>& folders, CatalogueKind kind,
                    const std::function<void(long)>& at_folder);

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_MEDIA_SCAN_H_
