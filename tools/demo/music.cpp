#include "tools/demo/music.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>

namespace sonotik::demo {
namespace {

struct Chord {
  int root = 0;
  std::vector<int> tones;  // semitones above the root

  bool Holds(int pitch) const {
    return std::any_of(tones.begin(), tones.end(),
                       [&](int tone) { return (pitch - root - tone) % 12 == 0; });
  }
};

Chord ParseChord(const std::string& name, int key) {
  static const std::map<std::string, std::vector<int>> kQualities = {
      {"", {0, 4, 7}},        {"m", {0, 3, 7}},         {"7", {0, 4, 7, 10}},
      {"m7", {0, 3, 7, 10}},  {"maj7", {0, 4, 7, 11}},  {"6", {0, 4, 7, 9}},
      {"m6", {0, 3, 7, 9}},   {"m7b5", {0, 3, 6, 10}},  {"9", {0, 4, 10, 14}},
      {"m9", {0, 3, 10, 14}}, {"maj9", {0, 4, 11, 14}},
  };
  static const int kLetters[] = {9, 11, 0, 2, 4, 5, 7};
  Chord chord{kLetters[name[0] - 'A'] + key, {}};
  size_t rest = 1;
  if (name.size() > 1 && (name[1] == '#' || name[1] == 'b')) {
    chord.root += name[1] == '#' ? 1 : -1;
    rest = 2;
  }
  chord.tones = kQualities.at(name.substr(rest));
  return chord;
}

// The chord of every half bar.
std::vector<Chord> ParseProgression(const char* text, int bars, int key) {
  std::vector<Chord> row;
  std::istringstream words(text);
  for (std::string bar; words >> bar;) {
    const size_t slash = bar.find('/');
    row.push_back(ParseChord(bar.substr(0, slash), key));
    row.push_back(slash == std::string::npos ? row.back() : ParseChord(bar.substr(slash + 1), key));
  }
  std::vector<Chord> halves;
  for (int i = 0; i < bars * 2; ++i) halves.push_back(row[i % row.size()]);
  return halves;
}

const std::vector<int>& ScaleOf(const char* name) {
  static const std::map<std::string, std::vector<int>> kScales = {
      {"major", {0, 2, 4, 5, 7, 9, 11}},    {"minor", {0, 2, 3, 5, 7, 8, 10}},
      {"dorian", {0, 2, 3, 5, 7, 9, 10}},   {"mixolydian", {0, 2, 4, 5, 7, 9, 10}},
      {"pentatonic", {0, 2, 4, 7, 9}},      {"blues", {0, 3, 5, 6, 7, 10}},
      {"harmonic", {0, 2, 3, 5, 7, 8, 11}}, {"minor-pentatonic", {0, 3, 5, 7, 10}},
  };
  return kScales.at(name);
}

// The pitch nearest to `centre` that has the same place in the octave.
int Fold(int pitch, int centre) {
  const int above = ((pitch - centre + 6) % 12 + 12) % 12;
  return centre - 6 + above;
}

struct Motif {
  std::vector<int> steps, lengths, contour;
};

class Composer {
 public:
  Composer(const Style& style, const Piece& piece)
      : style_(style), piece_(piece), random_(piece.seed), steps_(style.beats * 4) {
    halves_ = ParseProgression(style.progressions[piece.number % style.progressions.size()],
                               piece.bars, piece.key);
    const Chord home = ParseChord(style.home, piece.key);
    halves_.insert(halves_.end(), 3, home);
    score_.bpm = style.bpm * piece.tempo;
    score_.beats = (piece.bars + 1) * style.beats;
    score_.lead = style.leads[piece.number % style.leads.size()];
  }

  Score Compose(bool melody) {
    for (int bar = 0; bar < piece_.bars; ++bar) {
      for (size_t i = 0; i < style_.comps.size(); ++i) AddComp(static_cast<int>(i), bar);
      for (size_t i = 0; i < style_.drums.size(); ++i) AddDrum(static_cast<int>(i), bar);
    }
    if (melody) AddMelody();
    AddEnding();
    return std::move(score_);
  }

 private:
  const Chord& ChordAt(int bar, int step) const {
    return halves_[bar * 2 + (step * 2 >= steps_ ? 1 : 0)];
  }

  // The beat of a step, with the off-beats as late as the style swings.
  double BeatOf(int bar, int step) const {
    const double within = step % 4 / 4.0;
    const double late = style_.swing * (within <= 0.5 ? within : 1 - within) * 2;
    return bar * style_.beats + step / 4 + within + late;
  }

  void Add(Note::Kind kind, int bar, int step, int length, double pitch, double velocity,
           int comp = 0) {
    const double start = BeatOf(bar, step), end = BeatOf(bar, step + length);
    score_.notes.push_back({kind, start, end - start, pitch, velocity, comp});
  }

