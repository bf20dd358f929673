// The player of the media engine, on libmpv: sound through ALSA, pictures into memory.
#ifndef SONOTIK_DESKTOP_MPV_PLAYER_H_
#define SONOTIK_DESKTOP_MPV_PLAYER_H_

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/player.h"
#include "widgets/canvas.h"

struct mpv_handle;

namespace sonotik {

class MpvFrames;

// libmpv's volume for hundredths of a decibel. Its scale is cubic: 100 is full, 50 is -18.06 dB.
double VolumePercent(int hundredths);

// A karaoke track is named by its CDG file and plays the MP3 of the same name with it: the sound
// gives the length, and a CDG that can't be read leaves the sound. Without an MP3 the CDG plays
// alone. Only the file asked for is opened: playlists and files that name others are refused.
//
// All calls belong on the interface thread. Opening waits for libmpv at most five seconds, a seek
// one (opening a karaoke track seeks too); the others answer at once.
class MpvPlayer final : public Player {
 public:
  // `post` may be called on any thread and runs a closure on the interface thread, later. Throws
  // RuntimeFailure where libmpv can't be started. Sets the numbers' locale to "C", which libmpv
  // insists on; the toolkit must not set another one afterwards.
  explicit MpvPlayer(std::function<void(std::function<void()>)> post);
  ~MpvPlayer() override;

  bool RenderFile(const std::string& path) override;
  bool Run() override;
  bool Pause() override;
  bool Stop() override;
  void Close() override;

  std::optional<double> Position() override;
  bool SetPosition(double seconds) override;
  std::optional<double> Length() override;
  bool SetRate(double rate) override;
  std::optional<double> Rate() override;

  bool SetVolume(int hundredths) override;
  bool SetBalance(int hundredths) override;

  std::optional<VideoSize> NativeSize() override;
  bool PlaceVideo(const VideoPlacement& placement) override;

  // The picture shown last, in the size of its placement; no bytes while there is none. On the
  // second monitor it stays behind its file's end, until another file has a picture.
  const PixelSurface& pixels() const { return pixels_; }
  const VideoPlacement& placement() const { return placement_; }
  // On the interface thread, after pixels() or the host has changed.
  std::function<void()> on_frame;

 private:
  struct Terminate {
    void operator()(mpv_handle* player) const;
  };

  bool Load(const std::string& native);
  bool AtEnd();
  void ShowFrame();
  // The file goes.
  void LeavePicture();
  void ClearPicture();

  std::unique_ptr<mpv_handle, Terminate> mpv_;
  std::unique_ptr<MpvFrames> frames_;
  // Outlived by closures that are still to run: they look here whether there is a player.
  std::shared_ptr<MpvPlayer*> self_;
  PixelSurface pixels_;
  VideoPlacement placement_;
  bool new_file_ = false;  // its picture has had no place yet

  bool open_ = false;
  bool running_ = false;  // as asked for: libmpv also pauses of itself, at the end
  bool ended_ = false;
  double position_ = 0;           // known last
  std::optional<double> length_;  // known last
  int balance_ = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_MPV_PLAYER_H_
