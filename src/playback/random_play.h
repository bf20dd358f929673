// The machine's own choice of music while nobody chooses: one track, started at once.
#ifndef SONOTIK_PLAYBACK_RANDOM_PLAY_H_
#define SONOTIK_PLAYBACK_RANDOM_PLAY_H_

#include <array>
#include <functional>
#include <string>

#include "config/option_lists.h"
#include "config/settings.h"
#include "files/file_list.h"
#include "platform/clock.h"
#include "platform/random_source.h"
#include "playback/selection.h"
#include "playback/track_sequence.h"

namespace sonotik {

class RandomPlay {
 public:
  // The list of songs not to be repeated holds 11 and the one that leaves it.
  static constexpr size_t kRecentSongs = 12;
  // Picks for a file that exists before a round gives up: a collection may be gone as a whole.
  static constexpr int kMostPicks = 100;

  RandomPlay(const std::string& app_path, const Clock& clock, RandomSource& random,
             const Settings& settings, const OptionLists& lists, PlaybackState& state,
             TrackSequence& tracks);

  // From a genre's albums or from the track files of the databases that are ticked; with none
  // ticked nothing plays. It never touches the queue.
  void Random_Play();

  // The newest first; empty at each start.
  const std::array<std::string, kRecentSongs>& recent_songs() const { return recent_songs_; }

 private:
  using Pick = std::function<std::string()>;
  Pick GenrePicks();
  Pick DatabasePicks();
  std::string NotRecent(const Pick& pick);
  static std::string Existing(const Pick& pick, std::string candidate);

  const std::string& app_path_;
  const Clock& clock_;
  RandomSource& random_;
  const Settings& settings_;
  const OptionLists& lists_;
  PlaybackState& state_;
  TrackSequence& tracks_;
  FileList files_{kMediaPattern};
  std::array<std::string, kRecentSongs> recent_songs_;
};

// Short tracks slipped in among the machine's own.
class Jingles {
 public:
  Jingles(RandomSource& random, const Settings& settings, PlaybackState& state,
          Selection& selection)
      : random_(random), settings_(settings), state_(state), selection_(selection) {}

  // One of the folder, started as a choice of the machine. A folder that is gone costs its round.
  void Play();

 private:
  RandomSource& random_;
  const Settings& settings_;
  PlaybackState& state_;
  Selection& selection_;
  FileList files_{kMediaPattern};
};

}  // namespace sonotik

#endif  // SONOTIK_PLAYBACK_RANDOM_PLAY_H_
