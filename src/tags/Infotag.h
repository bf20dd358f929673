// The way to the readers of whole file heads, by the file's extension.
#ifndef SONOTIK_TAGS_INFOTAG_H_
#define SONOTIK_TAGS_INFOTAG_H_

#include <string_view>

#include "tags/infotag_record.h"

namespace sonotik {

class Infotag {
 public:
  // The record must outlive the object. All that are given the same one see the same values.
  explicit Infotag(InfotagRecord& record) : record_(record) {}

  // Empties the record and fills it. True for the extensions "MP3" and "WMA" whatever the file
  // holds; false for any other and for a WMA that isn't there. Throws RuntimeFailure as
  // clsWMAHeadReader does.
  bool Find_Header_Tags(std::string_view path);

 private:
  InfotagRecord& record_;
};

}  // namespace sonotik

#endif  // SONOTIK_TAGS_INFOTAG_H_
