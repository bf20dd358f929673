// What it costs to put a skin on.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "catalogue_maker.h"
#include "files/file_list.h"
#include "files/files.h"
#include "shell/jukebox.h"
#include "support/skin_files.h"
#include "support/test_machine.h"

namespace sonotik {
namespace {

// A jukebox that has started with one of the delivered skins.
struct SkinBench {
  explicit SkinBench(const std::string& skin) {
    MakeJukebox(folder, 12, 1, 0);
    std::filesystem::copy(SONOTIK_SKINS, folder.native() / "skins",
                          std::filesystem::copy_options::recursive);
    jukebox.Start();
    jukebox.house.settings.current_skin = skin;
  }
  // The layouts say the same, but name no picture, and none has a fixed name.
  void TakePicturesAway(const std::string& skin) {
    const std::string path = "skins/" + skin + "/";
    std::filesystem::remove_all(folder.native() / (path + "images"));
    std::vector<const LayoutFile*> files = {&SkinFile()};
    for (const LayoutFile& file : LayoutFiles()) files.push_back(&file);
    for (const LayoutFile* file : files) {
      std::istringstream lines(folder.Read(path + file->name));
      std::string line, head, text;
      std::getline(lines, head);
      lines.seekg(0);
      for (const LayoutField& field :
           FieldsOf(*file, head.substr(0, head.find_last_not_of('\r') + 1))) {
        std::getline(lines, line);
        text += field.kind == FieldKind::kPicture ? "\r\n" : line + "\n";
      }
      folder.Write(path + file->name, text);
    }
  }

  TempFolder folder;
  TestMachine machine;
  Jukebox jukebox{folder.path(), machine.machine};
};

void ApplySkinWithoutPictures(benchmark::State& state) {
  SkinBench bench("Neon");
  bench.TakePicturesAway("Neon");
  for (auto _ : state) bench.jukebox.house.skins.ApplySkin();
}
BENCHMARK(ApplySkinWithoutPictures)->Unit(benchmark::kMicrosecond);

// Their names only: a window decodes them when it paints.
void ApplySkinWithItsPictures(benchmark::State& state) {
  SkinBench bench("Neon");
  for (auto _ : state) bench.jukebox.house.skins.ApplySkin();
}
BENCHMARK(ApplySkinWithItsPictures)->Unit(benchmark::kMicrosecond);

// The floor: the bytes of the same files.
void ReadSkinBytesOnly(benchmark::State& state) {
  SkinBench bench("Neon");
  bench.TakePicturesAway("Neon");
  FileList files("*.ini");
  files.SetFolder(bench.folder.path() + "\\skins\\Neon");
  for (auto _ : state) {
    for (int i = 0; i < files.count(); ++i)
      benchmark::DoNotOptimize(ReadWholeFile(files.PathAt(i)));
  }
}
BENCHMARK(ReadSkinBytesOnly)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace sonotik
