#include "tools/config/media_scan.h"

#include <gmock/gmock.h>

#include "jukebox_folder.h"

namespace sonotik {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class MediaScanning : public JukeboxFolder {
 protected:
  // "folder/file" of each file, "+" behind one with a sidecar.
  std::vector<std::string> Scan(const std::vector<std::string>& folders,
                                CatalogueKind kind = CatalogueKind::kAudio) {
    std::vector<std::filesystem::path> paths;
    for (const std::string& folder : folders) paths.push_back(root_ / folder);
    scan_ = ScanMedia(paths, kind, [](long) {});
    std::vector<std::string> found;
    for (const MediaFolder& folder : scan_.folders) {
      for (const MediaFile& file : folder.files) {
        found.push_back((folder.path.lexically_relative(root_) / file.name).string() +
                        (file.sidecar.empty() ? "" : "+"));
      }
    }
    return found;
  }

  MediaScan scan_;
};

TEST_F(MediaScanning, FindsMediaOfAllEndingsInTheOrderOfNames) {
  for (const char* name :
       {"m/b/2.MP3", "m/b/10.mpeg", "m/B2/x.m4p", "m/a/.hidden.mp3", "m/.trash/1.mp3",
        "m/b/cover.jpg", "m/b/1.mp33", "m/b/mp3", "m/b/X.wav", "m/b/x.WAV.TAG", "m/1.wma"}) {
    Put(name, "x");
  }
  EXPECT_THAT(Scan({"m"}),
              ElementsAre("m/1.wma", "m/b/10.mpeg", "m/b/2.MP3", "m/b/X.wav+", "m/B2/x.m4p"));
  EXPECT_THAT(scan_.problems, IsEmpty());
}

TEST_F(MediaScanning, TakesForKaraokeOnlyAnMp3WithItsCdg) {
  for (const char* name : {"k/a.mp3", "k/A.CDG", "k/b.mp3", "k/c.wav", "k/c.cdg", "k/d.cdg"}) {
    Put(name, "x");
  }
  EXPECT_THAT(Scan({"k"}, CatalogueKind::kKaraoke), ElementsAre("k/a.mp3"));
}

TEST_F(MediaScanning, ListsEachFolderOnceAndNamesThoseOutOfReach) {
  Put("m/real/1.mp3", "x");
  Put("far/2.mp3", "x");
  std::filesystem::create_directory_symlink(root_ / "m", root_ / "m/real/loop");
  std::filesystem::create_directory_symlink(root_ / "m/real", root_ / "m/a link to real");
  std::filesystem::create_directory_symlink(root_ / "far", root_ / "m/far");
  std::filesystem::create_directory_symlink("self", root_ / "m/self");
  std::filesystem::create_directory_symlink("unplugged", root_ / "m/drive");
  std::filesystem::create_directory(root_ / "empty");
  EXPECT_THAT(Scan({"m", "m/real", "absent", "far/2.mp3", "empty"}),
              ElementsAre("m/real/1.mp3", "m/far/2.mp3"));
  EXPECT_THAT(scan_.unreachable, ElementsAre(root_ / "absent", root_ / "far/2.mp3",
                                             root_ / "m/drive", root_ / "m/self"));
}

TEST_F(MediaScanning, NamesWhatARecordCannotHoldAndTakesTheRest) {
  Put("m/good.mp3", "x");
  Put("m/back\\slash.mp3", "x");
  Put("m/bell\a.mp3", "x");
  const std::string folder = "m/" + std::string(230 - root_.native().size(), 'd');
  const size_t left = 255 - (root_ / folder / ".mp3").native().size();
  const std::string fits = folder + "/" + std::string(left, 'f') + ".mp3";
  Put(fits, "x");
  Put(folder + "/" + std::string(left + 1, 'g') + ".mp3", "x");
  EXPECT_THAT(Scan({"m"}), ElementsAre("m/good.mp3", fits));
  std::vector<std::string> reasons;
  for (const Problem& problem : scan_.problems) reasons.push_back(problem.reason);
  EXPECT_THAT(reasons, UnorderedElementsAre(HasSubstr("backslash"), HasSubstr("control"),
                                            HasSubstr("longer than 255")));
}

}  // namespace
}  // namespace sonotik
