// The format of a skin's files in words, for whoever draws one.
#ifndef SONOTIK_TOOLS_SKIN_CHECK_FORMAT_H_
#define SONOTIK_TOOLS_SKIN_CHECK_FORMAT_H_

#include <string>

namespace sonotik {

// Markdown, made of the tables that the jukebox reads by.
std::string SkinFormat();

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_SKIN_CHECK_FORMAT_H_
