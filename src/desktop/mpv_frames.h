// The pictures of a libmpv player, rendered into memory on a thread of their own.
#ifndef SONOTIK_DESKTOP_MPV_FRAMES_H_
#define SONOTIK_DESKTOP_MPV_FRAMES_H_

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include "widgets/canvas.h"

struct mpv_handle;
struct mpv_render_context;

namespace sonotik {

// Make it before the player's first file and end it before the player. While no size is set, frames
// are taken from the player and thrown away, so that it never waits for somebody to show them.
class MpvFrames {
 public:
  // `on_ready` runs on the render thread when a picture waits for Take, once until it is taken.
  // Throws RuntimeFailure where libmpv can't render into memory.
  MpvFrames(mpv_handle* player, std::function<void()> on_ready);
  ~MpvFrames();
  MpvFrames(const MpvFrames&) = delete;
  MpvFrames& operator=(const MpvFrames&) = delete;

  // The size of the pictures from now on; the present one is rendered again. What is on its way in
  // another size is dropped. 0 x 0 for none.
  void Resize(int width, int height);
  // Swaps the picture that waits for the one given; false if there is none.
  bool Take(PixelSurface& shown);

 private:
  static void OnUpdate(void* frames);
  void Work();
  // Without a size the frame counts as shown all the same.
  void Render(int width, int height);

  mpv_render_context* context_ = nullptr;
  std::function<void()> on_ready_;

  std::mutex mutex_;
  std::condition_variable changed_;
  bool leaving_ = false;
  bool updated_ = false;
  bool resized_ = false;
  int width_ = 0;
  int height_ = 0;
  unsigned turn_ = 0;  // counts the calls of Resize: a picture begun before the last one is stale
  bool ready_ = false;
  PixelSurface waiting_;

  PixelSurface rendering_;  // the render thread's alone
  std::thread thread_;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_MPV_FRAMES_H_
