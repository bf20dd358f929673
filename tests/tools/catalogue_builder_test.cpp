// Whole runs over real files.
#include "tools/config/catalogue_builder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <map>

#include "files/runtime_failure.h"
#include "jukebox_folder.h"
#include "text/text.h"
#include "tools/config/sidecar.h"

namespace sonotik {
namespace {

using testing::_;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

constexpr CatalogueKind kAudio = CatalogueKind::kAudio;
constexpr CatalogueKind kVideo = CatalogueKind::kVideo;
constexpr CatalogueKind kKaraoke = CatalogueKind::kKaraoke;

class CatalogueBuilder : public JukeboxFolder {
 protected:
  // A file that is read in no time: names only by its file and folder, and a sidecar of its own.
  void PutFilm(const std::string& name, const std::string& genre = "") {
    Put(name, "no film");
    TrackInfo info;
    info.genre = genre;
    Put(name + ".tag", SidecarText(info));
  }

  // All files below a folder: names and bytes.
  std::map<std::string, std::string> FilesIn(const std::string& folder) const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root_ / folder)) {
      if (entry.is_directory()) continue;
      const std::string name = entry.path().lexically_relative(root_).string();
      files[name] = BytesIn(name);
    }
    return files;
  }
};

TEST_F(CatalogueBuilder, ReadsEachKindOfFileAndGivesASidecarToThoseWithoutATagOfTheirOwn) {
  const std::string folder = "m/Eve - Dusk/";
  PutMedia(folder + "a.mp3", {"artist=\u00C4da", "title=One", "album=Dawn", "genre=Pop"});
  PutMedia(folder + "b.mp3", {}, "-id3v2_version 0 -map_metadata -1");
  std::string tag("TAGCaf\xE9");  // ID3v1: title, artist at 33
  tag.resize(33);
  tag += "Bob";
  tag.resize(128);
  Put(folder + "b.mp3", BytesIn(folder + "b.mp3") + tag);
  PutMedia(folder + "c.wav", {"artist=Cy", "title=Three", "date=1999", "track=3"});
  PutMedia(folder + "d.m4a", {"artist=Dee", "title=Four", "genre=Pop"});
  PutMedia(folder + "e.wma", {"artist=Ed", "title=Five"});
  PutMedia(folder + "06 - Six.mpg");
  PutMedia(folder + "g.aac", {"artist=Gus", "title=Seven"}, "-f adts -write_id3v2 1");
  const auto before = FilesIn("m");

  const BuildReport report = Build(kAudio, {"m"});
  EXPECT_THAT(Tracks(), ElementsAre("Eve / Six / Dawn", "\u00C4da / One / Dawn",
                                    "Bob / Caf\u00E9 / Dawn", "Cy / Three / Dawn",
                                    "Dee / Four / Dawn", "Ed / Five / Dawn", "Gus / Seven / Dawn"));
  EXPECT_THAT(Albums("Records.cvr"), ElementsAre("Various Artists / Dawn / 03/01/2024"));
  EXPECT_EQ(BytesIn("app/genres/Pop.cvr"), BytesIn("app/Records.cvr"));
  EXPECT_EQ(report.sidecars, 3);
  EXPECT_THAT(report.problems, IsEmpty());
  for (const auto& [file, bytes] : before) {
    const std::string kind = KindOf(file);
    EXPECT_EQ(BytesIn(file), bytes);
    EXPECT_EQ(Exists(file + ".tag"), kind == "WAV" || kind == "MPG" || kind == "AAC") << file;
  }
  EXPECT_THAT(BytesIn(folder + "c.wav.tag"),
              AllOf(HasSubstr("<title>Three</title>\r\n"), HasSubstr("<track>3</track>"),
                    HasSubstr("<year>1999</year>"), HasSubstr("<duration>0:01</duration>")));
  EXPECT_THAT(BytesIn(folder + "06 - Six.mpg.tag"),
              AllOf(HasSubstr("<artist>Eve</artist>"), HasSubstr("<duration>0:01</duration>")));
}

