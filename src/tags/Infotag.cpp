#include "tags/Infotag.h"

#include "files/files.h"
#include "tags/clsWMAHeadReader.h"
#include "text/text.h"

namespace sonotik {

bool Infotag::Find_Header_Tags(std::string_view path) {
  record_ = InfotagRecord();
  const size_t dot = path.rfind('.');
  const std::string extension = dot == path.npos ? "" : UpperCase(path.substr(dot + 1));
  if (extension == "MP3") {
    // The place of clsMP3HeadReader: until it is there, an MP3 leaves the record empty here. All
    // MP3s that exist are read by mdlID3 and never come this way.
    return true;
  }
  if (extension == "WMA") {
    // A WMA that isn't there has no tag, so that its path can stand for its title.
    if (!FileExists(path)) return false;
    clsWMAHeadReader(record_).Get_WMA_Header(path);
    return true;
  }
  return false;
}

}  // namespace sonotik
