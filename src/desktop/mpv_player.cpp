#include "desktop/mpv_player.h"

#include <mpv/client.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <system_error>
#include <utility>
#include <vector>

#include "desktop/mpv_frames.h"
#include "files/paths.h"
#include "files/runtime_failure.h"

namespace sonotik {
namespace fs = std::filesystem;
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kLongestOpen(5);
constexpr std::chrono::seconds kLongestSeek(1);
constexpr int kSilence = -10000;
// A picture beyond any screen comes from a broken skin and would take the memory.
constexpr int kLongestSide = 8192;

constexpr struct {
  const char* name;
  const char* value;
} kOptions[] = {
    // Nothing of the user's, nothing beside the file, nothing drawn over it.
    {"config", "no"},
    {"terminal", "no"},
    {"load-scripts", "no"},
    {"load-auto-profiles", "no"},
    {"load-osd-console", "no"},
    {"load-stats-overlay", "no"},
    {"ytdl", "no"},
    {"osc", "no"},
    {"osd-level", "0"},
    {"input-default-bindings", "no"},
    {"resume-playback", "no"},
    {"audio-display", "no"},
    {"cover-art-auto", "no"},
    {"sub-auto", "no"},
    {"sid", "no"},
    // No playlist, and no way for libavformat to open what a file names.
    {"access-references", "no"},
    {"demuxer-lavf-o", "protocol_whitelist=none"},
    {"idle", "yes"},
    {"keep-open", "yes"},
    {"pause", "yes"},
    // Without a card the null output keeps the time; with none at all the position is no number.
    {"ao", "alsa,null"},
    {"audio-format", "float"},
    {"vo", "libmpv"},
    // The placement decides the ratio.
    {"keepaspect", "no"},
    // Rendering a turned picture into memory ends the process by an assertion (libmpv 0.35).
    {"video-rotate", "no"},
};

// A CDG has up to 300 pictures a second, none where nothing changes, and its first one late. An
// even rate from 0 on keeps the work small, the position moving and the sound's first seconds,
// which libmpv would drop to meet a late picture.
constexpr char kKaraokeFilter[] = "lavfi=[fps=30:start_time=0:eof_action=pass]";

bool Command(mpv_handle* mpv, std::initializer_list<const char*> words) {
  std::vector<const char*> arguments(words);
  arguments.push_back(nullptr);
  return mpv_command(mpv, arguments.data()) >= 0;
}

bool SetText(mpv_handle* mpv, const char* name, const std::string& value) {
  return mpv_set_property_string(mpv, name, value.c_str()) >= 0;
}

bool SetFlag(mpv_handle* mpv, const char* name, bool value) {
  int flag = value;
  return mpv_set_property(mpv, name, MPV_FORMAT_FLAG, &flag) >= 0;
}

bool SetDouble(mpv_handle* mpv, const char* name, double value) {
  return std::isfinite(value) && mpv_set_property(mpv, name, MPV_FORMAT_DOUBLE, &value) >= 0;
}

std::optional<bool> GetFlag(mpv_handle* mpv, const char* name) {
  int flag = 0;
  if (mpv_get_property(mpv, name, MPV_FORMAT_FLAG, &flag) < 0) return std::nullopt;
  return flag != 0;
}

std::optional<double> GetDouble(mpv_handle* mpv, const char* name) {
  double value = 0;
  if (mpv_get_property(mpv, name, MPV_FORMAT_DOUBLE, &value) < 0) return std::nullopt;
  return value;
}

int GetInt(mpv_handle* mpv, const char* name) {
  int64_t value = 0;
  return mpv_get_property(mpv, name, MPV_FORMAT_INT64, &value) < 0 ? 0 : static_cast<int>(value);
}

// Puts a file in the place of the one before; the number that its events bear, or nothing.
std::optional<int64_t> StartLoading(mpv_handle* mpv, const std::string& native) {
  const char* arguments[] = {"loadfile", native.c_str(), nullptr};
  mpv_node answer;
  if (mpv_command_ret(mpv, arguments, &answer) < 0) return std::nullopt;
  std::optional<int64_t> entry;
  if (answer.format == MPV_FORMAT_NODE_MAP && answer.u.list->num > 0) {
    entry = answer.u.list->values[0].u.int64;
  }
  mpv_free_node_contents(&answer);
  return entry;
}

void DropEvents(mpv_handle* mpv) {
  while (mpv_wait_event(mpv, 0)->event_id != MPV_EVENT_NONE) {
  }
}

// Waits until playback stands at its new place. Events before the one that `begins` belong to what
// was before. False if the file ends first or time runs out.
bool AwaitRestart(mpv_handle* mpv, std::chrono::seconds longest,
                  const std::function<bool(const mpv_event&)>& begins) {
  const auto deadline = Clock::now() + longest;
  for (bool begun = false;;) {
    const double left = std::chrono::duration<double>(deadline - Clock::now()).count();
    if (left <= 0) return false;
    const mpv_event& event = *mpv_wait_event(mpv, left);
    if (!begun) {
      begun = begins(event);
    } else if (event.event_id == MPV_EVENT_END_FILE) {
      return false;
    } else if (event.event_id == MPV_EVENT_PLAYBACK_RESTART) {
      return true;
    }
  }
}

// The machine's full path, so that no name can pass for an option or an address.
std::string FullPath(const std::string& path) {
  std::error_code error;
  const fs::path native = fs::absolute(NativePath(path), error);
  return !error && fs::is_regular_file(native, error) ? native.string() : "";
}

std::string BalanceFilter(int hundredths) {
  char gain[32];
  const auto end = std::to_chars(gain, std::end(gain), std::pow(10, -std::abs(hundredths) / 2000.0),
                                 std::chars_format::fixed, 6);
  const std::string quiet(gain, end.ptr);
  const std::string left = hundredths > 0 ? quiet : "1";
  const std::string right = hundredths < 0 ? quiet : "1";
  return "lavfi=[pan=stereo|FL=" + left + "*FL+" + left + "*FC|FR=" + right + "*FR+" + right +
         "*FC]";
}

}  // namespace