TEST_F(CatalogueBuilder, TakesTheNamesOfAFilmFromASidecarThatIsThereAndLeavesIt) {
  PutMedia("v/x/clip.mpg");
  const std::string film = BytesIn("v/x/clip.mpg");
  std::filesystem::create_symlink("clip.mpg", root_ / "v/x/clip.mpg.tag.part");
  Build(kVideo, {"v"});
  EXPECT_EQ(BytesIn("v/x/clip.mpg"), film);  // nothing was written through the link
  Put("v/x/clip.mpg.tag",
      ReplaceAll(BytesIn("v/x/clip.mpg.tag"), "<artist>Unknown Artist<", "<artist>Ada<"));
  const std::string sidecar = BytesIn("v/x/clip.mpg.tag");
  EXPECT_EQ(Build(kVideo, {"v"}).sidecars, 0);
  EXPECT_THAT(Tracks(kVideo), ElementsAre("Ada / clip / x"));
  EXPECT_EQ(BytesIn("v/x/clip.mpg.tag"), sidecar);
}

TEST_F(CatalogueBuilder, GoesOnPastWhatCannotBeReadAndSaysWhy) {
  PutMedia("m/a/good.mp3", {"artist=Ada"});
  Put("m/a/empty.mp3", "");
  Put("m/a/junk.m4a", std::string(3000, '\x5A'));
  Put("m/a/huge tag.mp3",
      std::string("ID3\x03\0\0\x7F\x7F\x7F\x7FTIT2\x7F\xFF\xFF\xFF\0\0\0abc", 24));
  Put("m/a/lying.wav", std::string("RIFF\xFF\xFF\xFF\xFFWAVEfmt \xFF\xFF\xFF\xFF", 20));
  std::filesystem::create_symlink("gone.mp3", root_ / "m/a/lost.mp3");
  ASSERT_EQ(::mkfifo((root_ / "m/a/pipe.mp3").c_str(), 0600), 0);
  const BuildReport report = Build(kAudio, {"absent", "m"});
  EXPECT_THAT(Tracks(), ElementsAre("Ada / good / a", "Unknown Artist / huge tag / a",
                                    "Unknown Artist / junk / a", "Unknown Artist / lying / a"));
  std::string problems;
  for (const Problem& problem : report.problems) {
    problems += std::filesystem::path(problem.path).filename().string() + " ";
  }
  EXPECT_EQ(problems, "absent empty.mp3 huge tag.mp3 junk.m4a lost.mp3 lying.wav pipe.mp3 ");
}

TEST_F(CatalogueBuilder, KeepsDatesAndRatingsOfWhatItKnows) {
  PutFilm("v/old/1.mpg");
  PutFilm("v/old/2.mpg");
  Build(kVideo, {"v"});
  std::string records = BytesIn("app/videos.rec");
  ASSERT_EQ(records.size(), 2 * 447u);
  records.replace(435, 2, "\x05\x01");
  records.replace(447 + 437, 10, "2024/03/01");  // a date that no page could read
  Put("app/videos.rec", records + "torn");

  PutFilm("v/old/3.mpg");
  PutFilm("v/young/1.mpg");
  today_ = {2024, 4, 15};
  const BuildReport report = Build(kVideo, {"v"});
  EXPECT_EQ(report.kinds[0].new_tracks, 2u);
  EXPECT_EQ(report.kinds[0].new_albums, 1u);
  EXPECT_THAT(Texts(ReadCatalogue(App(), kVideo).tracks, {TrackRecord::kDateAdded}),
              ElementsAre("03/01/2024", "04/15/2024", "04/15/2024", "04/15/2024"));
  EXPECT_EQ(BytesIn("app/videos.rec").substr(435, 2), "\x05\x01");
  EXPECT_EQ(BytesIn("app/videos.rec").substr(447 + 435, 2), std::string(2, '\0'));
  EXPECT_THAT(Albums("videos.cvr"), ElementsAre("Unknown Artist / old / 03/01/2024",
                                                "Unknown Artist / young / 04/15/2024"));
  EXPECT_THAT(Albums("new.cvr"), ElementsAre("Unknown Artist / young / 04/15/2024"));
}

