#include "tools/demo/styles.h"

namespace sonotik::demo {

// clang-format off

const Style kSwing = {
    .bpm = 138, .beats = 4, .swing = 0.15, .scale = "major",
    .progressions = {"Cmaj7/A7 Dm7/G7 Em7/A7 Dm7/G7", "Dm7 G7 Cmaj7 A7",
                     "Cmaj7 C7 Fmaj7 Fm6 Em7 A7 Dm7 G7"},
    .home = "C6",
    .rhythms = {"x-x-..x-..x-x-x-", "..x-x-x-x-..x---", "x-----x-x-x-....", "..x-x---..x-x---"},
    .leads = {{Sound::kVibraphone, 74, .5, .2, .5}, {Sound::kClarinet, 70, .38, -.15, .4},
              {Sound::kPiano, 76, .55, .1, .35}},
    .comps = {{{Sound::kUpright, 38, .75, 0, .08}, "1---3---5---a---", true},
              {{Sound::kPiano, 59, .3, -.35, .3}, "x-....x-....x-.."}},
    .drums = {{Drum::kRide, "X...x.x.X...x.x.", .5, .3},
              {Drum::kBrush, "....X.......X...", .5, -.2},
              {Drum::kSoftKick, "x.......x.......", .35}},
    .room = .35, .echo = 0};

const Style kBossa = {
    .bpm = 132, .beats = 4, .swing = 0, .scale = "major",
    .progressions = {"Cmaj9 A7 Dm9 G7", "Am7 D9 Dm7 G7 Cmaj7 Fmaj7 Bm7b5 E7",
                     "Fmaj9 Fm6 Em7 A7 D9 G7 Cmaj9 G7"},
    .home = "Cmaj9",
    .rhythms = {"x--x--x---x-x---", "..x-x--x--x-----", "x---x-x-..x-x-x-", "x-----x--x--x---"},
    .leads = {{Sound::kFlute, 77, .42, .15, .5}, {Sound::kMarimba, 72, .62, .2, .4},
              {Sound::kNylon, 74, .75, -.1, .4}},
    .comps = {{{Sound::kUpright, 38, .65, 0, .05}, "1-----5-5-----1-", true},
              {{Sound::kNylon, 61, .3, -.3, .3}, "x--x--x---x--x--"}},
    .drums = {{Drum::kShaker, "x.x.X.x.x.x.X.x.", .42, .4},
              {Drum::kRim, "x..x..x...x..x..", .4, -.4},
              {Drum::kSoftKick, "x.....x.x.....x.", .34}},
    .room = .4, .echo = 0};

const Style kMusicBox = {
    .bpm = 92, .beats = 3, .swing = 0, .scale = "major",
    .progressions = {"C Am F G7", "C F C G7 Am F G7 C", "F C Dm G7"},
    .home = "C",
    .rhythms = {"x---x---x---", "x-------x-x-", "x---x-x-x---", "x-----x-x---"},
    .leads = {{Sound::kMusicBox, 84, .62, .1, .5}},
    .in_thirds = true,
    .comps = {{{Sound::kMusicBox, 67, .3, -.4, .5}, "1-2-3-2-3-2-"},
              {{Sound::kHarp, 52, .5, -.1, .3}, "1-----------", true}},
    .drums = {},
    .room = .55, .echo = 0};

const Style kBlues = {
    .bpm = 84, .beats = 2, .swing = 0.165, .scale = "blues",
    .progressions = {"C7 F7 C7 C7 F7 F7 C7 A7 G7 F7 C7 G7",
                     "Cm7 Cm7 Fm7 Cm7 Fm7 Fm7 Cm7 Cm7 G7 Fm7 Cm7 G7"},
    .home = "C7",
    .rhythms = {"x-x-x---", "..x-x-x-", "x---..x-", "x-x-..x-"},
    .leads = {{Sound::kSteel, 67, .75, .15, .5}, {Sound::kClarinet, 65, .42, .15, .45},
              {Sound::kDrive, 64, .5, .1, .5}},
    .comps = {{{Sound::kElectricBass, 36, .7, 0, .05}, "1-3-5-a-", true},
              {{Sound::kPiano, 58, .3, -.35, .35}, "..x-..x-"},
              {{Sound::kOrgan, 58, .1, .3, .4}, "x-------"}},
    .drums = {{Drum::kKick, "x...x.x.", .55},
              {Drum::kSnare, "....X...", .34, -.1},
              {Drum::kRide, "x.x.x.x.", .5, .3}},
    .room = .45, .echo = 0};

const Style kChipSunny = {
    .bpm = 152, .beats = 4, .swing = 0, .scale = "major",
    .progressions = {"C G Am F", "F G Em Am F G C C", "C E7 F Fm C/G Am/F G C"},
    .home = "C",
    .rhythms = {"x-x-x-xxx---x-x-", "x--x--x-x--x--x-", "x-xx-xx-x---x---", "x---x-x-x-xxx---"},
    .leads = {{Sound::kPulse, 76, .42, .1, .35}, {Sound::kFmLead, 76, .42, .1, .35}},
    .comps = {{{Sound::kTriangle, 43, .72, 0, 0}, "1-.18-1.1-.18-5.", true},
              {{Sound::kThinPulse, 66, .2, -.45, .15}, "1231231212312312"},
              {{Sound::kThinPulse, 60, .2, .5, .3}, "....x-......x-.."}},
    .drums = {{Drum::kChipKick, "x..x....x.x.....", .6},
              {Drum::kChipSnare, "....X.......X...", .5},
              {Drum::kChipHat, "x.x.x.x.x.x.x.xx", .24, .2}},
    .room = .08, .echo = .75};

const Style kChipQuest = {
    .bpm = 136, .beats = 4, .swing = 0, .scale = "minor",
    .progressions = {"Am F G Em", "Am G F E7", "Dm Am F/G Am F C Dm/E7 Am"},
    .home = "Am",
    .rhythms = {"x---x-x-x---xxx-", "x-x-x---x-x-x-x-", "x--x--x-x-xxx---", "x-----xxx---x---"},
    .leads = {{Sound::kThinPulse, 74, .5, -.1, .4}, {Sound::kPulse, 74, .4, .1, .4},
              {Sound::kFmLead, 72, .42, 0, .4}},
    .comps = {{{Sound::kTriangle, 42, .72, 0, 0}, "1.1.8.1.1.1.8.5.", true},
              {{Sound::kThinPulse, 62, .2, .4, .2}, "1-2-3-4-3-2-1-2-"}},
    .drums = {{Drum::kChipKick, "x.....x.x.......", .6},
              {Drum::kChipSnare, "....X.......X..x", .5},
              {Drum::kChipHat, "xxx.xxx.xxx.xxx.", .2, -.2}},
    .room = .1, .echo = .75};

const Style kMarch = {
    .bpm = 118, .beats = 4, .swing = 0, .scale = "major",
    .progressions = {"C C G7 C F C D7/G7 C", "C F C G7 C F G7 C", "F C/A7 Dm/G7 C"},
    .home = "C",
    .rhythms = {"x---x-x-x---x---", "x-..xxx-x-x-x---", "x--xx---x--xx---", "x---x---x-x-x-x-"},
    .leads = {{Sound::kBrass, 70, .42, .2, .35}, {Sound::kFlute, 82, .42, .2, .35}},
    .in_thirds = true,
    .comps = {{{Sound::kTuba, 38, .75, 0, .15}, "1-..5-..1-..5-..", true},
              {{Sound::kBrass, 58, .2, -.35, .3}, "..x-..x-..x-..x-"}},
    .drums = {{Drum::kKick, "x.......x.......", .6},
              {Drum::kSnare, "x..xx.x.x.xxX.x.", .26, .1},
              {Drum::kCrash, "x...............", .12, -.3}},
    .room = .4, .echo = 0};

const Style kWaltz = {
    .bpm = 172, .beats = 3, .swing = 0, .scale = "major",
    .progressions = {"C C G7 G7 Dm7 G7 C C", "C Am Dm G7 Em Am D7 G7", "F Fm6 C A7 Dm G7 C G7"},
    .home = "C",
    .rhythms = {"x-------x---", "x---x---x---", "x-----------", "x---x-x-x---"},
    .leads = {{Sound::kAccordion, 74, .5, .15, .4}, {Sound::kStrings, 74, .5, .1, .5}},
    .in_thirds = true,
    .comps = {{{Sound::kUpright, 40, .75, 0, .1}, "1-----------", true},
              {{Sound::kAccordion, 60, .2, -.3, .3}, "....x-..x-.."},
              {{Sound::kHarp, 64, .22, .4, .5}, "....x---x---"}},
    .drums = {{Drum::kBrush, "....x...x...", .24, .2}},
    .room = .45, .echo = 0};

const Style kChamber = {
    .bpm = 96, .beats = 4, .swing = 0, .scale = "harmonic",
    .progressions = {"Cm Fm G7 Cm Ab Fm G7 G7", "Cm/G7 Cm/Fm Bb/Eb G7", "Cm Bb Ab G7"},
    .home = "Cm",
    .rhythms = {"x---x---x-x-x---", "x-----x-x---x-x-", "x-x-x-x-x-------", "x-------x---x---"},
    .leads = {{Sound::kStrings, 74, .55, -.2, .5}, {Sound::kFlute, 79, .45, .2, .5},
              {Sound::kClarinet, 70, .45, .2, .5}},
    .comps = {{{Sound::kStrings, 46, .4, .25, .4}, "1-------5-------", true},
              {{Sound::kHarp, 63, .42, -.3, .5}, "1-2-3-2-4-3-2-3-"},
              {{Sound::kStrings, 60, .16, .1, .5}, "x---------------"}},
    .drums = {},
    .room = .6, .echo = 0};

const Style kHouse = {
    .bpm = 124, .beats = 4, .swing = 0.03, .scale = "minor",
    .progressions = {"Am9 Am9 Fmaj7 G", "Dm9 G Cmaj7 Am7", "Fmaj7 Em7 Am9 Am9"},
    .home = "Am9",
    .rhythms = {"..x-..x-..x-x---", "x--x--x-....x-x-", "....x-x-x-......", "x-..x-..x--x--x-"},
    .leads = {{Sound::kElectricPiano, 76, .55, .15, .6}, {Sound::kSawLead, 72, .5, .1, .5}},
    .comps = {{{Sound::kSynthBass, 38, .62, 0, 0}, "..1-..1-..1-..8-", true},
              {{Sound::kStab, 64, .34, -.2, .5}, "...x..x....x..x."},
              {{Sound::kPad, 62, .13, .2, .4}, "x---------------"}},
    .drums = {{Drum::kHouseKick, "X...X...X...X...", .78},
              {Drum::kClap, "....X.......X...", .45},
              {Drum::kOpenHat, "..x...x...x...x.", .32, .2},
              {Drum::kHat, "x.xxx.xxx.xxx.xx", .2, -.25}},
    .room = .3, .echo = .75};

const Style kOrganRock = {
    .bpm = 142, .beats = 4, .swing = 0, .scale = "mixolydian",
    .progressions = {"C Bb F C", "C F C G C F G/F C", "Am D Am D F G C C"},
    .home = "C",
    .rhythms = {"x-x-x---x-x-x---", "..x-x-x-x---x-x-", "x--x--x-x-x-x---", "x---x-xxx---x-x-"},
    .leads = {{Sound::kOrgan, 72, .5, .2, .35}, {Sound::kDrive, 69, .42, .15, .4}},
    .in_thirds = true,
    .comps = {{{Sound::kElectricBass, 36, .7, 0, .03}, "1-1-1-1-1-1-5-8-", true},
              {{Sound::kDrive, 55, .15, -.45, .2}, "x---x-x---x-x-x-"},
              {{Sound::kOrgan, 60, .12, .4, .3}, "x-------x-------"}},
    .drums = {{Drum::kKick, "x.....x.x.x.....", .7},
              {Drum::kSnare, "....X.......X...", .5},
              {Drum::kHat, "x.x.x.x.x.x.x.x.", .34, .3},
              {Drum::kCrash, "x...............", .1, -.3}},
    .room = .3, .echo = 0};

const Style kTides = {
    .bpm = 84, .beats = 4, .swing = 0, .scale = "pentatonic",
    .progressions = {"Cmaj9 Am9 Fmaj9 G", "Fmaj9 Cmaj9 Dm9 Am9", "Am9 Em7 Fmaj9 Cmaj9"},
    .home = "Cmaj9",
    .rhythms = {"x-------x---x---", "x-----x-----x---", "....x---x-------", "x---------x-x---"},
    .leads = {{Sound::kVibraphone, 79, .62, .3, .8}, {Sound::kElectricPiano, 76, .6, -.2, .7},
              {Sound::kMusicBox, 84, .6, .2, .8}},
    .comps = {{{Sound::kPad, 60, .24, 0, .6}, "x---------------"},
              {{Sound::kHarp, 67, .3, -.5, .7}, "1-3-2-4-3-5-4-2-"},
              {{Sound::kSynthBass, 36, .3, 0, .1}, "1---------------", true}},
    .drums = {{Drum::kShaker, "....x.......x..x", .12, .5},
              {Drum::kSoftKick, "x...............", .4}},
    .room = .9, .echo = .75};

const Style kReggae = {
    .bpm = 78, .beats = 4, .swing = 0.05, .scale = "major",
    .progressions = {"C G Am F", "Am Am Dm Em", "C F C G"},
    .home = "C",
    .rhythms = {"x-x-x---..x-x---", "..x-x-x-x-------", "x---x-x-..x-x-x-"},
    .leads = {{Sound::kFlute, 74, .4, .2, .5}, {Sound::kBrass, 67, .44, .2, .5},
              {Sound::kOrgan, 72, .36, .15, .5}},
    .comps = {{{Sound::kElectricBass, 36, .9, 0, 0}, "1-..1-3-5---..a-", true},
              {{Sound::kStab, 62, .36, -.4, .3}, "..x...x...x...x."},
              {{Sound::kOrgan, 60, .17, .4, .2}, "..xx..x...xx..x."}},
    .drums = {{Drum::kKick, "........X.......", .7},
              {Drum::kRim, "........X.....x.", .6},
              {Drum::kHat, "x.X.x.X.x.X.x.Xx", .3, .3},
              {Drum::kTom, "................", .4, -.3}},
    .room = .35, .echo = .75};

const Style kDisco = {
    .bpm = 120, .beats = 4, .swing = 0, .scale = "dorian",
    .progressions = {"Cm7 Cm7 F9 F9", "Cm7 Ab Bb G7", "Fm7 Bb7 Eb Cm7"},
    .home = "Cm9",
    .rhythms = {"x-x-..x-x-..x---", "x--x--x---x-x-x-", "..x-x-x-..x-x-x-", "x-------x-xxx---"},
    .leads = {{Sound::kStrings, 77, .5, .15, .45}, {Sound::kBrass, 72, .4, .15, .4},
              {Sound::kElectricPiano, 74, .5, .15, .4}},
    .comps = {{{Sound::kElectricBass, 38, .72, 0, 0}, "1-8-1-8-1-8-5-8-", true},
              {{Sound::kNylon, 64, .28, -.45, .2}, "x.xx..x.x.xx.x.x"},
              {{Sound::kStrings, 65, .13, .35, .5}, "x-------x---x---"}},
    .drums = {{Drum::kHouseKick, "X...X...X...X...", .62},
              {Drum::kSnare, "....X.......X...", .4},
              {Drum::kOpenHat, "..x...x...x...x.", .34, .25},
              {Drum::kHat, "xx.xxx.xxx.xxx.x", .18, -.3}},
    .room = .35, .echo = 0};

const Style kTango = {
    .bpm = 122, .beats = 4, .swing = 0, .scale = "harmonic",
    .progressions = {"Cm Cm G7 G7 G7 G7 Cm Cm", "Cm Fm G7 Cm Ab Fm G7 Cm"},
    .home = "Cm",
    .rhythms = {"x--xx---x-x-x---", "..x-x-x-x---x---", "x---..xxx---x-x-"},
    .leads = {{Sound::kAccordion, 72, .5, .15, .4}, {Sound::kStrings, 76, .5, -.1, .4}},
    .comps = {{{Sound::kUpright, 38, .8, 0, .1}, "1-..5-..1-..5-a-", true},
              {{Sound::kPiano, 57, .4, -.3, .3}, "X...x...X...x.x."}},
    .drums = {{Drum::kBrush, "X...x...X...x.x.", .2, .2}},
    .room = .4, .echo = 0};

const Style kCountry = {
    .bpm = 116, .beats = 4, .swing = 0.05, .scale = "pentatonic",
    .progressions = {"C C F C F C G7 C", "C F C G7", "C Am F G7 C Am F/G7 C"},
    .home = "C",
    .rhythms = {"x-x-x-x-x---x-x-", "x---x-x-x-x-x---", "x-xxx-x-x---x---"},
    .leads = {{Sound::kBanjo, 72, .7, .25, .3}, {Sound::kSteel, 74, .75, -.2, .45}},
    .comps = {{{Sound::kUpright, 38, .75, 0, .05}, "1-......5-......", true},
              {{Sound::kSteel, 62, .36, -.3, .25}, "..x-x-x...x-x-x."},
              {{Sound::kBanjo, 67, .26, .45, .2}, "1324132413241324"}},
    .drums = {{Drum::kSoftKick, "x.......x.......", .45},
              {Drum::kBrush, "x.X.x.X.x.X.x.X.", .26, .1}},
    .room = .3, .echo = 0};

const Style kLofi = {
    .bpm = 80, .beats = 4, .swing = 0.11, .scale = "pentatonic",
    .progressions = {"Fmaj9 Em7 Dm9 Cmaj9", "Dm9 G7 Cmaj9 Am9", "Am9 D9 Fmaj9 G"},
    .home = "Cmaj9",
    .rhythms = {"x-----x-..x-x---", "..x-x---x-x-....", "x--x--x-----x-x-"},
    .leads = {{Sound::kNylon, 72, .7, .2, .6}, {Sound::kVibraphone, 74, .62, -.2, .6},
              {Sound::kMarimba, 74, .8, .15, .5}},
    .comps = {{{Sound::kUpright, 38, .8, 0, 0}, "1-----1---5-----", true},
              {{Sound::kElectricPiano, 62, .26, -.2, .4}, "x-----x---------"}},
    .drums = {{Drum::kKick, "x......x..x.....", .6},
              {Drum::kRim, "....X.......X...", .45},
              {Drum::kHat, "x.x.x.x.x.x.x.x.", .2, .25},
              {Drum::kShaker, "..x...x...x...x.", .14, -.4}},
    .room = .4, .echo = .75};