double VolumePercent(int hundredths) {
  if (hundredths <= kSilence) return 0;
  return 100 * std::pow(10, std::min(hundredths, 0) / 6000.0);
}

void MpvPlayer::Terminate::operator()(mpv_handle* player) const { mpv_terminate_destroy(player); }

MpvPlayer::MpvPlayer(std::function<void(std::function<void()>)> post)
    : self_(std::make_shared<MpvPlayer*>(this)) {
  std::setlocale(LC_NUMERIC, "C");
  mpv_.reset(mpv_create());
  if (!mpv_) throw RuntimeFailure("libmpv can't be started");
  for (const auto& [name, value] : kOptions) {
    const int error = mpv_set_option_string(mpv_.get(), name, value);
    if (error < 0) {
      throw RuntimeFailure(std::string("libmpv refuses ") + name + ": " + mpv_error_string(error));
    }
  }
  const int error = mpv_initialize(mpv_.get());
  if (error < 0) {
    throw RuntimeFailure(std::string("libmpv can't be started: ") + mpv_error_string(error));
  }
  const auto show = [player = std::weak_ptr(self_)] {
    if (const auto self = player.lock()) (*self)->ShowFrame();
  };
  frames_ = std::make_unique<MpvFrames>(mpv_.get(), [post = std::move(post), show] { post(show); });
}

MpvPlayer::~MpvPlayer() = default;

bool MpvPlayer::RenderFile(const std::string& path) {
  Close();
  const std::string file = FullPath(path);
  if (file.empty()) return false;
  const bool karaoke = KindOf(path) == "CDG";
  const std::string sound = karaoke ? FullPath(path.substr(0, path.size() - 3) + "mp3") : "";

  new_file_ = true;
  SetFlag(mpv_.get(), "pause", true);
  SetText(mpv_.get(), "vf", karaoke ? kKaraokeFilter : "");
  open_ = Load(sound.empty() ? file : sound);
  if (open_ && !sound.empty() && Command(mpv_.get(), {"video-add", file.c_str(), "select"})) {
    // Adding has used up the first of the sound.
    SetPosition(0);
  }
  return open_;
}

bool MpvPlayer::Load(const std::string& native) {
  DropEvents(mpv_.get());
  const std::optional<int64_t> entry = StartLoading(mpv_.get(), native);
  const auto begins = [entry](const mpv_event& event) {
    return event.event_id == MPV_EVENT_START_FILE &&
           static_cast<mpv_event_start_file*>(event.data)->playlist_entry_id == entry;
  };
  const bool loaded = entry && AwaitRestart(mpv_.get(), kLongestOpen, begins);
  if (!loaded) Command(mpv_.get(), {"stop"});
  return loaded;
}

