// The start of a track, whatever chose it: display, sign, engine, mixer, monitors, history, in one
// fixed order.
#ifndef SONOTIK_PLAYBACK_TRACK_SEQUENCE_H_
#define SONOTIK_PLAYBACK_TRACK_SEQUENCE_H_

#include <functional>
#include <string>

#include "catalogue/cover_picture.h"
#include "catalogue/history.h"
#include "forms/Form1.h"
#include "platform/event_loop.h"
#include "platform/timers.h"
#include "playback/media_engine.h"
#include "playback/playback_state.h"
#include "tags/tag_reader.h"

namespace sonotik {

// What a track start does outside of playback, in the order in which it happens. Whoever drives
// these devices fills in its own; until then they do nothing.
struct TrackStartHooks {
  std::function<void()> mute_line_in = [] {};
  // The sign gets the names of the tag read last.
  std::function<void()> send_to_sign = [] {};
  std::function<void()> start_visualisation = [] {};
  std::function<void()> close_visualisation = [] {};
  std::function<void(bool visible)> show_second_monitor = [](bool) {};
  // The command of mute.txt or unmute.txt, and the microphone's switch.
  std::function<void(bool mute)> mute_microphone = [](bool) {};
  std::function<void()> start_song_facts = [] {};
  // When nothing is to be played any more.
  std::function<void()> playing_info_cleared = [] {};
};

class TrackSequence {
 public:
  TrackSequence(EventLoop& events, const Settings& settings, PlaybackState& state,
                MediaEngine& engine, const CoverFinder& covers, History& history, TagReader& tags,
                TagFields& fields, Timer& state_timer, Form1& form);

  TrackStartHooks hooks;

  // Starts a track. A file that isn't there is left at once, and the state timer with it: it stays
  // off until the next start that succeeds, unless the caller is the tick. That is meant.
  void Play_track3(std::string path);
  // The now-playing display as it is when nothing plays.
  void clear_playing_info();
  // Both now-playing pictures.
  void ShowCover(const std::string& picture);

 private:
  void ShowNames();
  void BranchOnKind(const std::string& path);

  EventLoop& events_;
  const Settings& settings_;
  PlaybackState& state_;
  MediaEngine& engine_;
  const CoverFinder& covers_;
  History& history_;
  TagReader& tags_;
  TagFields& fields_;
  Timer& state_timer_;
  Form1& form1_;
};

inline constexpr char kNoSongPlaying[] = "No Song Playing";

}  // namespace sonotik

#endif  // SONOTIK_PLAYBACK_TRACK_SEQUENCE_H_
