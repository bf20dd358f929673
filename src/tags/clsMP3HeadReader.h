// The older reader of an MP3's head, behind Infotag: figures of the first frame and names by the
// class readers. Header: ISO 11172-3. It knows no header of variable-rate files.
#ifndef SONOTIK_TAGS_CLSMP3HEADREADER_H_
#define SONOTIK_TAGS_CLSMP3HEADREADER_H_

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "tags/byte_source.h"
#include "tags/infotag_record.h"

namespace sonotik {

// Both methods are quiet: what goes wrong leaves the record as filled so far. Nothing else gets a
// turn meanwhile: a head is soon read, and another reader would write into the same record.
class clsMP3HeadReader {
 public:
  // The record must live as long as the reader. `message` shows a text to the user.
  explicit clsMP3HeadReader(InfotagRecord& record,
                            std::function<void(const std::string&)> message = {})
      : record_(record), message_(std::move(message)) {}

  // The first byte FF behind an ID3v2 tag counts as the frame's start, whatever follows it.
  void ReadMP3Header(ByteSource& file);
  void ReadMP3Header(std::string_view path);

  // Names of the ID3v2.3 tag; of the ID3v1 tag if there is just that one.
  void LoadID3Info(ByteSource& file);
  void LoadID3Info(std::string_view path);

 private:
  int64_t BitRate(bool version1, size_t layer, size_t index) const;

  InfotagRecord& record_;
  std::function<void(const std::string&)> message_;
};

}  // namespace sonotik

#endif  // SONOTIK_TAGS_CLSMP3HEADREADER_H_
