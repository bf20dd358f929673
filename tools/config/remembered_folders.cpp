#include "tools/config/remembered_folders.h"

#include "files/files.h"
#include "files/line_format.h"
#include "files/paths.h"
#include "files/runtime_failure.h"
#include "text/numbers.h"

namespace sonotik {
namespace {

constexpr CatalogueKind kKinds[] = {CatalogueKind::kAudio, CatalogueKind::kVideo,
                                    CatalogueKind::kKaraoke};

std::string FileOf(const std::filesystem::path& app) { return ProgramPath(app / "config.dat"); }

}  // namespace

KindFolders LoadFolders(const std::filesystem::path& app) {
  KindFolders folders;
  try {
    LineReader reader(ReadWholeFile(FileOf(app)));
    for (const CatalogueKind kind : kKinds) {
      const double count = NumberOrZero(reader.Next());
      for (double i = 0; i < count; ++i) folders[kind].emplace_back(reader.Next());
    }
  } catch (const RuntimeFailure&) {
    // A first visit, or a file cut short: the operator chooses the rest anew.
  }
  return folders;
}

void SaveFolders(const std::filesystem::path& app, const KindFolders& folders) {
  LineWriter writer;
  for (const CatalogueKind kind : kKinds) {
    const auto found = folders.find(kind);
    writer.Number(static_cast<long>(found == folders.end() ? 0 : found->second.size()));
    if (found == folders.end()) continue;
    for (const std::filesystem::path& folder : found->second) writer.Text(folder.string());
  }
  ReplaceFile(FileOf(app), writer.text());
}

}  // namespace sonotik
