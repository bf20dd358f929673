// ID3v1 and ID3v1.1: the last 128 bytes of a file, beginning with "TAG".
#ifndef SONOTIK_TAGS_ID3V1_H_
#define SONOTIK_TAGS_ID3V1_H_

#include <cstdint>
#include <string_view>

#include "tags/byte_source.h"
#include "tags/tag_record.h"

namespace sonotik {

inline constexpr int64_t kID3v1Size = 128;

bool HasID3v1Tag(ByteSource& file);

// True if there is a tag; the record is cleared and filled only then. The comment isn't trimmed.
bool ReadID3v1Tag(ByteSource& file, TagRecord& record);
bool ReadID3v1Tag(std::string_view path, TagRecord& record);

}  // namespace sonotik

#endif  // SONOTIK_TAGS_ID3V1_H_
