// The thumbs beside the playing track, from three down to three up. Nothing stores them and no
// track start resets them; that is meant.
#ifndef SONOTIK_PLAYBACK_RATING_H_
#define SONOTIK_PLAYBACK_RATING_H_

#include <string>

#include "forms/NowPlayingScreen.h"

namespace sonotik {

class Rating {
 public:
  Rating(const std::string& app_path, NowPlayingScreen& screen)
      : app_path_(app_path), screen_(screen) {}

  // 1 up, -1 down; at the ends nothing changes.
  void Step(int by);
  // The picture of the rating; a missing file leaves the one before.
  void ShowRating();
  // 0 is not rated.
  int current() const { return current_; }

 private:
  const std::string& app_path_;
  NowPlayingScreen& screen_;
  int current_ = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLAYBACK_RATING_H_
