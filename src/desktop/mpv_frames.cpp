#include "desktop/mpv_frames.h"

#include <mpv/client.h>
#include <mpv/render.h>

#include <string>
#include <utility>

#include "files/runtime_failure.h"

namespace sonotik {
namespace {

constexpr int kBytesPerPixel = 4;
constexpr char kPixelFormat[] = "bgr0";

// libmpv takes all parameters as pointers to what it doesn't change.
void* Parameter(const void* value) { return const_cast<void*>(value); }

}  // namespace

MpvFrames::MpvFrames(mpv_handle* player, std::function<void()> on_ready)
    : on_ready_(std::move(on_ready)) {
  mpv_render_param params[] = {{MPV_RENDER_PARAM_API_TYPE, Parameter(MPV_RENDER_API_TYPE_SW)},
                               {MPV_RENDER_PARAM_INVALID, nullptr}};
  const int error = mpv_render_context_create(&context_, player, params);
  if (error < 0) {
    throw RuntimeFailure(std::string("No pictures from libmpv: ") + mpv_error_string(error));
  }
  thread_ = std::thread([this] { Work(); });
  mpv_render_context_set_update_callback(context_, &MpvFrames::OnUpdate, this);
}

MpvFrames::~MpvFrames() {
  mpv_render_context_set_update_callback(context_, nullptr, nullptr);
  {
    const std::lock_guard lock(mutex_);
    leaving_ = true;
  }
  changed_.notify_one();
  thread_.join();
  mpv_render_context_free(context_);
}

void MpvFrames::Resize(int width, int height) {
  {
    const std::lock_guard lock(mutex_);
    width_ = width;
    height_ = height;
    ++turn_;
    ready_ = false;
    resized_ = width > 0 && height > 0;
  }
  changed_.notify_one();
}

bool MpvFrames::Take(PixelSurface& shown) {
  const std::lock_guard lock(mutex_);
  if (!ready_) return false;
  std::swap(shown, waiting_);
  ready_ = false;
  return true;
}

// Runs on libmpv's threads, which may hold its locks: nothing of libmpv may be called here.
void MpvFrames::OnUpdate(void* frames) {
  auto* self = static_cast<MpvFrames*>(frames);
  {
    const std::lock_guard lock(self->mutex_);
    self->updated_ = true;
  }
  self->changed_.notify_one();
}

void MpvFrames::Work() {
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return leaving_ || updated_ || resized_; });
    if (leaving_) return;
    updated_ = false;
    const bool resized = std::exchange(resized_, false);
    const int width = width_;
    const int height = height_;
    const unsigned turn = turn_;

    lock.unlock();
    const bool has_frame = mpv_render_context_update(context_) & MPV_RENDER_UPDATE_FRAME;
    const bool wanted = has_frame || resized;
    if (wanted) Render(width, height);
    lock.lock();

    if (!wanted || width == 0 || turn != turn_) continue;
    std::swap(rendering_, waiting_);
    if (std::exchange(ready_, true)) continue;
    lock.unlock();
    on_ready_();
    lock.lock();
  }
}

void MpvFrames::Render(int width, int height) {
  if (width == 0) {
    int skip = 1;
    mpv_render_param params[] = {{MPV_RENDER_PARAM_SKIP_RENDERING, &skip},
                                 {MPV_RENDER_PARAM_INVALID, nullptr}};
    mpv_render_context_render(context_, params);
    return;
  }
  rendering_.width = width;
  rendering_.height = height;
  rendering_.stride = width * kBytesPerPixel;
  rendering_.bytes.resize(static_cast<size_t>(rendering_.stride) * height);
  int size[] = {width, height};
  size_t stride = rendering_.stride;
  mpv_render_param params[] = {{MPV_RENDER_PARAM_SW_SIZE, size},
                               {MPV_RENDER_PARAM_SW_FORMAT, Parameter(kPixelFormat)},
                               {MPV_RENDER_PARAM_SW_STRIDE, &stride},
                               {MPV_RENDER_PARAM_SW_POINTER, rendering_.bytes.data()},
                               {MPV_RENDER_PARAM_INVALID, nullptr}};
  mpv_render_context_render(context_, params);
}

}  // namespace sonotik
