// The machine's 8-bit code page, Windows-1252.
#ifndef SONOTIK_TEXT_CODE_PAGE_H_
#define SONOTIK_TEXT_CODE_PAGE_H_

#include <string>
#include <string_view>

namespace sonotik {

// A text for a device that knows this code page alone: valid UTF-8 (RFC 3629) is turned into it, a
// character outside of it into "?". Any other text is taken to be in it already and stays.
std::string InCodePage(std::string_view text);

}  // namespace sonotik

#endif  // SONOTIK_TEXT_CODE_PAGE_H_
