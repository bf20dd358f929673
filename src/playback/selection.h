// The single entry of every selection, from whatever screen, key, terminal or jingle.
#ifndef SONOTIK_PLAYBACK_SELECTION_H_
#define SONOTIK_PLAYBACK_SELECTION_H_

#include <functional>
#include <string>

#include "access/credits.h"
#include "catalogue/catalogue.h"
#include "files/runtime_failure.h"
#include "playback/queue_view.h"
#include "playback/track_sequence.h"

namespace sonotik {

// Nothing has come of a selection, and its price has been given back.
class NothingTaken : public RuntimeFailure {
 public:
  using RuntimeFailure::RuntimeFailure;
};

class Selection {
 public:
  Selection(const Settings& settings, PlaybackState& state, const CatalogueCursor& cursor,
            Credits& credits, Queue& queue, QueueView& view, TrackSequence& tracks,
            const CoverFinder& covers, TagReader& tags);

  // Seams of the room: a Terminal hands its selections over instead of playing them, and the
  // second monitor announces what was added (the names are in the tag fields).
  std::function<bool(const std::string& path)> hand_to_master = [](const std::string&) {
    return false;
  };
  std::function<void(bool play_next)> announce = [](bool) {};

  // By the two flags: to the end of the queue, to its head, or played at once. Charges first, and
  // without the credits nothing at all happens. Throws NothingTaken, or RuntimeFailure for what
  // fails once it is taken.
  void add_queue4(const std::string& path);
  // The same with the flags set for this one call.
  void Choose(const std::string& path, PlayWay way);

 private:
  void Add(const std::string& path, bool play_now, bool play_next);
  std::string CoverFor(const std::string& folder) const;

  const Settings& settings_;
  PlaybackState& state_;
  const CatalogueCursor& cursor_;
  Credits& credits_;
  Queue& queue_;
  QueueView& view_;
  TrackSequence& tracks_;
  const CoverFinder& covers_;
  TagReader& tags_;
};

}  // namespace sonotik

#endif  // SONOTIK_PLAYBACK_SELECTION_H_
