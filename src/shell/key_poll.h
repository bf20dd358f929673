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

  // One look at all mapped keys. The first that is down acts, and until its key is up again it is
  // held: one press is one action.
  void PollKeys();
  // Whoever polls waits for that, and lets everything else go on: a key that is held, or stuck,
  // never stops the music.
  bool KeyIsHeld();

 private:
  bool Down(size_t slot) const;
  // Runs the action if the slot's key is down and no other has acted in this look.
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
  // The code of the key whose release is waited for, -1 for none.
  int held_ = -1;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_KEY_POLL_H_
