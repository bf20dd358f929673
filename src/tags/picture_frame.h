// The head of an "APIC" frame: encoding, MIME type, kind of picture, description. ID3v2.3.0, 4.15.
#ifndef SONOTIK_TAGS_PICTURE_FRAME_H_
#define SONOTIK_TAGS_PICTURE_FRAME_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tags/byte_source.h"

namespace sonotik {

struct PictureHead {
  std::string kind;  // the MIME type without "image/"
  uint8_t type = 0;
  std::string title;
  size_t length = 0;  // of the head itself
};

// Nothing if the frame, or its first block of kCopyBlock bytes, ends within the head.
std::optional<PictureHead> ReadPictureHead(ByteSource& file, int64_t offset, int64_t size);

// "Front Cover" for 3; "Other" for 0 and for all above 20.
std::string PictureTypeName(uint8_t type);

// The number of a name, whatever its case; 0 if there is none such.
uint8_t PictureTypeNumber(std::string_view name);

}  // namespace sonotik

#endif  // SONOTIK_TAGS_PICTURE_FRAME_H_
