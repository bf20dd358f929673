// What the readers of ID3 tags share: the record they fill, the way from a tag's bytes to text, and
// the names of the genres.
#ifndef SONOTIK_TAGS_TAG_RECORD_H_
#define SONOTIK_TAGS_TAG_RECORD_H_

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace sonotik {

struct TagRecord {
  std::string artist;
  std::string album;
  std::string title;
  std::string year;
  std::string genre;
  std::string comment;
  std::string track;
  std::string encoded_by;
  std::string url;
  std::string copyright;
  std::string composer;
  std::string original_artist;
};

void ClearTagRecord(TagRecord& record);

// Text of a tag. `encoding` is the encoding byte of ID3v2: 0 (Latin-1) and 3 (UTF-8) take every
// byte; 1 takes the low bytes of UTF-16 behind a little-endian byte order mark; 2 takes the even
// bytes, the high ones of big-endian UTF-16. Any other gives an empty text. A byte 13 is dropped, a
// byte 10 becomes CR LF. With `stop_at_nul` the first NUL among the bytes taken ends the text.
std::string DecodeBytes(std::span<const uint8_t> bytes, int encoding, bool stop_at_nul);

// A number as tags write one: a sign, digits and a decimal point, blanks around it. Nothing for any
// other text, an empty one and one with an exponent among them.
std::optional<double> TagNumber(std::string_view text);

// Genre 0 to 147 of ID3v1 with its customary extensions; empty for any other number.
std::string GenreName(int number);

}  // namespace sonotik

#endif  // SONOTIK_TAGS_TAG_RECORD_H_
