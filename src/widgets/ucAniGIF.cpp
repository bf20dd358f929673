#include "widgets/ucAniGIF.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "widgets/picture_source.h"

namespace sonotik {
namespace {

constexpr int kLeastDelay = 10;
constexpr int kMostDelay = 32700;
// Decoded frames are kept as long as they are not more than this together.
constexpr size_t kMostDecoded = size_t{64} << 20;

uint8_t* PixelAt(PixelSurface& surface, int x, int y) {
  return &surface.bytes[static_cast<size_t>(y) * surface.stride + static_cast<size_t>(x) * 4];
}

}  // namespace

void ucAniGIF::SetTimers(Timers& timers) {
  timer_.emplace(timers, p_.min_frame_delay);
  timer_->on_tick = [this] { Tick(); };
}

bool ucAniGIF::LoadAnimatedGIF_File(const std::string& path) {
  const Form* const root = form();
  PictureSource* const source = root == nullptr ? nullptr : root->pictures;
  return LoadAnimatedGIF_Array(source == nullptr ? "" : source->Bytes(path).value_or(""));
}

bool ucAniGIF::LoadAnimatedGIF_Array(std::string bytes) {
  SwitchTimer(false);
  state_ = State::kStopped;
  std::optional<GifFile> gif = ReadGif(bytes);
  gif_ = gif ? std::move(*gif) : GifFile();
  p_.gif = gif_.frames.empty() ? "" : std::move(bytes);
  p_.loops = gif_.loops;
  loops_done_ = 0;
  cached_tables_.clear();
  decoded_.assign(gif_.frames.size(), {});
  decoded_bytes_ = 0;
  frame_ = gif_.frames.empty() ? 0 : 1;
  Recompose();
  return frame_ != 0;
}

void ucAniGIF::LoadAnimatedGIF_Remote(const std::string& url) {
  const auto fail = [this] {
    if (on_remote_load_failure) on_remote_load_failure();
  };
  if (!remote_loader) return fail();
  remote_loader(url, [this, fail, alive = std::weak_ptr(alive_)](std::optional<std::string> bytes) {
    if (alive.expired()) return;
    if (!bytes || !LoadAnimatedGIF_Array(std::move(*bytes))) return fail();
    if (on_remote_load_complete) on_remote_load_complete();
  });
}

void ucAniGIF::SetAction(int action) {
  if (gif_.frames.empty() || design_mode || action < 0 || action > 4) return;
  switch (static_cast<GifAction>(action)) {
    case GifAction::kStop:
      return Stop();
    case GifAction::kPlay:
      return Play();
    case GifAction::kPause:
      if (state_ != State::kPlaying) return;
      SwitchTimer(false);
      state_ = State::kPaused;
      return;
    case GifAction::kNext:
      SwitchTimer(false);
      state_ = State::kPaused;
      return ShowFrame(frame_ % frame_count() + 1);
    case GifAction::kRestart:
      Stop();
      return Play();
  }
}

void ucAniGIF::Stop() {
  SwitchTimer(false);
  state_ = State::kStopped;
  loops_done_ = 0;
  ShowFrame(1);
}

void ucAniGIF::Play() {
  // A hidden one plays once it shows.
  state_ = showing() ? State::kPlaying : State::kPaused;
  if (state_ == State::kPlaying) SwitchTimer(true);
}

void ucAniGIF::SwitchTimer(bool on) {
  if (!timer_) return;
  timer_->SetEnabled(false);
  if (!on) return;
  // A frame without a delay, or with a very short one, has the least delay.
  const int delay = gif_.frames[static_cast<size_t>(frame_) - 1].delay_ms;
  timer_->SetInterval(std::max(delay, p_.min_frame_delay));
  timer_->SetEnabled(true);
}

void ucAniGIF::Tick() {
  SwitchTimer(false);
  bool ended = false;
  const int next = frame_ % frame_count() + 1;
  if (frame_count() == 1) {
    loops_done_ = 1;
    ended = true;
  } else if (next == 1 && p_.loops != 0 && ++loops_done_ == p_.loops) {
    // It stays on its first frame, not on its last.
    loops_done_ = 0;
    ended = true;
  }
  if (ended) state_ = State::kStopped;
  ShowFrame(next);
  if (ended) {
    if (on_loops_ended) on_loops_ended();
  } else if (state_ == State::kPlaying) {
    SwitchTimer(true);
  }
}

// One that was paused by hand plays on as well when it shows again.
void ucAniGIF::ShowingChanged() {
  if (state_ == State::kPlaying && !showing()) {
    SwitchTimer(false);
    state_ = State::kPaused;
  } else if (state_ == State::kPaused && showing()) {
    Play();
  }
}

void ucAniGIF::SetLoops(int loops) { p_.loops = loops == INT32_MIN ? INT32_MAX : std::abs(loops); }

void ucAniGIF::SetMinFrameDelay(int ms) {
  p_.min_frame_delay = std::clamp(ms, kLeastDelay, kMostDelay);
}

void ucAniGIF::SetStretch(int stretch) {
  if (stretch >= 0 && stretch <= 3) Change(p_.stretch, stretch);
}

void ucAniGIF::SetMirrored(int mirrored) {
  if (mirrored < 0 || mirrored > 3 || !Change(p_.mirrored, mirrored)) return;
  Mirror();
}

void ucAniGIF::SetDelayAnimation(int delay) {
  if (delay >= 0 && delay <= 3) p_.delay_animation = delay;
}

void ucAniGIF::SetOffset(int x, int y) {
  Change(p_.offset_x, x);
  Change(p_.offset_y, y);
}

std::vector<Color> ucAniGIF::GetPalette(size_t table) const {
  return table < gif_.color_tables.size() ? gif_.color_tables[table] : std::vector<Color>();
}

void ucAniGIF::SetPalette(size_t table, std::vector<Color> colors) {
  if (table >= gif_.color_tables.size()) return;
  gif_.color_tables[table] = std::move(colors);
  Recompose();
}

void ucAniGIF::RestoreColorTables() {
  if (cached_tables_.empty()) return;
  gif_.color_tables = cached_tables_;
  Recompose();
}

void ucAniGIF::ReadFrom(const PropertyBag& bag) {
  p_ = AniGifProperties();
  ReadProperties(kAniGifProperties, p_, bag);
  SetMinFrameDelay(p_.min_frame_delay);
  const int loops = p_.loops;
  LoadAnimatedGIF_Array(std::move(p_.gif));
  if (bag.Read("Loops")) SetLoops(loops);
}

void ucAniGIF::ShowFrame(int frame) {
  const bool changed = frame_ != frame;
  frame_ = frame;
  const auto wanted = static_cast<size_t>(frame);
  if (composed_frame_ > wanted) composed_frame_ = 0;
  while (composed_frame_ < wanted) AddFrame(composed_frame_);
  Mirror();
  if (changed) Invalidate();
  if (on_frame_changed) on_frame_changed(frame_);
}

// From the first frame on: the file or its colours are others.
void ucAniGIF::Recompose() {
  composed_ = hidden_ = mirrored_ = PixelSurface();
  composed_frame_ = 0;
  Invalidate();
  if (frame_ == 0) return;
  while (composed_frame_ < static_cast<size_t>(frame_)) AddFrame(composed_frame_);
  Mirror();
}

void ucAniGIF::AddFrame(size_t index) {
  if (index == 0) {
    composed_ = {gif_.width, gif_.height, gif_.width * 4, {}, true};
    composed_.bytes.resize(static_cast<size_t>(composed_.stride) * gif_.height);
  } else {
    const GifFrame& former = gif_.frames[index - 1];
    if (former.disposal == GifDisposal::kToBackground) Clear(former);
    if (former.disposal == GifDisposal::kToPrevious) composed_ = hidden_;
  }
  const GifFrame& frame = gif_.frames[index];
  if (frame.disposal == GifDisposal::kToPrevious) hidden_ = composed_;
  const std::vector<Color>& colors = gif_.color_tables[frame.color_table];
  const std::vector<uint8_t>& indexes = Decoded(index);
  const auto width = static_cast<size_t>(frame.width);
  for (size_t done = 0; done < indexes.size(); done += width) {
    const int row = GifRow(frame, static_cast<int>(done / width));
    uint8_t* pixel = PixelAt(composed_, frame.left, frame.top + row);
    const size_t end = std::min(done + width, indexes.size());
    for (size_t i = done; i < end; ++i, pixel += 4) {
      const uint8_t number = indexes[i];
      if (frame.transparent && number == frame.transparent_index) continue;
      const Color color = number < colors.size() ? colors[number] : kBlack;
      pixel[0] = static_cast<uint8_t>(color >> 16);
      pixel[1] = static_cast<uint8_t>(color >> 8);
      pixel[2] = static_cast<uint8_t>(color);
      pixel[3] = 255;
    }
  }
  composed_frame_ = index + 1;
}

const std::vector<uint8_t>& ucAniGIF::Decoded(size_t index) {
  if (!decoded_[index].empty()) return decoded_[index];
  std::vector<uint8_t> indexes = DecodeGifFrame(p_.gif, gif_.frames[index]);
  if (decoded_bytes_ + indexes.size() > kMostDecoded) return unkept_ = std::move(indexes);
  decoded_bytes_ += indexes.size();
  return decoded_[index] = std::move(indexes);
}

void ucAniGIF::Clear(const GifFrame& frame) {
  if (frame.width == 0) return;
  for (int y = 0; y < frame.height; ++y) {
    std::memset(PixelAt(composed_, frame.left, frame.top + y), 0,
                static_cast<size_t>(frame.width) * 4);
  }
}

void ucAniGIF::Mirror() {
  if (p_.mirrored == 0 || composed_.bytes.empty()) return;
  mirrored_ = composed_;
  for (int y = 0; y < composed_.height; ++y) {
    const int from_y = p_.mirrored & 2 ? composed_.height - 1 - y : y;
    for (int x = 0; x < composed_.width; ++x) {
      const int from_x = p_.mirrored & 1 ? composed_.width - 1 - x : x;
      std::memcpy(PixelAt(mirrored_, x, y), PixelAt(composed_, from_x, from_y), 4);
    }
  }
}

void ucAniGIF::Paint(Canvas& canvas) const {
  if (picture().bytes.empty()) return;
  const auto image_width = static_cast<float>(gif_.width);
  const auto image_height = static_cast<float>(gif_.height);
  float across = 1;
  float down = 1;
  if (p_.stretch != 0) {
    across = place().width / image_width;
    down = place().height / image_height;
    if (p_.stretch >= 2) across = down = std::min(across, down);
    if (p_.stretch == 3) across = down = std::min(across, 1.0F);
  }
  Rect shown{static_cast<float>(p_.offset_x), static_cast<float>(p_.offset_y), image_width * across,
             image_height * down};
  // By its ratio it stands in the middle of what it leaves.
  if (p_.stretch >= 2) {
    shown = shown.MovedBy((place().width - shown.width) / 2, (place().height - shown.height) / 2);
  }
  canvas.DrawPixels(picture(), shown);
}

}  // namespace sonotik
