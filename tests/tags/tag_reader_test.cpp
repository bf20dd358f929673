#include "tags/tag_reader.h"

#include <gtest/gtest.h>

#include "files/runtime_failure.h"
#include "tags/clsWMAHeadReader.h"
#include "tags/tag_files.h"
#include "text/text.h"

namespace sonotik {
namespace {

class TagReaders : public testing::Test {
 protected:
  // In the order of their declaration, artist first and the running time last.
  std::string All() const {
    const auto& [a, b, c, d, e, f, g, h, i, j, k, l, m] = fields;
    return Joined({a, b, c, d, e, f, g, h, i, j, k, l, m});
  }

  Scratch scratch;
  TagFields fields{"was", "was", "was", "was", "was", "was", "was",
                   "was", "was", "was", "was", "was", "was"};
  bool use_filename = false;
  TagReader reader{fields, [this] { return use_filename; }};
};

TEST_F(TagReaders, EveryCallerKeepsItsOwnWays) {
  const std::pair<TagCaller, std::string> rows[] = {
      {TagCaller::kAddQueue, "1333"},       {TagCaller::kTrackList, "1223"},
      {TagCaller::kShowNext, "1223"},       {TagCaller::kPlayTrack, "1233"},
      {TagCaller::kUpdateQueue, "1233"},    {TagCaller::kPlayOptions, "1233"},
      {TagCaller::kQueueRow, "1233"},       {TagCaller::kTrackRowClick, "1233"},
      {TagCaller::kBurnOrDownload, "1111"}, {TagCaller::kQueueUpl, "1233"}};
  const std::string kinds[] = {"a.Mp3", "a.m4a", "a.M4p", "a.mpg"};
  for (const std::string& kind : kinds) {
    scratch.Put(kind, std::string(18, 'x') + Bytes("2\0"));
    scratch.Put(kind + ".tag", ReplaceAll(kSidecar, "T&", "3"));
  }
  for (const auto& [caller, expected] : rows) {
    std::string used;
    for (const std::string& kind : kinds) {
      reader.ReadFor(caller, scratch.Path(kind));
      used += fields.txtTitle.empty() ? "1" : fields.txtTitle;
    }
    EXPECT_EQ(used, expected) << static_cast<int>(caller);
  }
  // The callers tell the kind before anything is trimmed, the last reader in the row after.
  reader.ReadFor(TagCaller::kTrackList, scratch.Path("a.Mp3") + " ");
  EXPECT_EQ(fields.txtTitle + fields.txtTrack + reader.CurrentTagFile(),
            "3/12" + scratch.Path("a.Mp3"));
}

TEST_F(TagReaders, ReadtagTakesId3v2OrNothing) {
  const std::string v1 = Id3v1("Old", Zeros(3));
  const std::string audio = "\xFF\xFB\x90\x64" + std::string(185 * 16000 - 132, 'x') + v1;
  std::string frames = Frame3("COMM", Bytes("\0eng\0Co")) + Frame3("WXXX", Bytes("\0\0www")) +
                       Frame3("TCON", Latin("(17)"));
  for (const char* id : {"TPE1", "TALB", "TIT2", "TRCK", "TYER", "TCOM", "TOPE", "TCOP", "TENC"}) {
    frames += Frame3(id, Latin(std::string(id) + "&"));
  }
  reader.Readtag(scratch.Put("a.mp3", Tag(3, 0, frames) + audio));
  EXPECT_EQ(All(), "TPE1&&|TALB&|TIT2&&|TRCK&|TYER&|Co|TCOM&|TOPE&|TCOP&|www|TENC&|Rock|3:05|");
  reader.Readtag(UpperCase(scratch.Path("a.mp3")));
  EXPECT_EQ(fields.txtAlbum, "TALB&");
  reader.Readtag(scratch.Put("b.mp3", audio));
  EXPECT_EQ(All(), "||||||||||||3:05|");
  reader.Readtag(scratch.Path("none.mp3"));
  EXPECT_EQ(All(), "||||||||||||0:00|");
  // Where the tag breaks the reading, what ID3v1 gave is left.
  EXPECT_THROW(reader.Readtag(scratch.Put("c.mp3", Tag(3, 0, "") + v1)), RuntimeFailure);
  EXPECT_EQ(fields.txtTitle, "Old");
}

TEST_F(TagReaders, SidecarFillsItsFieldsAndLeavesTheOthers) {
  scratch.Put("clip.mpg", "x");
  for (const char* line_end : {"\r\n", "\n"}) {
    scratch.Put("clip.mpg.tag", ReplaceAll(kSidecar, "\n", line_end));
    for (const char* name : {"clip.mpg", "clip.mpg.tag"}) {
      reader.Readtag3(scratch.Path(name));
      EXPECT_EQ(All(), "A && B|Al|T&&|3/12|1984|Fine|Co|was|was|was|was|Soul|3:07|") << name;
    }
  }
  // By itself it doubles nothing, and trims the path.
  reader.ReadTagSidecar("  " + scratch.Path("clip.mpg") + "  ");
  EXPECT_EQ(fields.txtArtist, "A & B");
  // A path too short to have an extension loses nothing but the running time.
  std::filesystem::current_path(scratch.Native(""));
  scratch.Put("a.mp.tag", ReplaceAll(kSidecar, "A & B", "New"));
  reader.ReadTagSidecar("a.mp");
  EXPECT_EQ(fields.txtArtist + fields.txtmp3time, "A & B");
  std::filesystem::current_path("/");
}

TEST_F(TagReaders, BrokenSidecarsAreFailures) {
  const std::string path = scratch.Put("clip.mpg", "x");
  const auto read = [&](const char* cut) {
    scratch.Put("clip.mpg.tag", ReplaceAll(kSidecar, cut, ""));
    EXPECT_THROW(reader.Readtag3(path), RuntimeFailure);
    return All();
  };
  // All lines are read before the first field is set.
  EXPECT_EQ(read("</song>\n"), "was|was|was|was|was|was|was|was|was|was|was|was||");
  EXPECT_EQ(read("<originalname>"), "A & B|Al|T&|3/12|1984|was|Co|was|was|was|was|Soul||");
}

TEST_F(TagReaders, NoTagAndTheNameInItsPlace) {
  std::string no_tag;
  for (int i = 0; i < 12; ++i) no_tag += "No Tag|";
  use_filename = true;
  // A file that is there and has no sidecar never gets its name as title.
  reader.Readtag3(scratch.Put("clip.mpg", "x"));
  EXPECT_EQ(All(), no_tag + "|");
  fields.txtmp3time = "was";
  reader.Readtag3(scratch.Path("R&B.wma"));
  EXPECT_EQ(fields.txtTitle, scratch.Path("R&&B.wma"));
  use_filename = false;
  for (const std::string& missing :
       {scratch.Path("R&B.wma"), scratch.Path("x.mpg"), std::string()}) {
    reader.Readtag3(missing);
    EXPECT_EQ(All(), no_tag + "was|") << missing;
  }
}

TEST_F(TagReaders, WmaNamesAreFoundByTheirLengths) {
  const std::string size = Bytes("\x50\0");
  const std::string unlike = Wma(size, {"Song", "Band"}).replace(58, 2, "A\1");
  const std::string year_only = std::string(4000, 'x') + "WM/Year\3x" + std::string(2000, 'x');
  Check({{"two names", Wma(size, {"Song", "R&B"}), "R&&B|Al|Song|was|1999|"},
         {"a copyright", Wma(size, {"Song", "Band", "(c)"}), "Band|Al|Song|was|1999|"},
         {"from 256 bytes on", Wma("\x50\1", {"Song", "Band", "(c)"}), "Band|Al|Song|was|1999|"},
         {"from 768 bytes on", Wma("\x50\3", {"Song", "Band", "(c)"}), "|Al||was|1999|"},
         {"no strings", Wma(size, {}), "|Al||was|1999|"},
         {"a letter above 255 upsets the lengths", unlike, "|Al||was|1999|"},
         {"no objects", year_only, "|||was|x|"}},
        [&](const std::string& file) {
          reader.Readtag3(scratch.Put("a.wma", file));
          std::string all = All();
          return all.erase(all.find("|was|was|was"));
        });
}

TEST_F(TagReaders, WmaTimeComesFromTheBitRate) {
  const std::string path = scratch.Put("a.wma", Wma(Bytes("\x50\0"), {"Song", "Band"}));
  std::filesystem::resize_file(scratch.Native("a.wma"), 125 * 16000 + 15999);
  reader.Readtag3(path);
  EXPECT_EQ(fields.txtmp3time, "2:5");
  std::filesystem::resize_file(scratch.Native("a.wma"), 1000000);
  InfotagRecord record;
  clsWMAHeadReader(record).Get_WMA_Header(path);
  EXPECT_EQ(record.Length, 61);
  EXPECT_EQ(record.Mode + std::to_string(record.Frequency), "Stereo0");
  EXPECT_EQ(clsWMAHeadReader::fTime(3600), "10:00:00");
  // A header of 5,000 bytes that aren't NUL has to be there, behind the first ten.
  reader.Readtag3(scratch.Put("b.wma", std::string(5010, 'x')));
  EXPECT_EQ(fields.txtmp3time, "");
  scratch.Put("b.wma", std::string(5009, 'x') + Zeros(9));
  EXPECT_THROW(reader.Readtag3(scratch.Path("b.wma")), RuntimeFailure);
}

TEST_F(TagReaders, AtomsAreSeenFromThirtyThousandOn) {
  const std::string atoms = Atom("nam", "So&ng") + Atom("ART", "B\xC3\xA9") + Atom("alb", "Al");
  reader.Readtag2(scratch.Put("a.m4a", M4a(atoms + Atom("day", "2001"))));
  EXPECT_EQ(All(), "B\xC3\xA9|Al|So&ng|was|2001||was|was|was|was|was|was|was|");
  // Without an atom the text at character 19 stands in for it.
  for (const auto& [at, title] :
       {std::pair(29998, "M4A mp42"), {29999, "So&ng"}, {65536, "M4A mp42"}}) {
    reader.Readtag2(scratch.Put("b.m4a", M4a(atoms, static_cast<size_t>(at))));
    EXPECT_EQ(fields.txtTitle + fields.txtYear, title + std::string("M4A mp42"));
  }
  EXPECT_THROW(reader.Readtag2(scratch.Put("c.m4a", "")), RuntimeFailure);
  EXPECT_THROW(reader.Readtag2(scratch.Path("none.m4a")), RuntimeFailure);
}

}  // namespace
}  // namespace sonotik
