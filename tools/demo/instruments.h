// The synthesiser's instruments and drums: one note at a time, mono, at kSampleRate.
#ifndef SONOTIK_TOOLS_DEMO_INSTRUMENTS_H_
#define SONOTIK_TOOLS_DEMO_INSTRUMENTS_H_

#include <vector>

#include "tools/demo/random.h"

namespace sonotik::demo {

inline constexpr int kSampleRate = 44100;

// clang-format off
enum class Sound {
  kPulse, kThinPulse, kTriangle, kFmLead, kPiano, kElectricPiano, kOrgan, kAccordion,
  kVibraphone, kMarimba, kMusicBox, kNylon, kSteel, kBanjo, kHarp, kBrass, kClarinet, kFlute,
  kWhistle, kStrings, kPad, kSawLead, kStab, kDrive, kUpright, kElectricBass, kSynthBass, kTuba,
};

enum class Drum {
  kKick, kSoftKick, kHouseKick, kChipKick, kSnare, kBrush, kClap, kChipSnare, kRim, kHat, kOpenHat,
  kChipHat, kRide, kShaker, kTom, kCrash,
};
// clang-format on

// One note with its release. `pitch` is a MIDI note number, 69 the A of 440 Hz; `seconds` the time
// the key is held; `velocity` 0 to 1. All instruments are equally loud; the samples end at 0.
std::vector<float> RenderNote(Sound sound, double pitch, double seconds, double velocity,
                              Random& random);
std::vector<float> RenderDrum(Drum drum, double velocity, Random& random);

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_INSTRUMENTS_H_
