// The one open media file: playing, pausing, stopping, measuring, placing its picture.
//
// A player's failing call is skipped and the next one runs: no operation reports an error. A file
// that can't be played counts as playing with a length of 0, and the next tick moves on.
#ifndef SONOTIK_PLAYBACK_MEDIA_ENGINE_H_
#define SONOTIK_PLAYBACK_MEDIA_ENGINE_H_

#include <string>

#include "config/settings.h"
#include "platform/event_loop.h"
#include "platform/player.h"
#include "widgets/control.h"

namespace sonotik {

class MediaEngine {
 public:
  // `main_host` is the video box of the main window; `second_host` that of the second monitor, or
  // nullptr while there is none.
  MediaEngine(Player& player, EventLoop& events, const Settings& settings,
              const Control& main_host);
  void SetSecondHost(const Control* host) { second_host_ = host; }

  // Closes what was open and plays the file from its start. `stretch` fills the second monitor
  // whatever the picture's ratio; there is no full-screen mode beyond the host.
  void OpenMedia(const std::string& path, bool stretch);
  void CloseMedia();
  // Goes on where it stands, at the end from the start.
  void MediaPlay();
  void MediaPause();
  // Back to the start. Does nothing on a paused track, which keeps its place.
  void MediaStop();
  // Hundredths of a decibel; ignored while nothing is open.
  void MediaSetVolume(int value);
  // Seconds; 0 while nothing is open. The length is held at two decimal places.
  double MediaDuration();
  double MediaPosition();
  // Paused and stopped are alike: false.
  bool MediaIsPlaying() const { return is_playing_; }
  // After a host has changed its size, or the setting the host: the picture moves, the sound goes
  // on.
  void FitVideoWindow();

  const std::string& current_file() const { return current_file_; }

 private:
  void PlaceOnHost();

  Player& player_;
  EventLoop& events_;
  const Settings& settings_;
  const Control& main_host_;
  const Control* second_host_ = nullptr;
  bool open_ = false;
  bool is_playing_ = false;
  bool stretch_ = false;
  std::string current_file_;
  double length_ = 0;  // as the player gives it
  double rate_ = 1;
  double start_position_ = 0;
  double position_ = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLAYBACK_MEDIA_ENGINE_H_
