// A small composer: from a style's tables and a seed it makes a piece with melody, chords, bass and
// beat, and the synthesiser plays it.
#ifndef SONOTIK_TOOLS_DEMO_MUSIC_H_
#define SONOTIK_TOOLS_DEMO_MUSIC_H_

#include <cstdint>
#include <vector>

#include "tools/demo/instruments.h"
#include "tools/demo/mixer.h"

namespace sonotik::demo {

struct Voice {
  Sound sound;
  int centre;  // MIDI pitch about which its notes lie
  double gain;
  double pan = 0;
  double send = 0.3;
};

// A pattern is one bar with a character a sixteenth; "-" holds the note before, "." is a rest.
// Chords: "x" and "X" strike all tones, a digit the tone of that number. Basses: "1", "3", "5", "8"
// are the root, third, fifth and octave, "a" leads to the next root. Drums: "x", "X" for accents.
struct Comp {
  Voice voice;
  const char* pattern;
  bool bass = false;
};

struct Beat {
  Drum drum;
  const char* pattern;
  double gain = 0.5;
  double pan = 0;
};

// Chords are written in C and moved to the piece's key: "Dm7 G7/A7 C", a word a bar, halves of a
// bar divided by "/". A piece ends on `home`.
struct Style {
  double bpm;
  int beats;     // in a bar
  double swing;  // 0 straight; 0.17 triplets: the share of a beat that the off-beat comes late
  const char* scale;
  std::vector<const char*> progressions;
  const char* home;
  std::vector<const char*> rhythms;  // bars of melody, "x" where a note begins
  std::vector<Voice> leads;          // a piece uses one
  bool in_thirds = false;            // a second voice goes along below the lead
  std::vector<Comp> comps;
  std::vector<Beat> drums;
  double room;
  double echo;  // in beats, 0 for none
};

struct Note {
  enum class Kind { kLead, kComp, kDrum } kind;
  double beat, beats;
  double pitch;
  double velocity;
  int comp = 0;  // the row in Style::comps or Style::drums
};

struct Score {
  double bpm = 0;
  double beats = 0;  // up to the end of the last chord
  std::vector<Note> notes;
  Voice lead = {};
};

struct Piece {
  uint64_t seed;
  int bars;        // before the bar of the last chord
  int key;         // semitones above C, may be negative
  int number = 0;  // picks one of the style's progressions and leads
  double tempo = 1;
};

// Without melody if `melody` is false, for one that the caller adds.
Score Compose(const Style& style, const Piece& piece, bool melody = true);
// The recording, with a tail of silence at its end.
Recording Play(const Style& style, const Score& score, uint64_t seed);

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_MUSIC_H_
