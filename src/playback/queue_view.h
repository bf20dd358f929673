// What the screens show of the queue: the QueueScreen and the "Next Song:" panel.
#ifndef SONOTIK_PLAYBACK_QUEUE_VIEW_H_
#define SONOTIK_PLAYBACK_QUEUE_VIEW_H_

#include "catalogue/cover_picture.h"
#include "config/settings.h"
#include "forms/Form1.h"
#include "playback/queue.h"

namespace sonotik {

class QueueView {
 public:
  QueueView(const Settings& settings, Queue& queue, const CoverFinder& covers, TagReader& tags,
            const TagFields& fields, Form1& form);

  void Update_queue2();
  // The "Next Song:" panel; an empty queue leaves it as it is, and the tick hides it.
  void show_next();
  // Empties the queue and its rows.
  void CLear_queue();
  void remove_queue();

  void PressRow(int row);
  void Scroll(int by);
  // Moving, removing, clearing and shuffling; "Play Now" is the business of whoever starts tracks.
  void Press(QueueCommand command);
  void HideRowCommands();

  // The chosen entry, -1 for none.
  int selection() const { return selection_; }
  void SetSelection(int entry) { selection_ = entry; }
  void Reset();

 private:
  void FillRow(int row);
  void EmptyRow(int row);

  const Settings& settings_;
  Queue& queue_;
  const CoverFinder& covers_;
  TagReader& tags_;
  const TagFields& fields_;
  Form1& form1_;
  QueueScreen& screen_;
  int selection_ = -1;
  int top_ = 0;  // the first entry shown
};

}  // namespace sonotik

#endif  // SONOTIK_PLAYBACK_QUEUE_VIEW_H_
