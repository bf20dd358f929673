#include "desktop/alsa_mixer.h"

#include <alsa/asoundlib.h>

#include <algorithm>
#include <string_view>

#include "text/text.h"

namespace sonotik {
namespace {

constexpr std::string_view kLineNames[] = {"Line", "Line In", "Line-In", "LineIn"};
constexpr std::string_view kMicrophoneNames[] = {"Mic",       "Microphone", "Mic In",     "Mic-In",
                                                 "Front Mic", "Rear Mic",   "Headset Mic"};

bool IsOf(MixerLine line, std::string_view name) {
  const auto same = [name](std::string_view known) { return EqualsIgnoringCase(known, name); };
  return line == MixerLine::kLineIn ? std::ranges::any_of(kLineNames, same)
                                    : std::ranges::any_of(kMicrophoneNames, same);
}

// Opened for one look: a card may come and go.
class OpenMixer {
 public:
  explicit OpenMixer(const char* device) {
    if (snd_mixer_open(&mixer_, 0) < 0) {
      mixer_ = nullptr;
    } else if (snd_mixer_attach(mixer_, device) >= 0 &&
               snd_mixer_selem_register(mixer_, nullptr, nullptr) >= 0) {
      snd_mixer_load(mixer_);
    }
  }
  ~OpenMixer() {
    if (mixer_ != nullptr) snd_mixer_close(mixer_);
  }
  OpenMixer(const OpenMixer&) = delete;
  OpenMixer& operator=(const OpenMixer&) = delete;

  snd_mixer_elem_t* first() const {
    return mixer_ == nullptr ? nullptr : snd_mixer_first_elem(mixer_);
  }

 private:
  snd_mixer_t* mixer_ = nullptr;
};

bool SetSwitch(snd_mixer_elem_t* element, bool on) {
  if (snd_mixer_selem_has_playback_switch(element) != 0) {
    return snd_mixer_selem_set_playback_switch_all(element, on ? 1 : 0) >= 0;
  }
  return snd_mixer_selem_has_capture_switch(element) != 0 &&
         snd_mixer_selem_set_capture_switch_all(element, on ? 1 : 0) >= 0;
}

bool SetMuteOn(const char* device, MixerLine line, bool mute) {
  const OpenMixer mixer(device);
  bool found = false;
  for (auto* element = mixer.first(); element != nullptr; element = snd_mixer_elem_next(element)) {
    if (IsOf(line, snd_mixer_selem_get_name(element)) && SetSwitch(element, !mute)) found = true;
  }
  return found;
}

}  // namespace

bool AlsaMixer::SetMute(MixerLine line, bool mute) {
  // The first device, whichever card plays; that is meant.
  return SetMuteOn("default", line, mute) || SetMuteOn("hw:0", line, mute);
}

}  // namespace sonotik
