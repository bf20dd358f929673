// What the media engine needs of a player: the handful of calls that it makes of one open file.
#ifndef SONOTIK_PLATFORM_PLAYER_H_
#define SONOTIK_PLATFORM_PLAYER_H_

#include <cstdint>
#include <optional>
#include <string>

namespace sonotik {

// Where the picture goes: a control's inner size in pixels. The picture is drawn by whoever paints
// that control; a player without pictures ignores it.
enum class VideoHost { kNone, kMainWindow, kSecondMonitor };

struct VideoPlacement {
  VideoHost host = VideoHost::kNone;
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const VideoPlacement&) const = default;
};

struct VideoSize {
  int width = 0;
  int height = 0;
};

// Every operation may fail; a failure is told by false or by no value, never by an exception. A
// program path with "\" names the file.
//
// At the end of a file Position() reports the whole Length(), whatever the last frame says: the end
// of a track is found by comparing the two.
class Player {
 public:
  virtual ~Player() = default;

  // Opens a file, paused at its start; the file before is gone by then, also if this one fails.
  virtual bool RenderFile(const std::string& path) = 0;
  virtual bool Run() = 0;
  virtual bool Pause() = 0;
  // Halts; the file stays open.
  virtual bool Stop() = 0;
  // Lets go of the file.
  virtual void Close() = 0;

  // Seconds.
  virtual std::optional<double> Position() = 0;
  virtual bool SetPosition(double seconds) = 0;
  virtual std::optional<double> Length() = 0;
  // Playing speed, 1.0 as recorded.
  virtual bool SetRate(double rate) = 0;
  virtual std::optional<double> Rate() = 0;

  // Hundredths of a decibel: 0 the loudest, -10000 silence.
  virtual bool SetVolume(int hundredths) = 0;
  // Hundredths of a decibel from -10000 (left only) over 0 to 10000 (right only).
  virtual bool SetBalance(int hundredths) = 0;

  // The picture's own size; nothing for a file that has none.
  virtual std::optional<VideoSize> NativeSize() = 0;
  // Fails for a file without a picture.
  virtual bool PlaceVideo(const VideoPlacement& placement) = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_PLAYER_H_