TEST_F(CatalogueBuilder, KeepsTheRecordsOfAFolderOutOfReach) {
  PutFilm("near/Ada - Dawn/1.mpg", "Pop");
  PutFilm("drive/Bob - Dusk/1.mpg", "Pop");
  PutFilm("drive/Cy - Noon/1.mpg", "Jazz");
  Build(kAudio, {"near", "drive"});
  const auto before = FilesIn("app");

  std::filesystem::rename(root_ / "drive", root_ / "unplugged");
  today_ = {2024, 3, 20};
  const BuildReport report = Build(kAudio, {"near", "drive"});
  EXPECT_EQ(report.kinds[0].kept_tracks, 2u);
  EXPECT_EQ(FilesIn("app"), before);

  std::filesystem::create_directory(root_ / "drive");  // in reach and empty: its content has gone
  Build(kAudio, {"near", "drive"});
  EXPECT_THAT(Tracks(), ElementsAre("Ada / 1 / Dawn"));
  EXPECT_FALSE(Exists("app/genres/Jazz.cvr"));
}

TEST_F(CatalogueBuilder, LeavesTheOldCatalogueWhenItIsStoppedAtAnyPoint) {
  PutFilm("m/a/1.mpg", "Pop");
  Build(kAudio, {"m"});
  const auto before = FilesIn("app");
  PutFilm("m/b/1.mpg", "Jazz");
  PutFilm("m/b/2.mpg", "Jazz");

  // What a power cut between writing and renaming leaves.
  Put("app/Records.rec.part", "half");
  std::filesystem::create_symlink(root_ / "m/a/1.mpg", root_ / "app/Records.cvr.part");
  int asked = 0;
  for (int stop_at = 1;; ++stop_at) {
    asked = 0;
    BuildHooks hooks;
    hooks.stop_asked = [&] { return ++asked >= stop_at; };
    const BuildReport report = BuildCatalogue(Request(kAudio, {"m"}), hooks);
    if (!report.stopped) break;
    EXPECT_FALSE(report.AnyWritten());
    auto after = FilesIn("app");
    std::erase_if(after, [](const auto& file) { return file.first.ends_with(".part"); });
    ASSERT_EQ(after, before) << "stopped at " << stop_at;
  }
  EXPECT_GT(asked, 8);
  EXPECT_THAT(Tracks(), SizeIs(3));
  EXPECT_EQ(BytesIn("m/a/1.mpg"), "no film");
  for (const auto& file : FilesIn("app")) EXPECT_FALSE(file.first.ends_with(".part")) << file.first;
}

TEST_F(CatalogueBuilder, WritesNothingWhereTheCatalogueCannotBeReplaced) {
  PutFilm("m/a/1.mpg");
  Build(kAudio, {"m"});
  const std::string records = BytesIn("app/Records.rec");
  PutFilm("m/a/2.mpg");
  std::filesystem::create_directories(root_ / "app/new.cvr.part/in the way");
  EXPECT_THROW(Build(kAudio, {"m"}), RuntimeFailure);
  EXPECT_EQ(BytesIn("app/Records.rec"), records);
  EXPECT_FALSE(Exists("app/Records.rec.part"));
  EXPECT_THROW(BuildCatalogue(BuildRequest{root_ / "absent", {}, today_}, {}), RuntimeFailure);
}

