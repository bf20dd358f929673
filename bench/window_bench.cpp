// What a screen of a delivered skin costs to paint, on a picture in memory of the screen's size.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPainter>
#include <clocale>
#include <filesystem>

#include "catalogue_maker.h"
#include "desktop/form_window.h"
#include "desktop/painter_canvas.h"
#include "desktop/qt_machine.h"
#include "shell/jukebox.h"
#include "skins/cover_animation.h"
#include "support/test_machine.h"

namespace sonotik {
namespace {

constexpr int kCovers = 12;
constexpr int kCoverSide = 1000;
constexpr int kWidth = 1920, kHeight = 1080;

// A jukebox in Neon, whose twelve albums have covers as a camera would make them.
struct NeonBench {
  NeonBench() {
    MakeJukebox(folder, kCovers, 1, 0);
    std::filesystem::copy(SONOTIK_SKINS, folder.native() / "skins",
                          std::filesystem::copy_options::recursive);
    for (int i = 0; i < kCovers; ++i) WriteCover(i);
    jukebox.Start();
    jukebox.house.settings.current_skin = "Neon";
    jukebox.house.settings.cover_layout = 0;
    form().form.pictures = &pictures;
    jukebox.house.skins.ApplySkin();
    LoadCoverLayout(folder.path() + "\\skins\\Neon\\12 covers.cov", jukebox.house.cover_layout,
                    form().album);
    jukebox.house.pages.read_albums3();
  }
  ~NeonBench() { form().form.pictures = nullptr; }

  Form1& form() { return jukebox.house.form1; }
  void Paint() {
    QPainter painter(&screen);
    PainterCanvas canvas(painter, pictures, {0, 0, kWidth, kHeight}, 1);
    form().form.Paint(canvas);
  }
  QString CoverPath(int i) const {
    return QString::fromStdString(
        (folder.native() / "music" / std::to_string(i) / "Cover.jpg").string());
  }

  void WriteCover(int i) const {
    std::filesystem::create_directories(folder.native() / "music" / std::to_string(i));
    QImage image(kCoverSide, kCoverSide, QImage::Format_RGB32);
    uint32_t noise = 12345U + static_cast<uint32_t>(i);
    for (int y = 0; y < kCoverSide; ++y) {
      for (int x = 0; x < kCoverSide; ++x) {
        noise = noise * 1664525U + 1013904223U;
        const int grain = static_cast<int>(noise >> 28);
        image.setPixel(x, y,
                       qRgb((x / 4 + grain) & 255, (y / 4 + grain) & 255,
                            ((x + y) / 8 + 20 * i + grain) & 255));
      }
    }
    image.save(CoverPath(i), "JPEG", 85);
  }

  TempFolder folder;
  TestMachine machine;
  PictureCache pictures;
  QImage screen{kWidth, kHeight, QImage::Format_RGB32};
  Jukebox jukebox{folder.path(), machine.machine};
};

void ApplySkinAndPaintItsPicturesAnew(benchmark::State& state) {
  NeonBench bench;
  for (auto _ : state) {
    bench.pictures = PictureCache();
    bench.jukebox.house.skins.ApplySkin();
    bench.Paint();
  }
}
BENCHMARK(ApplySkinAndPaintItsPicturesAnew)->Unit(benchmark::kMillisecond);

void PageOfTwelveCoversFirst(benchmark::State& state) {
  NeonBench bench;
  bench.Paint();
  for (auto _ : state) {
    state.PauseTiming();
    for (int i = 0; i < kCovers; ++i) {
      // Another time of change: as if never seen.
      std::filesystem::last_write_time(bench.CoverPath(i).toStdString(),
                                       std::filesystem::file_time_type::clock::now());
    }
    state.ResumeTiming();
    bench.Paint();
  }
}
BENCHMARK(PageOfTwelveCoversFirst)->Unit(benchmark::kMillisecond);

void PageOfTwelveCoversAgain(benchmark::State& state) {
  NeonBench bench;
  bench.Paint();
  for (auto _ : state) bench.Paint();
}
BENCHMARK(PageOfTwelveCoversAgain)->Unit(benchmark::kMillisecond);

// The plain way: each picture decoded whole and then made small.
void TwelveCoversDecodedWhole(benchmark::State& state) {
  NeonBench bench;
  const Rect place = bench.form().album.covers[0].cover.place();
  for (auto _ : state) {
    QPainter painter(&bench.screen);
    for (int i = 0; i < kCovers; ++i) {
      const QImage image(bench.CoverPath(i));
      painter.drawImage(10 * i, 0,
                        image.scaled(static_cast<int>(place.width), static_cast<int>(place.height),
                                     Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
  }
}
BENCHMARK(TwelveCoversDecodedWhole)->Unit(benchmark::kMillisecond);

// From one screen to another and back, each seen before.
void ScreenChange(benchmark::State& state) {
  NeonBench bench;
  const auto to = static_cast<size_t>(state.range(0));
  const auto show = [&](size_t index) {
    bench.form().HideAllScreens();
    bench.form().ShowScreen(index);
    bench.Paint();
  };
  show(to);
  show(screen::kAlbum);
  bool there = false;
  for (auto _ : state) {
    show(there ? screen::kAlbum : to);
    there = !there;
  }
}
BENCHMARK(ScreenChange)
    ->ArgName("screen")
    ->Arg(screen::kTrackList)
    ->Arg(screen::kQueue)
    ->Arg(screen::kSearch)
    ->Arg(screen::kDecades)
    ->Unit(benchmark::kMillisecond);

// A picture over the whole window, revealed in 33 steps: each paints what it newly shows.
void AnimationStep(benchmark::State& state) {
  NeonBench bench;
  FormWindow window(bench.form().form, bench.pictures);
  Panel& picture = bench.form().attract_picture;
  picture.SetPicture(bench.folder.path() + "\\music\\0\\Cover.jpg");
  picture.BringToFront();
  picture.SetVisible(true);
  window.resize(kWidth, kHeight);
  window.show();
  const int style = static_cast<int>(state.range(0));
  int step = 0;
  for (auto _ : state) {
    if (style == kRandomStyle) {
      picture.Invalidate();
    } else {
      picture.SetRegion(RevealedRegion(style, step, kCoverAnimationSteps, kWidth, kHeight));
    }
    step = (step + 1) % (kCoverAnimationSteps + 1);
    const int before = window.paints();
    while (window.paints() == before) QCoreApplication::processEvents();
  }
}
BENCHMARK(AnimationStep)
    ->ArgName("style")
    ->Arg(0)
    ->Arg(10)
    ->Arg(12)
    ->Arg(kRandomStyle)  // none: the whole panel each time
    ->Unit(benchmark::kMillisecond);

// The floor: as many pixels as the window has, painted once from a picture.
void OnePictureOfTheScreen(benchmark::State& state) {
  QImage screen(kWidth, kHeight, QImage::Format_RGB32);
  QImage back(kWidth, kHeight, QImage::Format_RGB32);
  back.fill(Qt::darkBlue);
  for (auto _ : state) {
    QPainter painter(&screen);
    painter.drawImage(0, 0, back);
  }
}
BENCHMARK(OnePictureOfTheScreen)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sonotik

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
