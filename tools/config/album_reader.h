// Reads the media files of one folder and writes the sidecars that are missing there.
#ifndef SONOTIK_TOOLS_CONFIG_ALBUM_READER_H_
#define SONOTIK_TOOLS_CONFIG_ALBUM_READER_H_

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "tools/config/album_builder.h"
#include "tools/config/media_scan.h"
#include "tools/config/running_time.h"

namespace sonotik {

class AlbumReader {
 public:
  // `stop_asked` also cuts short what takes long; a file so cut gets no sidecar.
  AlbumReader(std::string ffprobe, std::function<bool()> stop_asked)
      : probe_(std::move(ffprobe)), stop_asked_(std::move(stop_asked)) {}

  // The folder as an album, of those files that can be read. `at_file` is called before each file;
  // what it throws ends the reading.
  Album Read(const MediaFolder& folder, const std::function<void()>& at_file);

  int sidecars() const { return sidecars_; }
  const std::vector<Problem>& problems() const { return problems_; }

 private:
  TrackInfo ReadFile(const MediaFolder& folder, const MediaFile& file, bool wants_sidecar);
  // One path a track of the album, empty for a track that gets no sidecar.
  void WriteSidecars(const Album& album, const std::vector<std::filesystem::path>& media_files);

  RunningTimeProbe probe_;
  std::function<bool()> stop_asked_;
  int sidecars_ = 0;
  std::vector<Problem> problems_;
};

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_ALBUM_READER_H_
