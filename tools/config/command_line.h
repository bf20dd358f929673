// The command line of sonotik-config.
#ifndef SONOTIK_TOOLS_CONFIG_COMMAND_LINE_H_
#define SONOTIK_TOOLS_CONFIG_COMMAND_LINE_H_

#include <string>
#include <vector>

#include "tools/config/catalogue_builder.h"

namespace sonotik {

extern const char kUsage[];

struct CommandLine {
  bool help = false;
  std::string error;  // what is wrong with it, empty if nothing is
  BuildRequest request;
};

// The words behind the program's name.
CommandLine ParseCommandLine(const std::vector<std::string>& words);

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_COMMAND_LINE_H_
