// sonotik-config: builds the jukebox's catalogue, from the command line or, as a jukebox starts it,
// from a window.
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "files/program_folder.h"
#include "platform/clock.h"
#include "tools/config/catalogue_builder.h"
#include "tools/config/command_line.h"
#include "tools/config/names.h"
#include "tools/config/report.h"
#include "tools/config/window.h"

namespace {

using sonotik::BuildHooks;
using sonotik::BuildProgress;
using sonotik::BuildReport;

std::atomic<bool> stop_asked{false};
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler writes it");

class SystemClock : public sonotik::Clock {
 public:
  sonotik::DateTime Now() const override {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return {{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday},
            local.tm_hour,
            local.tm_min,
            local.tm_sec};
  }
  int64_t Milliseconds() const override {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
  }
};

int Run(sonotik::CommandLine& line) {
  const SystemClock clock;
  line.request.today = clock.Now().date;
  sonotik::ProgressLine progress_line(std::cout, ::isatty(STDOUT_FILENO) == 1, clock);
  BuildHooks hooks;
  hooks.progress = [&](const BuildProgress& progress) { progress_line.Show(progress); };
  hooks.stop_asked = [] { return stop_asked.load(); };
  try {
    const BuildReport report = sonotik::BuildCatalogue(line.request, hooks);
    progress_line.End();
    std::cout << sonotik::SummaryText(report) << std::flush;
    if (report.stopped) return 130;
    return report.AnyWritten() ? 0 : 1;
  } catch (const std::exception& failure) {
    progress_line.End();
    std::cerr << "sonotik-config: " << sonotik::CleanText(failure.what()) << "\n";
    return 1;
  }
}

}  // namespace

int main(int argc, char** argv) {
  // The name by which a jukebox calls it; the jukebox is the folder where it stands.
  if (argc == 1 && std::filesystem::path(argv[0]).filename() == "Config 3.exe") {
    return sonotik::RunWindow(argc, argv, sonotik::ProgramFolder(argv[0], std::getenv("PATH")));
  }
  sonotik::CommandLine line =
      sonotik::ParseCommandLine(std::vector<std::string>(argv + 1, argv + argc));
  if (line.help) {
    std::cout << sonotik::kUsage;
    return 0;
  }
  if (!line.error.empty()) {
    std::cerr << "sonotik-config: " << sonotik::CleanText(line.error) << "\n\n" << sonotik::kUsage;
    return 2;
  }
  struct sigaction action = {};
  action.sa_handler = [](int) { stop_asked = true; };
  action.sa_flags = SA_RESTART;
  ::sigaction(SIGINT, &action, nullptr);
  ::sigaction(SIGTERM, &action, nullptr);
  // A pipe whose reader has gone costs the report, not the catalogue.
  std::signal(SIGPIPE, SIG_IGN);
  return Run(line);
}
