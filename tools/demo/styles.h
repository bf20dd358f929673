// The styles that the demo's bands play in.
#ifndef SONOTIK_TOOLS_DEMO_STYLES_H_
#define SONOTIK_TOOLS_DEMO_STYLES_H_

#include "tools/demo/music.h"

namespace sonotik::demo {

extern const Style kSwing, kBossa, kMusicBox, kBlues, kChipSunny, kChipQuest, kMarch, kWaltz,
    kChamber, kHouse, kOrganRock, kTides, kReggae, kDisco, kTango, kCountry, kLofi, kJig,
    kNightDrive, kSingalong;

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_STYLES_H_
