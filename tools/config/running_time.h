// The running time of a media file, asked of the ffprobe program.
#ifndef SONOTIK_TOOLS_CONFIG_RUNNING_TIME_H_
#define SONOTIK_TOOLS_CONFIG_RUNNING_TIME_H_

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace sonotik {

class RunningTimeProbe {
 public:
  // A program that hasn't answered within the limit is ended.
  explicit RunningTimeProbe(std::string program = "ffprobe",
                            std::chrono::milliseconds limit = std::chrono::seconds(10))
      : program_(std::move(program)), limit_(limit) {}

  // Seconds; nothing if the program doesn't know, takes too long or isn't there, or if `stop_asked`
  // became true meanwhile.
  std::optional<double> Seconds(const std::filesystem::path& file,
                                const std::function<bool()>& stop_asked);

  // True once the program turned out not to be installed; it isn't asked again then.
  bool missing() const { return missing_; }

 private:
  std::string program_;
  std::chrono::milliseconds limit_;
  bool missing_ = false;
};

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_RUNNING_TIME_H_
