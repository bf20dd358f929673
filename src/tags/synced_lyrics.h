// The text of a "SYLT" frame, lyrics with a time for each line, and the lines as people write them:
// "[mm:ss]text", CR LF between them. ID3v2.3.0, 4.10.
#ifndef SONOTIK_TAGS_SYNCED_LYRICS_H_
#define SONOTIK_TAGS_SYNCED_LYRICS_H_

#include <string>
#include <string_view>

namespace sonotik {

// `text` stands behind the encoding byte of the frame; its times count milliseconds. It is read as
// far as it is whole.
std::string LinesOfLyrics(std::string_view text);

// The other way, with a language of three letters. Lines without a time have no place in it; empty
// if no line has one.
std::string TextOfLyrics(std::string_view lines, std::string_view language);

}  // namespace sonotik

#endif  // SONOTIK_TAGS_SYNCED_LYRICS_H_
