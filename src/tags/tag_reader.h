// What a media file says about itself: the readers by kind of file, and which of them each caller
// uses.
#ifndef SONOTIK_TAGS_TAG_READER_H_
#define SONOTIK_TAGS_TAG_READER_H_

#include <functional>
#include <string>
#include <string_view>

#include "tags/infotag_record.h"
#include "tags/tag_fields.h"

namespace sonotik {

// Who asks. The callers do not agree on the reader for M4A and M4P, and each keeps its own ways.
enum class TagCaller {
  kAddQueue,
  kTrackList,
  kShowNext,
  kPlayTrack,
  kUpdateQueue,
  kPlayOptions,
  kQueueRow,
  kTrackRowClick,
  kBurnOrDownload,
  kQueueUpl,
};

// No reader tells its caller whether it found a tag: what is missing shows in the fields. A
// RuntimeFailure leaves the fields that were set before it set.
class TagReader {
 public:
  // Writes `fields`, which must live as long as the reader. The option is "Use Filename If No Tag
  // Found", asked when it matters.
  TagReader(TagFields& fields, std::function<bool()> use_filename_if_no_tag_found);

  bool UsesFilenameIfNoTagFound() const { return use_filename_if_no_tag_found_(); }

  // Reads `path` with the reader that `caller` uses for the last three characters of the path.
  void ReadFor(TagCaller caller, std::string_view path);

  // The same for whoever goes on without names: a damaged file, one row of a list or a track to be
  // played, has no tag.
  void ReadOrNone(TagCaller caller, std::string_view path);

  // MP3, by its ID3v2 tag alone: without one all twelve texts are empty. Throws RuntimeFailure for
  // an ID3v2 tag of size 0 or with a size that overflows, see mdlID3.h and mpeg_info.h.
  void Readtag(std::string_view path);

  // M4A and M4P: title, artist, album and year; empties the comments and leaves all else standing.
  // Throws RuntimeFailure for a missing file and for an atom without an end.
  void Readtag2(std::string_view path);

  // All others: the sidecar of a file that is there, the header of a WMA, else "No Tag". Throws
  // RuntimeFailure as ReadTagSidecar and clsWMAHeadReader do.
  void Readtag3(std::string_view path);

  // The text file beside a media file, its name and ".tag", one element on each of 13 lines; the
  // path may name either of the two. Throws RuntimeFailure as ReadSidecarText does.
  void ReadTagSidecar(std::string_view path);

  // The path that Readtag was last asked for.
  const std::string& CurrentTagFile() const { return CurrentTagFile_; }

 private:
  void SetNoTag(std::string_view title);
  void DoubleNames();

  TagFields& fields_;
  std::function<bool()> use_filename_if_no_tag_found_;
  InfotagRecord infotag_;
  std::string CurrentTagFile_;
};

}  // namespace sonotik

#endif  // SONOTIK_TAGS_TAG_READER_H_
