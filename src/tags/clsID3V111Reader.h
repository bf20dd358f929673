// The ID3v1.1 tag of a file as an object, for those who want its fields one by one. It reads some
// tags otherwise than ReadID3v1Tag does, and lists and charts made by it count on that.
#ifndef SONOTIK_TAGS_CLSID3V111READER_H_
#define SONOTIK_TAGS_CLSID3V111READER_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "tags/byte_source.h"

namespace sonotik {

class clsID3V111Reader {
 public:
  bool TagPresent = false;
  std::string SongTitle;
  std::string artist;
  std::string album;
  std::string Year;
  std::string Comment;
  uint8_t Track = 0;
  std::string Genre;

  // Empties all properties and fills them, or with `check_only` just TagPresent. A text ends at its
  // first NUL; without one, filled to its whole length or padded with blanks, it is empty. Track is
  // byte 126 whatever stands before it. A file that can't be opened leaves all as it is.
  void ReadID3V111Tag(ByteSource& file, bool check_only);
  void ReadID3V111Tag(std::string_view path, bool check_only);
};

}  // namespace sonotik

#endif  // SONOTIK_TAGS_CLSID3V111READER_H_