bool MpvPlayer::Run() {
  if (!open_) return false;
  running_ = true;
  return SetFlag(mpv_.get(), "pause", false);
}

bool MpvPlayer::Pause() {
  if (!open_) return false;
  // An end not yet noticed must not be taken for this pause.
  AtEnd();
  running_ = false;
  return SetFlag(mpv_.get(), "pause", true);
}

bool MpvPlayer::Stop() { return Pause(); }

void MpvPlayer::Close() {
  if (open_) Command(mpv_.get(), {"stop"});
  open_ = running_ = ended_ = false;
  position_ = 0;
  length_.reset();
  LeavePicture();
}

std::optional<double> MpvPlayer::Position() {
  if (!open_) return std::nullopt;
  if (AtEnd()) {
    // A file that doesn't tell its length has one now.
    if (!Length()) length_ = position_;
    return length_;
  }
  if (const auto now = GetDouble(mpv_.get(), "time-pos")) position_ = std::max(0.0, *now);
  return std::min(position_, Length().value_or(position_));
}

bool MpvPlayer::SetPosition(double seconds) {
  // What can't be sought in would never tell that it has.
  if (!open_ || !GetFlag(mpv_.get(), "seekable").value_or(false)) return false;
  DropEvents(mpv_.get());
  if (!SetDouble(mpv_.get(), "time-pos", seconds)) return false;
  ended_ = false;
  position_ = std::max(0.0, seconds);
  // Until the seek has begun, libmpv still tells the old place, and running on it would end at
  // once.
  const auto begins = [](const mpv_event& event) { return event.event_id == MPV_EVENT_SEEK; };
  return AwaitRestart(mpv_.get(), kLongestSeek, begins);
}

std::optional<double> MpvPlayer::Length() {
  if (!open_) return std::nullopt;
  if (const auto length = GetDouble(mpv_.get(), "duration")) length_ = length;
  return length_;
}

bool MpvPlayer::SetRate(double rate) { return open_ && SetDouble(mpv_.get(), "speed", rate); }

std::optional<double> MpvPlayer::Rate() {
  return open_ ? GetDouble(mpv_.get(), "speed") : std::nullopt;
}

bool MpvPlayer::SetVolume(int hundredths) {
  return SetDouble(mpv_.get(), "volume", VolumePercent(hundredths));
}

bool MpvPlayer::SetBalance(int hundredths) {
  if (hundredths == balance_) return true;
  // In the middle there is no filter at all.
  if (!SetText(mpv_.get(), "af", hundredths == 0 ? "" : BalanceFilter(hundredths))) return false;
  balance_ = hundredths;
  return true;
}

std::optional<VideoSize> MpvPlayer::NativeSize() {
  if (!open_) return std::nullopt;
  const VideoSize size{GetInt(mpv_.get(), "dwidth"), GetInt(mpv_.get(), "dheight")};
  if (size.width <= 0 || size.height <= 0) return std::nullopt;
  return size;
}

bool MpvPlayer::PlaceVideo(const VideoPlacement& placement) {
  if (!NativeSize() || placement.width > kLongestSide || placement.height > kLongestSide) {
    return false;
  }
  if (placement.host == VideoHost::kNone || placement.width <= 0 || placement.height <= 0) {
    LeavePicture();
    return true;
  }
  const bool moved = placement.host != placement_.host;
  placement_ = placement;
  frames_->Resize(placement.width, placement.height);
  if (std::exchange(new_file_, false)) {
    ClearPicture();
  } else if (moved && on_frame) {
    on_frame();
  }
  return true;
}

// libmpv's end of a file is reached up to half a second before its last sound is out; it pauses
// only then.
bool MpvPlayer::AtEnd() {
  if (running_ && !ended_) {
    const auto all_read = GetFlag(mpv_.get(), "eof-reached");
    // No answer: playback broke off. That is an end too, or the queue would stand still.
    ended_ = !all_read || (*all_read && GetFlag(mpv_.get(), "pause").value_or(true));
  }
  return ended_;
}

void MpvPlayer::ShowFrame() {
  if (frames_->Take(pixels_) && on_frame) on_frame();
}

void MpvPlayer::LeavePicture() {
  frames_->Resize(0, 0);
  if (placement_.host != VideoHost::kSecondMonitor) ClearPicture();
}

void MpvPlayer::ClearPicture() {
  if (pixels_.bytes.empty()) return;
  pixels_ = PixelSurface{};
  if (on_frame) on_frame();
}

}  // namespace sonotik
