// The card's input switches through ALSA's simple mixer.
#ifndef SONOTIK_DESKTOP_ALSA_MIXER_H_
#define SONOTIK_DESKTOP_ALSA_MIXER_H_

#include "platform/mixer.h"

namespace sonotik {

class AlsaMixer : public Mixer {
 public:
  // Every switch of the line's usual names is set, on the default device or, if that knows none, on
  // the first card: the switch for listening, or the one for recording where there is no other.
  bool SetMute(MixerLine line, bool mute) override;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_ALSA_MIXER_H_
