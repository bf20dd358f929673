// The cabinet's inputs while tracks play: the line is silenced, the microphone is for singers.
#ifndef SONOTIK_PERIPHERALS_INPUT_MUTING_H_
#define SONOTIK_PERIPHERALS_INPUT_MUTING_H_

#include <string>

#include "platform/mixer.h"
#include "platform/processes.h"

namespace sonotik {

class InputMuting {
 public:
  InputMuting(const std::string& app_path, Mixer& mixer, Processes& processes)
      : app_path_(app_path), mixer_(mixer), processes_(processes) {}

  // Nothing ever opens it again; that is meant.
  void MuteLineIn() { mixer_.SetMute(MixerLine::kLineIn, true); }
  // The script first, then the card's own switch, if it has one.
  void MuteMicrophone(bool mute);
  // For a mixer that no card's switch reaches: runs the command in the first line of unmute.txt (0)
  // or mute.txt (1) and doesn't wait. Without the file, or with an empty line, nothing.
  void mute_mic_script(int which);

 private:
  const std::string& app_path_;
  Mixer& mixer_;
  Processes& processes_;
};

}  // namespace sonotik

#endif  // SONOTIK_PERIPHERALS_INPUT_MUTING_H_
