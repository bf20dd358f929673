#include "playback/media_engine.h"

#include <cmath>

#include "text/numbers.h"

namespace sonotik {

MediaEngine::MediaEngine(Player& player, EventLoop& events, const Settings& settings,
                         const Control& main_host)
    : player_(player), events_(events), settings_(settings), main_host_(main_host) {}

void MediaEngine::OpenMedia(const std::string& path, bool stretch) {
  CloseMedia();
  current_file_ = path;
  player_.RenderFile(path);
  open_ = true;
  // As loud as recorded for an instant; the caller sets the true volume next, and that is meant.
  player_.SetVolume(0);
  player_.SetBalance(0);
  stretch_ = stretch;
  PlaceOnHost();
  player_.SetRate(1.0);
  rate_ = player_.Rate().value_or(1.0);
  // Both from 0, or a file that can't be played would never seem to end.
  length_ = 0;
  position_ = 0;
  start_position_ = 0;
  MediaPlay();
}

void MediaEngine::PlaceOnHost() {
  const bool second = settings_.use_second_monitor && second_host_ != nullptr;
  const Rect& inner = (second ? *second_host_ : main_host_).place();
  VideoPlacement placement;
  placement.host = second ? VideoHost::kSecondMonitor : VideoHost::kMainWindow;
  placement.width = static_cast<int>(inner.width);
  placement.height = static_cast<int>(inner.height);
  const auto native = player_.NativeSize();
  // The box of the main window is filled whatever the ratio; that is meant.
  if (second && !stretch_ && native && native->width > 0) {
    // The whole width, the height by the picture's own ratio, centred from top to bottom.
    const double ratio = static_cast<double>(native->height) / native->width;
    placement.height = static_cast<int>(RoundHalfEven(placement.width * ratio));
    placement.top = (static_cast<int>(inner.height) - placement.height) / 2;
  }
  player_.PlaceVideo(placement);
}

void MediaEngine::CloseMedia() {
  is_playing_ = false;
  events_.PumpEvents();
  if (!open_) return;
  player_.Stop();
  player_.PlaceVideo({});
  player_.Close();
  open_ = false;
}

void MediaEngine::MediaPlay() {
  const double position = std::trunc(MediaPosition());
  if (position < std::trunc(start_position_) || position == std::trunc(MediaDuration())) {
    player_.SetPosition(start_position_);
  }
  is_playing_ = true;
  player_.Run();
}

void MediaEngine::MediaPause() {
  if (!is_playing_) return;
  player_.Pause();
  is_playing_ = false;
}

void MediaEngine::MediaStop() {
  if (!is_playing_) return;
  player_.Stop();
  is_playing_ = false;
  player_.SetPosition(0);
}

void MediaEngine::MediaSetVolume(int value) {
  if (open_) player_.SetVolume(value);
}

double MediaEngine::MediaDuration() {
  // Asked for again each time: a file without a table of contents corrects its length as it plays.
  if (open_) length_ = player_.Length().value_or(length_);
  return RoundToHundredths(length_);
}

double MediaEngine::MediaPosition() {
  const double duration = MediaDuration();
  if (const auto position = player_.Position()) {
    // At the end both are the same number, rounding included: whole seconds are compared, and a
    // length of 12.996 s counts as 13.
    position_ = *position >= length_ ? duration : *position;
  }
  return position_;
}

void MediaEngine::FitVideoWindow() {
  if (open_) PlaceOnHost();
}

}  // namespace sonotik
