#include "desktop/video_hosts.h"

namespace sonotik {

VideoHosts::VideoHosts(MpvPlayer& player, Form1& form1, Form3& form3)
    : player_(player), main_(form1.now_playing.video), second_(form3.video) {
  player_.on_frame = [this] { Show(); };
}

VideoHosts::~VideoHosts() { player_.on_frame = {}; }

void VideoHosts::Show() {
  const PixelSurface& pixels = player_.pixels();
  const VideoPlacement& at = player_.placement();
  const bool second = at.host == VideoHost::kSecondMonitor;
  VideoBox& box = second ? second_ : main_;
  (second ? main_ : second_).SetPixels(nullptr);
  const Rect place{static_cast<float>(at.left), static_cast<float>(at.top),
                   static_cast<float>(at.width), static_cast<float>(at.height)};
  box.SetPixels(&pixels, second ? std::optional(place) : std::nullopt);
  // Without a picture the room sees what lies behind.
  second_.SetVisible(second && !pixels.bytes.empty());
  box.Invalidate();
}

}  // namespace sonotik
