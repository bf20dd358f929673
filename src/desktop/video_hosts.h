// The boxes of both windows that show the player's picture.
#ifndef SONOTIK_DESKTOP_VIDEO_HOSTS_H_
#define SONOTIK_DESKTOP_VIDEO_HOSTS_H_

#include "desktop/mpv_player.h"
#include "forms/Form1.h"
#include "forms/Form3.h"

namespace sonotik {

// The player's pictures go to the host of its placement, for as long as this lives.
class VideoHosts {
 public:
  VideoHosts(MpvPlayer& player, Form1& form1, Form3& form3);
  ~VideoHosts();
  VideoHosts(const VideoHosts&) = delete;
  VideoHosts& operator=(const VideoHosts&) = delete;

 private:
  void Show();

  MpvPlayer& player_;
  VideoBox& main_;
  VideoBox& second_;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_VIDEO_HOSTS_H_
