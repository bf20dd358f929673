// Says what is wrong with a skin:
//   skin-check FOLDER     file by file, a line each; exit status 1 if there is any
//   skin-check --format   the format of the files, as docs/skin-format.md has it
#include <filesystem>
#include <iostream>
#include <string>

#include "files/files.h"
#include "files/paths.h"
#include "files/runtime_failure.h"
#include "tools/skin-check/format.h"
#include "tools/skin-check/place_check.h"

namespace sonotik {
namespace {

int Check(const std::string& argument) {
  const std::string folder = ProgramPath(std::filesystem::absolute(argument));
  if (!FolderExists(folder)) {
    std::cerr << "skin-check: there is no folder " << argument << '\n';
    return 2;
  }
  Findings findings;
  if (CheckFiles(folder, findings)) {
    CheckPlaces(folder, findings);
  } else {
    findings.push_back("The places are checked once all files can be read.");
  }
  for (const std::string& finding : findings) std::cout << finding << '\n';
  return findings.empty() ? 0 : 1;
}

}  // namespace
}  // namespace sonotik

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: skin-check FOLDER | --format\n";
    return 2;
  }
  try {
    const std::string argument = argv[1];
    if (argument != "--format") return sonotik::Check(argument);
    std::cout << sonotik::SkinFormat();
    return 0;
  } catch (const sonotik::RuntimeFailure& failure) {
    std::cerr << "skin-check: " << failure.what() << '\n';
    return 2;
  }
}
