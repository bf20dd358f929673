// The system's own animation: a GIF that plays in a rectangle.
#ifndef SONOTIK_WIDGETS_UCANIGIF_H_
#define SONOTIK_WIDGETS_UCANIGIF_H_

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/timers.h"
#include "widgets/control.h"
#include "widgets/gif_decoder.h"
#include "widgets/property_bag.h"

namespace sonotik {

struct AniGifProperties {
  std::string gif;  // the file's bytes
  int min_frame_delay = 50;
  int stretch = 1;
  int delay_animation = 1;
  int mirrored = 0;
  bool enabled = true;
  std::string mouse_icon;
  int mouse_pointer = 0;
  int offset_x = 0;
  int offset_y = 0;
  int loops = 0;
};

inline constexpr PropertyRow<AniGifProperties> kAniGifProperties[] = {
    {"GIF", &AniGifProperties::gif},
    {"Delay", &AniGifProperties::min_frame_delay},
    {"Stretch", &AniGifProperties::stretch, 0, 3},
    {"DelayLoad", &AniGifProperties::delay_animation, 0, 3},
    {"Mirror", &AniGifProperties::mirrored, 0, 3},
    {"Enabled", &AniGifProperties::enabled},
    {"MouseIcon", &AniGifProperties::mouse_icon},
    {"MousePointer", &AniGifProperties::mouse_pointer},
    {"OffsetX", &AniGifProperties::offset_x},
    {"OffsetY", &AniGifProperties::offset_y},
    {"Loops", &AniGifProperties::loops},
};

enum class GifAction { kStop, kPlay, kPause, kNext, kRestart };

class ucAniGIF : public Control {
 public:
  // Without timers it shows its first frame and never moves.
  void SetTimers(Timers& timers);

  // False, and the control is empty, for what is no GIF. It shows its first frame and stands.
  bool LoadAnimatedGIF_File(const std::string& path);
  bool LoadAnimatedGIF_Array(std::string bytes);
  // Through remote_loader; what comes of it is told by the two events.
  void LoadAnimatedGIF_Remote(const std::string& url);
  // Reads a file from elsewhere and hands over its bytes, or nothing.
  using Received = std::function<void(std::optional<std::string> bytes)>;
  std::function<void(const std::string& url, Received received)> remote_loader;

  // 0 to 4 as in GifAction; others and those of an empty control do nothing.
  void SetAction(int action);
  void SetAction(GifAction action) { SetAction(static_cast<int>(action)); }
  bool playing() const { return state_ == State::kPlaying; }
  bool paused() const { return state_ == State::kPaused; }

  int frame_count() const { return static_cast<int>(gif_.frames.size()); }
  int frame() const { return frame_; }
  int actual_width() const { return gif_.width; }
  int actual_height() const { return gif_.height; }
  // 0 if it plays for ever.
  int loops_remaining() const { return p_.loops == 0 ? 0 : p_.loops - loops_done_; }

  int loops() const { return p_.loops; }
  // How often it plays, whatever the sign; 0 is for ever. A file brings its own.
  void SetLoops(int loops);
  int min_frame_delay() const { return p_.min_frame_delay; }
  void SetMinFrameDelay(int ms);
  int stretch() const { return p_.stretch; }
  // 0 in its own size, 1 filling the control, 2 within it by its ratio, 3 only made smaller.
  void SetStretch(int stretch);
  int mirrored() const { return p_.mirrored; }
  // 0 not, 1 left and right, 2 top and bottom, 3 both.
  void SetMirrored(int mirrored);
  // Kept and stored; nothing looks at it.
  int delay_animation() const { return p_.delay_animation; }
  void SetDelayAnimation(int delay);
  bool enabled() const { return p_.enabled; }
  void SetEnabled(bool enabled) { p_.enabled = enabled; }
  // The picture shows where the pointer is MouseShape::kIcon.
  const std::string& mouse_icon() const { return p_.mouse_icon; }
  void SetMouseIcon(std::string path) { p_.mouse_icon = std::move(path); }
  int mouse_pointer() const { return p_.mouse_pointer; }
  void SetMousePointer(int pointer) { p_.mouse_pointer = pointer; }
  int offset_x() const { return p_.offset_x; }
  int offset_y() const { return p_.offset_y; }
  void SetOffset(int x, int y);

  // Table 0 is the global one. A table that isn't there is empty and can't be set.
  std::vector<Color> GetPalette(size_t table) const;
  void SetPalette(size_t table, std::vector<Color> colors);
  void CacheColorTables() { cached_tables_ = gif_.color_tables; }
  void RestoreColorTables();

  void ReadFrom(const PropertyBag& bag);
  void WriteTo(PropertyBag& bag) const { WriteProperties(kAniGifProperties, p_, bag); }
  bool design_mode = false;

  std::function<void(int frame)> on_frame_changed;
  std::function<void()> on_loops_ended;
  std::function<void()> on_remote_load_complete;
  std::function<void()> on_remote_load_failure;

  // The present frame as it is painted.
  const PixelSurface& picture() const { return p_.mirrored != 0 ? mirrored_ : composed_; }

  bool TakesMouse() const override { return p_.enabled && Control::TakesMouse(); }
  MouseShape mouse_shape() const override { return {p_.mouse_pointer, p_.mouse_icon}; }
  void ShowingChanged() override;
  void Paint(Canvas& canvas) const override;

 private:
  enum class State { kStopped, kPlaying, kPaused };

  void Tick();
  void Stop();
  void Play();
  void SwitchTimer(bool on);
  void ShowFrame(int frame);
  void Recompose();
  void AddFrame(size_t index);
  const std::vector<uint8_t>& Decoded(size_t index);
  void Clear(const GifFrame& frame);
  void Mirror();

  AniGifProperties p_;
  GifFile gif_;
  std::vector<std::vector<Color>> cached_tables_;
  State state_ = State::kStopped;
  std::optional<Timer> timer_;
  int frame_ = 0;  // from 1
  int loops_done_ = 0;
  // All frames up to `composed_frame_` on each other, and what a frame that goes again has hidden.
  PixelSurface composed_;
  size_t composed_frame_ = 0;
  PixelSurface hidden_;
  PixelSurface mirrored_;
  std::vector<std::vector<uint8_t>> decoded_;
  size_t decoded_bytes_ = 0;
  std::vector<uint8_t> unkept_;
  std::shared_ptr<int> alive_ = std::make_shared<int>(0);
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_UCANIGIF_H_