TEST_F(CatalogueBuilder, TouchesNoKindWithoutAFolderAndMakesNoEmptyCatalogue) {
  PutFilm("v/Ada - Dawn/1.mpg", "Pop");
  Put("k/Eve - Songs/1.mp3", "no song");
  Put("k/Eve - Songs/1.CDG", "x");
  Build(kVideo, {"v"});
  EXPECT_FALSE(Exists("app/Records.rec"));
  EXPECT_FALSE(Exists("app/genres"));  // genres are those of the music
  const std::string videos = BytesIn("app/videos.rec");
  Build(kKaraoke, {"k"});
  EXPECT_EQ(BytesIn("app/videos.rec"), videos);
  EXPECT_THAT(Tracks(kKaraoke), ElementsAre("Eve / 1 / Songs"));
  EXPECT_THAT(Albums("new.cvr"),
              ElementsAre("Ada / Dawn / 03/01/2024", "Eve / Songs / 03/01/2024"));

  EXPECT_FALSE(Build(kAudio, {"absent"}).AnyWritten());
  EXPECT_FALSE(Exists("app/Records.rec"));
  std::filesystem::remove_all(root_ / "v/Ada - Dawn");
  EXPECT_TRUE(Build(kVideo, {"v"}).AnyWritten());
  EXPECT_EQ(BytesIn("app/videos.rec"), "");
  Build(kAudio, {"k"});
  EXPECT_THAT(Albums("new.cvr"), SizeIs(1));  // an album of two kinds is new once
}

TEST_F(CatalogueBuilder, RemovesOnlyGenreFilesThatItHasWritten) {
  PutFilm("m/a/1.mpg", "Pop");
  PutFilm("m/b/1.mpg", "Jazz");
  PutFilm("m/c/1.mpg", "all genres");
  PutFilm("m/d/1.mpg", "POP");  // the same genre
  Put("app/genres/Party.cvr", "mine");
  Put("app/genres/ALL GENRES.cvr", "");
  Put("precious.cvr", "kept");
  const BuildReport report = Build(kAudio, {"m"});
  EXPECT_EQ(report.genres, 2);
  EXPECT_THAT(report.problems, SizeIs(1));
  EXPECT_EQ(BytesIn("app/genres/ALL GENRES.cvr"), "");

  PutFilm("m/a/1.mpg", "pop");
  std::filesystem::remove_all(root_ / "m/b");
  Put("app/genres/genres.lst",
      BytesIn("app/genres/genres.lst") + "\\..\\..\\precious.cvr\r\nall genres.cvr\r\n");
  Build(kAudio, {"m"});
  EXPECT_THAT(
      FilesIn("app/genres"),
      ElementsAre(Pair(HasSubstr("ALL GENRES.cvr"), ""), Pair(HasSubstr("Party.cvr"), "mine"),
                  Pair(HasSubstr("Pop.cvr"), SizeIs(2 * 385)), Pair(HasSubstr("genres.lst"), _)));
  EXPECT_TRUE(Exists("precious.cvr"));
}

TEST_F(CatalogueBuilder, NotesAReadOnlyFolderAndAMissingProbeAndGoesOn) {
  PutMedia("v/x/clip.mpg");
  PutMedia("v/y/clip.avi");
  for (const auto& [folder, mode] :
       {std::pair("", 0777), {"app", 0777}, {"v/y", 0777}, {"v/x", 0555}}) {
    std::filesystem::permissions(root_ / folder, std::filesystem::perms(mode));
  }
  // The administrator may write everywhere.
  const bool administrator = ::geteuid() == 0;
  ASSERT_TRUE(!administrator || ::seteuid(65534) == 0);
  BuildRequest request = Request(kVideo, {"v"});
  request.ffprobe = "sonotik-no-such-program";
  const BuildReport report = BuildCatalogue(request, {});
  ASSERT_TRUE(!administrator || ::seteuid(0) == 0);
  std::filesystem::permissions(root_ / "v/x", std::filesystem::perms(0755));

  EXPECT_THAT(Tracks(kVideo), SizeIs(2));
  EXPECT_FALSE(Exists("v/x/clip.mpg.tag"));
  EXPECT_THAT(BytesIn("v/y/clip.avi.tag"), HasSubstr("<duration></duration>"));
  ASSERT_THAT(report.problems, SizeIs(2));
  EXPECT_THAT(report.problems[0].reason, HasSubstr("not writable"));
  EXPECT_EQ(report.problems[1].path, "ffprobe");
}

}  // namespace
}  // namespace sonotik
