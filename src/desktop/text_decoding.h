// Core text is bytes; here it becomes letters, at the moment of showing.
#ifndef SONOTIK_DESKTOP_TEXT_DECODING_H_
#define SONOTIK_DESKTOP_TEXT_DECODING_H_

#include <QString>
#include <string_view>

namespace sonotik {

// Valid UTF-8 as UTF-8, anything else as Windows-1252: names written by this machine's catalogue
// builder and by an older one both show right.
QString Decode(std::string_view bytes);

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_TEXT_DECODING_H_
