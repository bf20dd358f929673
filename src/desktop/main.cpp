// The jukebox program.
#include <malloc.h>
#include <QApplication>
#include <QScreen>

#include <clocale>
#include <cstdlib>
#include <iostream>

#include "desktop/alsa_errors.h"
#include "desktop/alsa_mixer.h"
#include "desktop/coin_box.h"
#include "desktop/drawn_pixels.h"
#include "desktop/form_window.h"
#include "desktop/logind_session.h"
#include "desktop/mpv_player.h"
#include "desktop/qt_displays.h"
#include "desktop/qt_machine.h"
#include "desktop/serial_line.h"
#include "desktop/signals.h"
#include "desktop/video_hosts.h"
#include "desktop/visualiser_process.h"
#include "desktop/x11_keys.h"
#include "files/paths.h"
#include "files/program_folder.h"
#include "files/runtime_failure.h"
#include "imaging/form_image.h"
#include "shell/jukebox.h"

namespace sonotik {
namespace {

std::string WithoutClosingSeparator(std::string path) {
  while (path.size() > 1 && path.back() == '\\') path.pop_back();
  return path;
}

int RunJukebox(const std::string& app_path) {
  SystemClock clock;
  MersenneTwister random;
  QtEventLoop loop;
  Timers timers(clock);
  X11Keys keys(clock);
  QtDisplays displays;
  QtProcesses processes;
  QtMessageBox messages;
  CoinBox coins;
  LogindSession session(QDBusConnection::systemBus());
  SerialLine sign_port(app_path);
  AlsaMixer mixer;
  VisualiserProcess visualiser(app_path);
  MpvPlayer player([](std::function<void()> call) {
    QMetaObject::invokeMethod(qApp, std::move(call), Qt::QueuedConnection);
  });
  Machine machine{clock,     random,   loop,  timers,  keys,      player, displays,
                  processes, messages, coins, session, sign_port, mixer,  visualiser};
  PictureCache pictures;
  Jukebox jukebox(app_path, machine);
  Assembly& house = jukebox.house;
  const VideoHosts hosts(player, house.form1, house.form3);
  jukebox.chart_ways.form_image = [&] {
    Form2& form2 = house.form2;
    form2.forum_file = form_image(DrawnPixels(form2.forum, pictures), app_path);
  };
  loop.Drive(timers);

  FormWindow window(house.form1.form, pictures);
  FormWindow second(house.form3.form, pictures);
  for (FormWindow* stays : {&window, &second}) {
    stays->may_close = [&jukebox] { return jukebox.MayClose(); };
  }
  FormWindow splash(house.splash.form, pictures);
  splash.setWindowFlags(Qt::SplashScreen);
  splash.move(QGuiApplication::primaryScreen()->geometry().center() - splash.rect().center());
  jukebox.start_up.hooks.show_splash = [&](bool visible) {
    splash.setVisible(visible);
    loop.PumpEvents();
  };
  const EndSignals signals([&jukebox] { jukebox.LeaveInOrder(); });
  displays.SetWindow(&window);
  displays.SetSecondWindow(&second);

  if (jukebox.Start() != StartUpResult::kRunning) return 0;
  window.show();
  return loop.Run();
}

}  // namespace
}  // namespace sonotik

int main(int argc, char** argv) {
  // It runs for years, and pictures come and go: each has pages of its own and gives them back.
  mallopt(M_MMAP_THRESHOLD, 256 << 10);
  mallopt(M_ARENA_MAX, 2);
  // Before the toolkit may change what it was started as.
  const std::filesystem::path folder = sonotik::ProgramFolder(argv[0], std::getenv("PATH"));
  // The windows scale what they show; the toolkit's own scaling would only part their places from
  // the monitors'.
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  // The player writes and reads numbers with a point.
  std::setlocale(LC_NUMERIC, "C");
  sonotik::SilenceAlsaErrors();
  try {
    return sonotik::RunJukebox(sonotik::WithoutClosingSeparator(sonotik::ProgramPath(folder)));
  } catch (const sonotik::RuntimeFailure& failure) {
    std::cerr << "sonotik: " << failure.what() << std::endl;
    return 1;
  }
}
