// From the start of a process to its first painted page, by the size of the catalogue.
//
// The program starts itself anew for each round: with a folder as its argument it is the jukebox up
// to the first painted page, and ends there.
#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <chrono>
#include <clocale>

#include "catalogue_maker.h"
#include "desktop/form_window.h"
#include "desktop/mpv_player.h"
#include "desktop/qt_machine.h"
#include "shell/jukebox.h"
#include "support/test_machine.h"

namespace sonotik {
namespace {

int StartAndPaint(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  MpvPlayer player([](const std::function<void()>&) {});
  SystemClock clock;
  TestMachine rest;
  Timers timers(clock);
  Machine machine{clock,        rest.random,    rest.events,    timers,         rest.keys,
                  player,       rest.displays,  rest.processes, rest.messages,  rest.coins,
                  rest.session, rest.sign_port, rest.mixer,     rest.visualiser};
  PictureCache pictures;
  Jukebox jukebox(ProgramPath(argv[1]), machine);
  FormWindow window(jukebox.house.form1.form, pictures);
  if (jukebox.Start() != StartUpResult::kRunning) return 1;
  window.show();
  while (window.paints() == 0) QCoreApplication::processEvents();
  // The rest of a running program's way out is not part of the figure.
  _exit(0);
}

void FirstPage(benchmark::State& state) {
  const TempFolder folder;
  MakeJukebox(folder, static_cast<int>(state.range(0)), static_cast<int>(state.range(1)),
              static_cast<int>(state.range(2)));
  const std::string path = folder.native().string();
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
      execl("/proc/self/exe", "bench_first_page", path.c_str(), nullptr);
      _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0) state.SkipWithError("the jukebox did not come up");
    state.SetIterationTime(
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
}
BENCHMARK(FirstPage)
    ->ArgNames({"albums", "tracks", "plays"})
    ->Args({10, 30, 0})
    ->Args({32767, 100000, 0})
    ->Args({10, 30, 20000})
    ->Args({32767, 100000, 20000})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(20);

}  // namespace
}  // namespace sonotik

int main(int argc, char** argv) {
  if (argc == 2 && argv[1][0] == '/') return sonotik::StartAndPaint(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
