// The sound card's inputs.
#ifndef SONOTIK_PLATFORM_MIXER_H_
#define SONOTIK_PLATFORM_MIXER_H_

namespace sonotik {

enum class MixerLine { kLineIn = 0x1002, kMicrophone = 0x1003 };

class Mixer {
 public:
  virtual ~Mixer() = default;
  // False if there is no card, or none with such a line: then everything stays as it is.
  virtual bool SetMute(MixerLine line, bool mute) = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_MIXER_H_
