// The tracks that wait, five in view, and what an operator or guest can do with them.
#ifndef SONOTIK_FORMS_QUEUESCREEN_H_
#define SONOTIK_FORMS_QUEUESCREEN_H_

#include <array>

#include "forms/design.h"

namespace sonotik {

inline constexpr int kQueueRows = 5;

struct QueueRow {
  Label number;  // rows 1 to 4; row 0 is the next song and has none
  PictureBox cover;
  Label artist;
  Label track;
  Label album;
  Label time;
  // The row as one place to touch and to mark.
  Label touch;
};

enum class QueueCommand {
  kMoveUp,
  kMoveDown,
  kRemove,
  kPlayNow,
  kClear,
  kBurnCd,
  kShuffle,
};

struct QueueScreen {
  explicit QueueScreen(Panel& panel);

  Panel& panel;
  Label next_song_caption;    // "Next Song..."
  Label followed_by_caption;  // "Followed By..."
  std::array<QueueRow, kQueueRows> rows;
  std::array<lvButtons_H, 7> commands;  // by QueueCommand
  lvButtons_H up;
  lvButtons_H down;
  lvButtons_H back;
  Label remaining;  // "... Song(s) Remaining In Queue"
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_QUEUESCREEN_H_
