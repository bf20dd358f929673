// ID3v2 tags of the versions 2.2, 2.3 and 2.4, in front of a file or appended to it, and chained by
// SEEK frames. Layouts: the ID3v2.2.0, ID3v2.3.0 and ID3v2.4.0 documents of id3.org.
//
// A tag is walked by its frame heads, and of the frames only those are read that fill a field.
// Whatever a header claims, no more is allocated than the file holds; bytes that a cut file lacks
// count as zeros.
#ifndef SONOTIK_TAGS_MDLID3_H_
#define SONOTIK_TAGS_MDLID3_H_

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "tags/byte_source.h"
#include "tags/tag_record.h"

namespace sonotik {

// True if a tag was found. The record stays as it was if the file can't be opened or has no tag.
// Throws RuntimeFailure for a tag of size 0 and for a size field that overflows 31 bits.
bool ReadID3v2Tag(ByteSource& file, TagRecord& record);
bool ReadID3v2Tag(std::string_view path, TagRecord& record);

// Reads the tag whose ten-byte header stands at `offset`. The record is cleared first, unless the
// tag is an update of an earlier one or of an unknown version. Gives the offset of the next tag, or
// -1. Throws as ReadID3v2Tag does.
int64_t ParseID3v2Block(ByteSource& file, int64_t offset, TagRecord& record);

// Where the data behind the tag at `offset` begin: the size of tag, header and footer; 0 without a
// tag. Throws RuntimeFailure for a size field that overflows 31 bits.
int64_t ID3v2DataStart(ByteSource& file, int64_t offset);

// A size of four bytes: seven bits a byte if `synchsafe`, else big-endian. A byte with its top bit
// set can't be synchsafe, and the field then counts as plain. Throws RuntimeFailure if a plain size
// begins with 128 or above.
int32_t ReadSizeField(std::span<const uint8_t, 4> bytes, bool synchsafe);

// The text of a frame's data, the encoding byte in front: text frames ("T..."), comments, user URLs
// and SEEK (its offset in decimal). Empty for all others.
std::string FrameText(std::span<const uint8_t> bytes, std::string_view id);

// True if the bytes can be a frame's id, or padding.
bool IsFrameIdAhead(std::span<const uint8_t, 4> bytes);

// Undoes unsynchronisation in place (FF 00 becomes FF) and gives the number of bytes dropped. The
// last byte stays whatever it is.
size_t RemoveUnsync(std::span<uint8_t> bytes);

// A genre with a reference in brackets: "(17)Rock" gives "Rock", "(RX)" "Remix", "(CR)" "Cover", a
// number without a name an empty text. Any other text stays.
std::string ParseGenreRef(std::string_view text);

}  // namespace sonotik

#endif  // SONOTIK_TAGS_MDLID3_H_