  // The tones of a chord about the voice's centre, ascending, so that chords lead to one another by
  // small steps.
  static std::vector<int> Voicing(const Chord& chord, int centre) {
    std::vector<int> pitches;
    for (const int tone : chord.tones) pitches.push_back(Fold(chord.root + tone, centre));
    std::sort(pitches.begin(), pitches.end());
    return pitches;
  }

  int BassPitch(char sign, int bar, int step, int centre) const {
    const Chord& chord = ChordAt(bar, step);
    const int root = Fold(chord.root, centre), fifth = chord.tones[2] == 6 ? 6 : 7;
    switch (sign) {
      case '3':
        return root + chord.tones[1];
      case '5':
        return root + fifth - (root > centre ? 12 : 0);
      case '8':
        return root + 12;
      case 'a': {
        const bool second_half = step * 2 >= steps_;
        const int next = Fold(halves_[bar * 2 + (second_half ? 2 : 1)].root, root);
        return next + (next > root ? -1 : 1);
      }
      default:
        return root;
    }
  }

  void AddComp(int index, int bar) {
    const Comp& comp = style_.comps[index];
    for (int step = 0; step < steps_; ++step) {
      const char sign = comp.pattern[step];
      if (sign == '.' || sign == '-') continue;
      int length = 1;
      while (step + length < steps_ && comp.pattern[step + length] == '-') ++length;
      const Chord& chord = ChordAt(bar, step);
      const double velocity = (step % 8 == 0 ? 0.85 : 0.72) + (sign == 'X' ? 0.15 : 0);
      if (comp.bass) {
        const int pitch = BassPitch(sign, bar, step, comp.voice.centre);
        Add(Note::Kind::kComp, bar, step, length, pitch, velocity, index);
        continue;
      }
      const std::vector<int> pitches = Voicing(chord, comp.voice.centre);
      const int count = static_cast<int>(pitches.size());
      if (sign == 'x' || sign == 'X') {
        for (const int pitch : pitches) {
          Add(Note::Kind::kComp, bar, step, length, pitch, velocity, index);
        }
      } else {
        const int tone = sign - '1';
        Add(Note::Kind::kComp, bar, step, length, pitches[tone % count] + tone / count * 12,
            velocity, index);
      }
    }
  }

  void AddDrum(int index, int bar) {
    const bool last_of_phrase = bar % 4 == 3 || bar == piece_.bars - 1;
    const Beat& beat = style_.drums[index];
    const bool fills = beat.drum == Drum::kSnare || beat.drum == Drum::kChipSnare ||
                       beat.drum == Drum::kBrush || beat.drum == Drum::kTom;
    for (int step = 0; step < steps_; ++step) {
      const char sign = beat.pattern[step];
      if (fills && last_of_phrase && step >= steps_ - 4) {
        Add(Note::Kind::kDrum, bar, step, 1, 0, 0.5 + 0.12 * (step - steps_ + 4), index);
      } else if (sign == 'x' || sign == 'X') {
        Add(Note::Kind::kDrum, bar, step, 1, 0, sign == 'X' ? 1 : 0.7, index);
      }
    }
  }

  Motif MakeMotif() {
    Motif motif;
    const char* rhythm = style_.rhythms[random_.Below(static_cast<int>(style_.rhythms.size()))];
    int height = random_.Below(3) - 1;
    for (int step = 0; step < steps_; ++step) {
      if (rhythm[step] != 'x') continue;
      int length = 1;
      while (step + length < steps_ && rhythm[step + length] == '-') ++length;
      motif.steps.push_back(step);
      motif.lengths.push_back(length);
      motif.contour.push_back(height);
      static const int kMoves[] = {-2, -1, -1, 1, 1, 2, 1, -1, 3, -3};
      const int move = kMoves[random_.Below(10)];
      height += std::abs(height + move) > 3 ? -move : move;
    }
    return motif;
  }

  // All pitches that the lead may take over a chord: the scale, but for tones that rub against a
  // chord tone from outside the scale, and the chord.
  std::vector<int> Ladder(const Chord& chord) const {
    const std::vector<int>& scale = ScaleOf(style_.scale);
    const auto in_scale = [&](int pitch) {
      const int place = ((pitch - halves_.back().root) % 12 + 12) % 12;
      return std::find(scale.begin(), scale.end(), place) != scale.end();
    };
    std::vector<int> ladder;
    for (int pitch = score_.lead.centre - 12; pitch <= score_.lead.centre + 15; ++pitch) {
      bool fits = chord.Holds(pitch);
      if (!fits && in_scale(pitch)) {
        const bool rubs = (chord.Holds(pitch + 1) && !in_scale(pitch + 1)) ||
                          (chord.Holds(pitch - 1) && !in_scale(pitch - 1));
        fits = !rubs;
      }
      if (fits) ladder.push_back(pitch);
    }
    return ladder;
  }

