#include "tools/config/running_time.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include <cerrno>
#include <string_view>

#include "text/numbers.h"

extern char** environ;

namespace sonotik {
namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr size_t kLongestAnswer = 64;
constexpr std::chrono::milliseconds kStopCheck(100);

// Gathers what comes out of the pipe until its end, the end of the time, or a stop; nothing if it
// was not a whole answer.
std::optional<std::string> ReadAnswer(int fd, SteadyClock::time_point end,
                                      const std::function<bool()>& stop_asked) {
  std::string answer;
  while (answer.size() <= kLongestAnswer && !stop_asked()) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(end - SteadyClock::now());
    if (left.count() <= 0) return {};
    pollfd ready{fd, POLLIN, 0};
    if (::poll(&ready, 1, static_cast<int>(std::min(left, kStopCheck).count())) <= 0) continue;
    char block[kLongestAnswer];
    const ssize_t count = ::read(fd, block, sizeof block);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return {};
    if (count == 0) return answer;
    answer.append(block, static_cast<size_t>(count));
  }
  return {};
}

}  // namespace

std::optional<double> RunningTimeProbe::Seconds(const std::filesystem::path& file,
                                                const std::function<bool()>& stop_asked) {
  int pipe[2];
  if (missing_ || ::pipe2(pipe, O_CLOEXEC) != 0) return {};

  // A media file may be a list that names others: only files are followed, never the network.
  std::string words[] = {
      program_,          "-v",  "quiet",   "-protocol_whitelist",  "file", "-show_entries",
      "format=duration", "-of", "csv=p=0", "file:" + file.string()};
  char* arguments[std::size(words) + 1] = {};
  for (size_t i = 0; i < std::size(words); ++i) arguments[i] = words[i].data();
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
  pid_t child = 0;
  const int error = ::posix_spawnp(&child, program_.c_str(), &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  ::close(pipe[1]);

  std::optional<std::string> answer;
  if (error == 0) {
    answer = ReadAnswer(pipe[0], SteadyClock::now() + limit_, stop_asked);
    // It may hang, or write without end; a program that has ended doesn't mind.
    ::kill(child, SIGKILL);
    while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) continue;
  } else {
    // A folder on the search path that may not be entered hides that the program isn't there.
    missing_ = error == ENOENT || error == EACCES;
  }
  ::close(pipe[0]);

  if (!answer) return {};
  while (!answer->empty() && (answer->back() == '\n' || answer->back() == '\r')) answer->pop_back();
  if (answer->empty()) return {};
  return ParseNumber(*answer);
}

}  // namespace sonotik
