// The smallest honest coin feeder.
//
// `creditmodule 2` hands two credits to the jukebox of its folder and ends. Without an argument it
// stays, hands over one credit for each line on its standard input, so that the script of a coin
// mechanism can drive it, and ends when the jukebox asks it to.
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <iostream>
#include <string>

#include "files/paths.h"
#include "files/program_folder.h"
#include "files/text_box.h"

namespace sonotik {
namespace {

int HandOver(const std::string& folder, const std::string& credits) {
  if (PutIntoTextBox(folder, kCoinBox, credits) == BoxAnswer::kTaken) return 0;
  std::cerr << "creditmodule: no jukebox takes coins in " << folder << std::endl;
  return 1;
}

int Stay(const std::string& folder) {
  // One feeder keeps the box in which it is asked to end; one more ends with its input.
  TextBox requests;
  if (PutIntoTextBox(folder, kCreditModuleBox, "anybody there?") != BoxAnswer::kTaken) {
    requests.Open(folder, kCreditModuleBox);
  }
  bool in_line = false;
  pollfd waits[] = {{requests.descriptor(), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
  while (::poll(waits, 2, -1) >= 0 || errno == EINTR) {
    while (waits[0].revents != 0) {
      const auto request = requests.Take();
      if (!request) break;
      if (*request == "close") return 0;
    }
    if (waits[1].revents == 0) continue;
    char bytes[4096];
    const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof bytes);
    for (ssize_t i = 0; i < count; ++i) {
      in_line = bytes[i] != '\n';
      if (!in_line) HandOver(folder, "1");
    }
    if (count > 0) continue;
    // The last line may lack its end. Behind it nothing comes, and only the request is waited for.
    if (in_line) HandOver(folder, "1");
    in_line = false;
    waits[1].fd = -1;
    if (waits[0].fd < 0) return 0;
  }
  return 1;
}

}  // namespace
}  // namespace sonotik

int main(int argc, char** argv) {
  using namespace sonotik;
  if (argc > 2) {
    std::cerr << "usage: creditmodule [CREDITS]" << std::endl;
    return 2;
  }
  const std::string folder = ProgramPath(ProgramFolder(argv[0], std::getenv("PATH")));
  return argc == 2 ? HandOver(folder, argv[1]) : Stay(folder);
}
