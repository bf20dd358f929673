// A skin's files one by one, against the tables by which the jukebox reads them.
#ifndef SONOTIK_TOOLS_SKIN_CHECK_FILE_CHECK_H_
#define SONOTIK_TOOLS_SKIN_CHECK_FILE_CHECK_H_

#include <string>
#include <vector>

#include "skins/layout_tables.h"

namespace sonotik {

using Findings = std::vector<std::string>;

// What is missing, too short or too long, what is no number where one is due, numbers that mean
// nothing, pictures that are named and not there. False if the jukebox would fail at one of them.
// `folder` is a program path.
bool CheckFiles(const std::string& folder, Findings& findings);

// The head by which a file's optional parts go; empty for a file that has none or isn't there.
std::string HeadOf(const std::string& folder, const LayoutFile& file);

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_SKIN_CHECK_FILE_CHECK_H_
