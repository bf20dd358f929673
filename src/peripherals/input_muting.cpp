#include "peripherals/input_muting.h"

#include "files/files.h"

namespace sonotik {

void InputMuting::MuteMicrophone(bool mute) {
  mute_mic_script(mute ? 1 : 0);
  mixer_.SetMute(MixerLine::kMicrophone, mute);
}

void InputMuting::mute_mic_script(int which) {
  const std::string command = FirstLineOf(app_path_ + (which == 0 ? "\\unmute.txt" : "\\mute.txt"));
  if (!command.empty()) processes_.StartCommand(command, WindowState::kMinimised);
}

}  // namespace sonotik
