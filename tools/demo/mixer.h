// Puts notes together to a stereo recording: panning, echo, room, and the level at the end.
#ifndef SONOTIK_TOOLS_DEMO_MIXER_H_
#define SONOTIK_TOOLS_DEMO_MIXER_H_

#include <cstdint>
#include <span>
#include <vector>

namespace sonotik::demo {

// Interleaved left and right, 16 bit, at kSampleRate.
using Recording = std::vector<int16_t>;

class Mixer {
 public:
  explicit Mixer(double seconds);

  // `pan` goes from -1 (left) to 1 (right); `send` is the share that goes to the room and the echo.
  void Add(std::span<const float> note, double start, double gain, double pan, double send);

  // `room` 0 to 1 is how loud the reverberation is; `echo` the echo's delay in seconds, 0 for none.
  // The peak comes to -1 dBFS, and the last moment fades to silence.
  Recording Finish(double room, double echo);

 private:
  void AddRoom(double room);
  void AddEcho(double delay);

  std::vector<float> left_, right_, send_;
};

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_MIXER_H_
