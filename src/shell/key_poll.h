// The panel of keys: which are down at this poll, and what each does.
#ifndef SONOTIK_SHELL_KEY_POLL_H_
#define SONOTIK_SHELL_KEY_POLL_H_

#include "shell/assembly.h"
#include "shell/navigation.h"

namespace sonotik {

class KeyPoll {
 public:
  KeyPoll(Assembly& house, Menu& menu, Navigation& navigation)
      : house_(house), menu_(menu), navigation_(navigation) {}

  // One look at all mapped keys. After each action it waits, letting events run, until that key is
  // up again: one press is one action, and a key that is held never stops the music.
  void PollKeys();

 private:
  bool Down(size_t slot) const;
  void WaitForRelease(int code);
  // Runs the action if the slot's key is down.
  template <typename Action>
  void On(size_t slot, Action action);

  void PollEscapeOnly();
  void PollTrackList();
  void PollAlbumPages();
  void PollFromAnywhere();
  void MoveTrackHighlight(int by);
  void TakeTrack();
  void MoveCoverHighlight(int by);
  void StepPage(int direction);
  void StepVolume(int by);
  void ToggleRandom();

  Assembly& house_;
  Menu& menu_;
  Navigation& navigation_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_KEY_POLL_H_
