// The two timer handlers: all that the jukebox does by itself.
#ifndef SONOTIK_SHELL_TICKS_H_
#define SONOTIK_SHELL_TICKS_H_

#include <functional>

#include "shell/assembly.h"

namespace sonotik {

// What other rooms do in a tick or a poll, each at its place in the order; nothing until its owner
// fills it in.
struct TickHooks {
  std::function<bool()> ticker_visible = [] { return false; };
  std::function<void()> hide_ticker = [] {};
  std::function<void()> leave_program = [] {};
  // While a key is held the poll does nothing at all.
  std::function<bool()> key_is_held = [] { return false; };
  std::function<void()> PollKeys = [] {};
};

class Ticks {
 public:
  explicit Ticks(Assembly& house);

  TickHooks hooks;

  // The one-second tick: calendar, idle time, end of track, next track.
  void StateTick();
  // The poll, each 10 ms: spool files, credits, keys.
  void Poll();

 private:
  void CheckCalendar();
  void TickTicker();
  void TickIdle();
  void ShowClock();
  bool ItIsTimeToLeave() const;
  void EndTrack();
  void ShowPosition();
  void PickWhatComesNext();
  void MoveIndicator();
  void StartQueueHead();
  void CountDeadAir();
  void ClearPlayingInfoOnce();
  void TakeSpoolFile();
  void ShowQueueAsItIs();

  Assembly& house_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_TICKS_H_
