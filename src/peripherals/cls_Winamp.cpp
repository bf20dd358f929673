#include "peripherals/cls_Winamp.h"

#include "files/files.h"

namespace sonotik {
namespace {

constexpr char kUsualOne[] = "projectM-pulseaudio";

}  // namespace

void cls_Winamp::Start() {
  const std::string file = app_path_ + "\\visualiser.txt";
  const std::string command = FileExists(file) ? FirstLineOf(file) : kUsualOne;
  if (!command.empty() && !IsWinampRunning()) visualiser_.Start(command);
}

void cls_Winamp::Execute(int command) {
  if (command == kClose && IsWinampRunning()) visualiser_.AskToClose();
}

}  // namespace sonotik
