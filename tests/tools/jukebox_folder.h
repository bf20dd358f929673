// A jukebox's folder and a tree of media in a temporary place, and a catalogue builder let loose on
// them.
#ifndef SONOTIK_TESTS_TOOLS_JUKEBOX_FOLDER_H_
#define SONOTIK_TESTS_TOOLS_JUKEBOX_FOLDER_H_

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "files/paths.h"
#include "support/temp_folder.h"
#include "tools/config/catalogue_builder.h"
#include "tools/config/catalogue_files.h"

namespace sonotik {

class JukeboxFolder : public testing::Test {
 protected:
  JukeboxFolder() { std::filesystem::create_directories(root_ / "app"); }

  void Put(const std::string& name, std::string_view bytes) { temp_.Write(name, bytes); }
  std::string BytesIn(const std::string& name) const { return temp_.Read(name); }
  bool Exists(const std::string& name) const { return temp_.Has(name); }

  // A second of sound (and of pictures, in a film) with these tags: "artist=Ada", ...
  void PutMedia(const std::string& name, const std::vector<std::string>& tags = {},
                const std::string& options = "-id3v2_version 3") {
    const std::filesystem::path file = root_ / name;
    std::filesystem::create_directories(file.parent_path());
    const bool film = KindOf(name) == "MPG" || KindOf(name) == "AVI";
    std::string command = "ffmpeg -v error -nostdin -y -f lavfi -i sine=d=1 ";
    if (film) command += "-f lavfi -i testsrc=d=1:s=32x32:r=25 ";
    for (const std::string& tag : tags) command += "-metadata '" + tag + "' ";
    command += options + " '" + file.string() + "'";
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
  }

  BuildRequest Request(CatalogueKind kind, const std::vector<std::string>& folders) const {
    BuildRequest request;
    request.app = root_ / "app";
    request.today = today_;
    for (const std::string& folder : folders) request.folders[kind].push_back(root_ / folder);
    return request;
  }
  BuildReport Build(CatalogueKind kind, const std::vector<std::string>& folders) const {
    return BuildCatalogue(Request(kind, folders), {});
  }

  std::string App() const { return ProgramPath(root_ / "app"); }

  // "artist / title / album" of each track, in the file's order.
  std::vector<std::string> Tracks(CatalogueKind kind = CatalogueKind::kAudio) const {
    return Texts(ReadCatalogue(App(), kind).tracks,
                 {TrackRecord::kArtist, TrackRecord::kTrack, TrackRecord::kAlbum});
  }
  // "artist / album / date" of each album of a covers index in the jukebox's folder.
  std::vector<std::string> Albums(const std::string& name) const {
    return Texts(ReadAlbums(App() + "\\" + name),
                 {AlbumRecord::kArtist, AlbumRecord::kAlbum, AlbumRecord::kDate});
  }
  template <typename Record>
  static std::vector<std::string> Texts(const std::vector<Record>& records,
                                        const std::vector<RecordField>& fields) {
    std::vector<std::string> texts;
    for (const Record& record : records) {
      std::string text;
      for (const RecordField& field : fields) {
        text += (text.empty() ? "" : " / ") + record.Trimmed(field);
      }
      texts.push_back(text);
    }
    return texts;
  }

  TempFolder temp_;
  const std::filesystem::path root_ = temp_.native();
  Date today_{2024, 3, 1};
};

}  // namespace sonotik

#endif  // SONOTIK_TESTS_TOOLS_JUKEBOX_FOLDER_H_
