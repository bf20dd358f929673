// What all of playback shares: the flags of the call in progress and the track started last.
#ifndef SONOTIK_PLAYBACK_PLAYBACK_STATE_H_
#define SONOTIK_PLAYBACK_PLAYBACK_STATE_H_

#include <string>

namespace sonotik {

struct PlaybackState {
  // Set by the caller of add_queue4 and cleared after it: both 0 adds to the end.
  int play_now_flag = 0;
  int play_next_flag = 0;
  // The machine itself is adding or starting a track: no charge, no announcement, random history,
  // random volume.
  bool random_in_progress = false;
  bool random_mode_on = false;
  // The box "Enable Random Play" can be ticked; on a Terminal it can't.
  bool random_play_available = true;
  bool paused = false;
  // Starts under way. They let events run, and another track begun in there would lose its play to
  // the one that goes on behind it.
  int starting = 0;
  // How many tracks the player was given so far.
  unsigned long opened = 0;
  // Of the track started last; the folder ends in "\".
  std::string current_track_path;
  std::string current_track_folder;
};

}  // namespace sonotik

#endif  // SONOTIK_PLAYBACK_PLAYBACK_STATE_H_
