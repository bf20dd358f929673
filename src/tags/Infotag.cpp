#include "tags/Infotag.h"

#include "files/files.h"
#include "tags/clsMP3HeadReader.h"
#include "tags/clsWMAHeadReader.h"
#include "text/text.h"

namespace sonotik {

bool Infotag::Find_Header_Tags(std::string_view path) {
  record_ = InfotagRecord();
  const size_t dot = path.rfind('.');
  const std::string extension = dot == path.npos ? "" : UpperCase(TrimBlanks(path.substr(dot + 1)));
  if (extension == "MP3") {
    clsMP3HeadReader reader(record_, message_);
    reader.ReadMP3Header(path);
    reader.LoadID3Info(path);
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