  void AddMelody() {
    // Phrases of four bars that take their motifs up again: statement, answer, and an end.
    static const char* kForms[] = {"abac", "abad", "eeab", "abad"};
    std::map<char, Motif> motifs;
    int before = 0;
    for (int bar = 0; bar < piece_.bars; ++bar) {
      const char label = kForms[bar / 4 % 4][bar % 4];
      if (!motifs.contains(label)) motifs.emplace(label, MakeMotif());
      const Motif& motif = motifs.at(label);
      const double arch = 4 * std::sin((bar % 4 + 0.5) / 4 * 3.14);
      for (size_t i = 0; i < motif.steps.size(); ++i) {
        const Chord& chord = ChordAt(bar, motif.steps[i]);
        const std::vector<int> ladder = Ladder(chord);
        const auto at = std::lower_bound(ladder.begin(), ladder.end(),
                                         score_.lead.centre - 1 + static_cast<int>(arch));
        const int top = static_cast<int>(ladder.size()) - 1;
        int rung = std::clamp(static_cast<int>(at - ladder.begin()) + motif.contour[i], 1, top - 1);
        const bool strong = i == 0 || motif.steps[i] % 8 == 0 || motif.lengths[i] >= 4;
        for (int away = 0; strong && !chord.Holds(ladder[rung]) && away < 3;) {
          ++away;
          rung = std::clamp(rung + (away % 2 != 0 ? -away : away), 0, top);
        }
        if (!strong && ladder[rung] == before) rung += rung < top ? 1 : -1;
        before = ladder[rung];
        const int length = i + 1 == motif.steps.size() && bar % 4 == 3
                               ? std::max(motif.lengths[i], 4)
                               : motif.lengths[i];
        AddLead(bar, motif.steps[i], length, rung, ladder, strong ? 0.95 : 0.8);
      }
    }
  }

  void AddLead(int bar, int step, int length, int rung, const std::vector<int>& ladder,
               double velocity) {
    Add(Note::Kind::kLead, bar, step, length, ladder[rung], velocity);
    if (style_.in_thirds && rung >= 2) {
      Add(Note::Kind::kLead, bar, step, length, ladder[rung - 2], velocity * 0.6);
    }
  }

  void AddEnding() {
    const int bar = piece_.bars;
    const Chord& home = halves_.back();
    Add(Note::Kind::kLead, bar, 0, steps_, Fold(home.root, score_.lead.centre), 0.85);
    for (size_t i = 0; i < style_.comps.size(); ++i) {
      const Comp& comp = style_.comps[i];
      const std::vector<int> tones = comp.bass
                                         ? std::vector<int>{Fold(home.root, comp.voice.centre)}
                                         : Voicing(home, comp.voice.centre);
      for (const int pitch : tones) {
        Add(Note::Kind::kComp, bar, 0, steps_, pitch, 0.75, static_cast<int>(i));
      }
    }
    for (size_t i = 0; i < style_.drums.size(); ++i) {
      const char first = style_.drums[i].pattern[0];
      if (first != '.') Add(Note::Kind::kDrum, bar, 0, 1, 0, 0.8, static_cast<int>(i));
    }
  }

  const Style& style_;
  const Piece& piece_;
  Random random_;
  const int steps_;
  std::vector<Chord> halves_;
  Score score_;
};

}  // namespace

Score Compose(const Style& style, const Piece& piece, bool melody) {
  return Composer(style, piece).Compose(melody);
}

Recording Play(const Style& style, const Score& score, uint64_t seed) {
  constexpr double kLeadIn = 0.03, kTail = 1.1;
  const double beat = 60 / score.bpm;
  Random random(seed ^ 0x5eed);
  Mixer mixer(kLeadIn + score.beats * beat + kTail);
  for (const Note& note : score.notes) {
    // Nobody in a band is ever quite on time.
    const double start = kLeadIn + note.beat * beat + random.Signed() * 0.005;
    const double velocity = note.velocity * (1 + 0.06 * random.Signed());
    if (note.kind == Note::Kind::kDrum) {
      const Beat& drum = style.drums[note.comp];
      mixer.Add(RenderDrum(drum.drum, velocity, random), start, drum.gain, drum.pan, 0.08);
      continue;
    }
    const Voice& voice = note.kind == Note::Kind::kLead ? score.lead : style.comps[note.comp].voice;
    const double held = std::max(0.05, note.beats * beat * 0.95);
    mixer.Add(RenderNote(voice.sound, note.pitch, held, velocity, random), start, voice.gain,
              voice.pan, voice.send);
  }
  return mixer.Finish(style.room, style.echo * beat);
}

}  // namespace sonotik::demo