    // Two beats of three: twelve sixteenths a bar, felt in halves.
const Style kJig = {
    .bpm = 176, .beats = 3, .swing = 0, .scale = "major",
    .progressions = {"C C F G7 C F G7 C", "Am G Am G Am G F/G7 C", "C F Am G7"},
    .home = "C",
    .rhythms = {"x-x-x-x-x-x-", "x---x-x-x-x-", "x-x-x-x---x-", "x---x-x---x-"},
    .leads = {{Sound::kWhistle, 79, .45, 0, .4}, {Sound::kBanjo, 74, .7, 0, .3}},
    .comps = {{{Sound::kUpright, 40, .65, 0, .1}, "1-....5-....", true},
              {{Sound::kSteel, 60, .3, 0, .25}, "x---x-x---x-"}},
    .drums = {{Drum::kTom, "X...x.x...x.", .3}},
    .room = .35, .echo = 0};

const Style kNightDrive = {
    .bpm = 108, .beats = 4, .swing = 0, .scale = "minor",
    .progressions = {"Am F C G", "Am Em F G"},
    .home = "Am9",
    .rhythms = {"x---x---x-x-x---", "x-----x-x---x-x-", "x-x-x---x-------"},
    .leads = {{Sound::kSawLead, 76, .42, .1, .5}},
    .comps = {{{Sound::kSynthBass, 36, .6, 0, 0}, "1.111.111.111.11", true},
              {{Sound::kPulse, 69, .22, -.4, .5}, "1-3-2-4-3-5-4-2-"},
              {{Sound::kPad, 60, .22, .2, .5}, "x---------------"}},
    .drums = {{Drum::kHouseKick, "X.......X.......", .72},
              {Drum::kSnare, "....X.......X...", .5},
              {Drum::kHat, "x.x.x.x.x.x.x.xx", .26, .3}},
    .room = .5, .echo = .75};

    // Four bars of introduction, then two bars for each line of the words.
const Style kSingalong = {
    .bpm = 106, .beats = 4, .swing = 0.04, .scale = "major",
    .progressions = {"F C Dm/G C  C Am F G C Am F/G C  F C G Am F C Dm/G C"},
    .home = "C",
    .rhythms = {"x---------------"},
    .leads = {{Sound::kVibraphone, 72, .5, .1, .5}},
    .comps = {{{Sound::kElectricBass, 38, .7, 0, .03}, "1-..1-1-5-..5-a-", true},
              {{Sound::kPiano, 62, .26, -.3, .3}, "x-..x-x-..x-x-.."},
              {{Sound::kStrings, 64, .12, .3, .5}, "x-------x-------"}},
    .drums = {{Drum::kKick, "x.....x.x.......", .62},
              {Drum::kSnare, "....X.......X...", .42},
              {Drum::kHat, "x.x.x.x.x.x.x.x.", .24, .25}},
    .room = .35, .echo = 0};

}  // namespace sonotik::demo
