#include "playback/rating.h"

#include <cstdlib>

#include "files/files.h"

namespace sonotik {
namespace {

constexpr int kMostThumbs = 3;
constexpr const char* kPictures[] = {"3thumbsdown.gif", "2thumbsdown.gif", "1thumbdown.gif",
                                     "notrated.gif",    "1thumbup.gif",    "2thumbsup.gif",
                                     "3thumbsup.gif"};

}  // namespace

void Rating::Step(int by) {
  if (std::abs(current_ + by) > kMostThumbs) return;
  current_ += by;
  ShowRating();
}

void Rating::ShowRating() {
  const std::string path = app_path_ + "\\images\\" + kPictures[current_ + kMostThumbs];
  if (!FileExists(path)) return;
  screen_.rating.LoadAnimatedGIF_File(path);
  screen_.rating.SetAction(1);
}

}  // namespace sonotik
