// Where the controls of a skin come to stand: nothing outside what holds it, no two places to touch
// on each other.
#ifndef SONOTIK_TOOLS_SKIN_CHECK_PLACE_CHECK_H_
#define SONOTIK_TOOLS_SKIN_CHECK_PLACE_CHECK_H_

#include <string>

#include "tools/skin-check/file_check.h"

namespace sonotik {

// Puts the skin on a form as the jukebox does. Its files must be readable; each of its cover
// layouts is read as well.
void CheckPlaces(const std::string& folder, Findings& findings);

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_SKIN_CHECK_PLACE_CHECK_H_
