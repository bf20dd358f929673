// The genres' covers indexes, and the list of those that are this builder's: whatever else lies in
// their folder belongs to somebody else.
#ifndef SONOTIK_TOOLS_CONFIG_GENRE_FILES_H_
#define SONOTIK_TOOLS_CONFIG_GENRE_FILES_H_

#include <string>
#include <vector>

#include "tools/config/album_builder.h"
#include "tools/config/media_scan.h"
#include "tools/config/staged_files.h"

namespace sonotik {

class GenreFiles {
 public:
  // `folder` is the jukebox's own, as a program path. Reads which files a former run has written.
  // Throws RuntimeFailure, as all members do.
  explicit GenreFiles(const std::string& folder);

  // Puts albums that are taken over as they were under the genres that they stood under.
  void CarryOver(const std::vector<AlbumRecord>& albums, GenreIndex& genres) const;

  // Adds one file a genre; gives their number, and notes what has no place.
  int Stage(const std::vector<GenreAlbums>& genres, StagedFiles& staged,
            std::vector<Problem>& problems);

  // Around the commit of the staged files: before it notes the new files as this builder's, after
  // it deletes those whose genre is gone.
  void BeforeCommit() const;
  void AfterCommit() const;

 private:
  void WriteList(const std::vector<std::string>& names) const;

  std::string folder_;
  std::vector<std::string> former_;
  std::vector<std::string> written_;
};

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_GENRE_FILES_H_
