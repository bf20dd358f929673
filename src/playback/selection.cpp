#include "playback/selection.h"

#include <exception>

#include "files/paths.h"
#include "files/runtime_failure.h"

namespace sonotik {

Selection::Selection(const Settings& settings, PlaybackState& state, const CatalogueCursor& cursor,
                     Credits& credits, Queue& queue, QueueView& view, TrackSequence& tracks,
                     const CoverFinder& covers, TagReader& tags)
    : settings_(settings),
      state_(state),
      cursor_(cursor),
      credits_(credits),
      queue_(queue),
      view_(view),
      tracks_(tracks),
      covers_(covers),
      tags_(tags) {}

void Selection::add_queue4(const std::string& path) {
  const bool play_now = state_.play_now_flag != 0;
  const bool play_next = state_.play_next_flag != 0;
  const auto price = credits_.ChargeForSelection(cursor_.media_kind, play_now, play_next,
                                                 state_.random_in_progress);
  if (!price) return;
  const unsigned long opened = state_.opened;
  std::exception_ptr failure;
  try {
    Add(path, play_now, play_next);
  } catch (const RuntimeFailure& failed) {
    // A shared folder that is gone: nobody pays for what failed before it began. A "Play Now" of a
    // file that isn't there fails nowhere and is paid; that is meant.
    if (state_.opened == opened) {
      credits_.GiveBack(*price);
      throw NothingTaken(failed.what());
    }
    // What plays has been paid, and the rest of the house has to know.
    failure = std::current_exception();
  }
  // Also on a Terminal, where the track itself is queued elsewhere.
  if (settings_.use_second_monitor && !play_now) {
    tags_.ReadOrNone(TagCaller::kAddQueue, path);
    if (!state_.random_in_progress) announce(play_next);
  }
  view_.show_next();
  queue_.Export();
  if (failure) std::rethrow_exception(failure);
}

void Selection::Add(const std::string& path, bool play_now, bool play_next) {
  // A Terminal charges here and its Master again; that is meant.
  if (hand_to_master(path)) return;
  if (!play_now) {
    std::string cover = CoverFor(FolderOf(path));
    if (play_next) {
      // Before any earlier one that was to play next.
      queue_.InsertFirst(path, std::move(cover));
    } else {
      queue_.Append(path, std::move(cover));
    }
  } else if (!state_.paused) {
    tracks_.Play_track3(path);
  }
  // Over a paused track the request is dropped, although the credits are taken: that is meant.
}

std::string Selection::CoverFor(const std::string& folder) const {
  // By its name the cover is taken whether or not it is there; showing it looks again.
  if (!covers_.TakesFirstImage()) return folder + settings_.cover_image_name;
  const std::string name = FirstImageIn(folder);
  if (name.empty()) return covers_.NotFoundPicture();
  return folder + name;
}

void Selection::Choose(const std::string& path, PlayWay way) {
  // A guest's choice is a guest's, also while the machine starts a track of its own.
  const struct Clear {
    PlaybackState& state;
    bool machine_chose;
    ~Clear() {
      state.play_now_flag = state.play_next_flag = 0;
      state.random_in_progress = machine_chose;
    }
  } clear{state_, state_.random_in_progress};
  state_.random_in_progress = false;
  state_.play_now_flag = way == PlayWay::kPlayNow ? 1 : 0;
  state_.play_next_flag = way == PlayWay::kPlayNext ? 1 : 0;
  add_queue4(path);
}

}  // namespace sonotik
