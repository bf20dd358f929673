// How the system treats plain text: bytes in the machine's code page, trimmed of blanks only.
#ifndef SONOTIK_TEXT_TEXT_H_
#define SONOTIK_TEXT_TEXT_H_

#include <string>
#include <string_view>

namespace sonotik {

// Drops blanks (0x20) at both ends. Tabs, line ends and NULs stay.
std::string_view TrimBlanks(std::string_view text);

// Upper and lower case of the ASCII letters. Bytes above 127 stay: they may be parts of a UTF-8
// letter, which must come through whole.
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

bool EqualsIgnoringCase(std::string_view a, std::string_view b);
bool ContainsIgnoringCase(std::string_view text, std::string_view part);
// True if a stands before b, the case of ASCII letters ignored; equal but for case goes by bytes.
bool LessIgnoringCase(std::string_view a, std::string_view b);

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with);

// A caption takes a single "&" for a mnemonic marker, so names double theirs.
std::string DoubleAmpersands(std::string_view text);
std::string SingleAmpersands(std::string_view text);

// The number behind enough zeros, cut to its last `width` digits: (7, 4) gives "0007".
std::string LastDigits(long number, int width);

}  // namespace sonotik

#endif  // SONOTIK_TEXT_TEXT_H_
