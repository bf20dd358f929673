#include <gtest/gtest.h>

#include <vector>

#include "files/runtime_failure.h"
#include "tags/id3v1.h"
#include "tags/mdlID3.h"
#include "tags/tag_bytes.h"

namespace sonotik {
namespace {

struct Case {
  const char* what;
  std::string file;
  std::string expected;
  std::string TagRecord::*member = &TagRecord::title;
};

TagRecord Read(const std::string& file) {
  const Scratch scratch;
  TagRecord record;
  ReadID3v2Tag(scratch.Put("a.mp3", file), record);
  return record;
}

void Check(const std::vector<Case>& cases) {
  for (const Case& c : cases) EXPECT_EQ(Read(c.file).*c.member, c.expected) << c.what;
}

const std::string kSong = Latin("Song");
const std::string kLong(300, 'x');
const std::string kFrames3 = Frame3("TIT2", kSong);
const std::string kFrames4 = Frame4("TIT2", kSong);

std::string Title3(const std::string& data, char flags = 0) {
  return Tag(3, 0, Frame3("TIT2", data, flags));
}
std::string Title4(const std::string& data, char flags = 0, int tag_flags = 0) {
  return Tag(4, tag_flags, Frame4("TIT2", data, flags));
}
std::string Footed(const std::string& frames) {
  const std::string tag = Tag(4, 0x10, frames);
  return tag + "3DI" + tag.substr(3, 7);
}

TEST(Id3v2, FindsTheFramesOfAllVersionsAndHeaders) {
  const std::string plain = "TIT2" + Big(301) + Zeros(2) + Latin(kLong);
  const std::string high = "TIT2" + Big(0x85) + Zeros(2) + Latin(std::string(0x84, 'x'));
  Check({
      {"2.2", Tag(2, 0, Frame2("TP1", Latin("Band")) + Frame2("TT2", kSong)), "Song"},
      {"2.3", Title3(kSong), "Song"},
      {"2.4", Title4(kSong), "Song"},
      {"2.3 sizes are plain", Title3(Latin(kLong)), kLong},
      {"2.4 sizes are synchsafe", Title4(Latin(kLong)), kLong},
      {"2.4 with plain sizes", Tag(4, 0, plain + kFrames4), "Song"},
      {"2.4 with a plain size at the end", Tag(4, 0, plain), kLong},
      {"neither size fits", Tag(4, 0, plain.substr(0, 211)), ""},
      {"a top bit makes a size plain", Tag(4, 0, high), std::string(0x84, 'x')},
      {"2.3 extended", Tag(3, 0x40, Big(6) + Zeros(6) + kFrames3), "Song"},
      {"2.4 extended", Tag(4, 0x40, Sync(6) + Bytes("\1\0") + kFrames4), "Song"},
      {"right before a footer", Footed(Frame4("TIT2", Latin(kLong))), kLong},
      {"padding ends the walk", Tag(3, 0, kFrames3 + Zeros(10) + Frame3("TIT2", "")), "Song"},
      {"so does too large a frame", Tag(3, 0, kFrames3 + "TIT2" + Big(9) + Zeros(8)), "Song"},
      {"a cut file", "ID3\3" + Zeros(4) + Big(0x700, 2) + "TIT2" + Big(600) + Zeros(3) + "S", "S"},
      {"a later frame replaces", Tag(3, 0, Frame3("TIT2", Latin("No")) + kFrames3), "Song"},
      {"an empty one too", Tag(3, 0, kFrames3 + Frame3("TIT2", "")), ""},
  });
}

TEST(Id3v2, HonoursFrameFlagsAndUnsynchronisation) {
  const std::string stuffed = Bytes("\1\xFF\0\xFE") + Wide("Song");
  Check({
      {"2.3 whole", Tag(3, 0x80, "TIT2" + Big(11) + Zeros(2) + stuffed + kFrames3), "Song"},
      {"2.4 by the tag's flag", Title4(stuffed, 0, 0x80), "Song"},
      {"2.4 by the frame's flag", Title4(stuffed, 2), "Song"},
      {"2.4 unflagged stays stuffed", Title4(Bytes("\0A\xFF\0Z")), "A\xFF"},
      {"2.4 group and length go first", Title4("g" + Big(5) + kSong, 0x41), "Song"},
      {"2.4 a length alone is no text", Title4("ab", 1), ""},
      {"2.3 group goes first", Title3("g" + kSong, 0x20), "Song"},
      {"2.3 compressed", Title3(kSong, '\x80'), ""},
      {"2.3 encrypted", Title3(kSong, 0x40), ""},
      {"2.4 compressed", Title4(kSong, 8), ""},
      {"2.4 encrypted", Title4(kSong, 4), ""},
  });
  const auto unstuffed = [](std::string bytes) {
    const std::span<uint8_t> view(reinterpret_cast<uint8_t*>(bytes.data()), bytes.size());
    return bytes.substr(0, bytes.size() - RemoveUnsync(view));
  };
  EXPECT_EQ(unstuffed(Bytes("\xFF\xFF\0\0b")), Bytes("\xFF\xFF\0b"));
  EXPECT_EQ(unstuffed(Bytes("a\xFF\0")), Bytes("a\xFF\0"));
  EXPECT_EQ(unstuffed("\xFF") + unstuffed(""), "\xFF");
}

TEST(Id3v2, DecodesBytesByTheEncodingByte) {
  const auto comment = &TagRecord::comment;
  const std::string mark = "\xFF\xFE";
  const std::string wide = "\1eng" + mark + Wide("d") + Zeros(2) + mark + Wide("text");
  Check({
      {"Latin-1", Title3(Bytes("\0\xE9t\xE9")), "\xE9t\xE9"},
      {"UTF-8 byte for byte", Title4("\3\xC3\xA9"), "\xC3\xA9"},
      {"UTF-16 LE", Title3("\1" + mark + Wide("A")), "A"},
      {"UTF-16 BE", Title3(Bytes("\1\xFE\xFF\0A")), ""},
      {"encoding 2 takes high bytes", Title4("\2XyZ"), "XZ"},
      {"no such encoding", Title4("\4Song"), ""},
      {"a NUL ends it", Title3(Bytes("\0One\0Two")), "One"},
      {"line ends", Title3(Latin("a\rb\nc")), "ab\r\nc"},
      {"COMM", Tag(3, 0, Frame3("COMM", Bytes("\0engabout\0fine"))), "fine", comment},
      {"COM", Tag(2, 0, Frame2("COM", Bytes("\0eng\0fine"))), "fine", comment},
      {"COMM, UTF-16: half a mark", Tag(3, 0, Frame3("COMM", wide)), "\xFFtext", comment},
      {"COMM cut short", Tag(3, 0, Frame3("COMM", Bytes("\0en"))), "", comment},
      {"WXXX", Tag(3, 0, Frame3("WXXX", Bytes("\0x\0x.org"))), "x.org", &TagRecord::url},
      {"TDRC", Tag(4, 0, Frame4("TDRC", Latin("2004-05-06"))), "2004", &TagRecord::year},
      {"TCON", Tag(3, 0, Frame3("TCON", Latin("(40)"))), "Alt. Rock", &TagRecord::genre},
  });
  const std::vector<std::pair<std::string, std::string>> genres = {
      {"(RX)", "Remix"},   {"(CR)", "Cover"}, {"(13)", "Pop"},        {"(17)Other", "Rock"},
      {"(200)", ""},       {"(-1)", ""},      {"(1e3)", "(1e3)"},     {"(147)", "SynthPop"},
      {"Pop", "Pop"},      {"17", "17"},      {"()", "()"},           {"( )", "( )"},
      {")17(", ")17("},    {"(x)", "(x)"},    {"( +12.5 )", "Other"}, {"(-0.4)", "Blues"},
      {"(0x11)", "(0x11)"}};
  for (const auto& [text, genre] : genres) EXPECT_EQ(ParseGenreRef(text), genre) << text;
}

TEST(Id3v2, FindsAnAppendedTagAndFollowsSeek) {
  const std::string audio(50, 'a');
  const std::string old = kFrames4 + Frame4("TPE1", Latin("Old"));
  const std::string seeking = Tag(4, 0, old + Frame4("SEEK", Big(audio.size()))) + audio;
  const std::string fresh = Frame4("TPE1", Latin("New"));
  const std::string update = seeking + Tag(4, 0x40, Sync(6) + Bytes("\1\x40") + fresh);
  Check({
      {"at the end", audio + Footed(kFrames4), "Song"},
      {"before ID3v1", audio + Footed(kFrames4) + Id3v1("old", Zeros(3)), "Song"},
      {"a footer that points before the file", Footed(kFrames4).substr(10), ""},
      {"an update replaces its own frames", update, "New", &TagRecord::artist},
      {"and keeps the others", update, "Song"},
      {"no update starts anew", seeking + Tag(4, 0, fresh), ""},
      {"seeking past the end", seeking, "Song"},
  });
}

TEST(Id3v2, OverflowsAndEmptyTagsAreFailures) {
  const std::string most = Big(0xFFFFFFFF);
  for (const std::string& file :
       {Tag(3, 0, ""), "ID3" + Bytes("\3\0\0") + most + Zeros(20),
        Tag(3, 0, "TIT2" + most + Zeros(9)), Tag(3, 0x40, most + Zeros(20)),
        Tag(4, 0, Frame4("SEEK", most))}) {
    EXPECT_THROW(Read(file), RuntimeFailure) << testing::PrintToString(file);
  }
}

TEST(Id3v2, UnknownVersionCountsAsFoundAndLeavesTheRecord) {
  const Scratch scratch;
  TagRecord record;
  record.title = "before";
  EXPECT_TRUE(ReadID3v2Tag(scratch.Put("a.mp3", Tag(5, 0, "x")), record));
  EXPECT_FALSE(ReadID3v2Tag(scratch.Put("b.mp3", "no tag"), record));
  EXPECT_FALSE(ReadID3v2Tag(scratch.Path("none.mp3"), record));
  EXPECT_EQ(record.title, "before");
}

TEST(Id3v1, TellsATrackFromAComment) {
  const Scratch scratch;
  const auto read = [&](const std::string& end, size_t cut = 0) {
    const std::string names = "  Padded" + std::string(22, ' ') + std::string(30, 'a') + Zeros(30);
    const std::string tag = Id3v1(names + "1999" + std::string(28, 'c'), end).substr(cut);
    TagRecord r;
    if (!ReadID3v1Tag(scratch.Put("a.mp3", tag), r)) return std::string("none");
    return r.title + "|" + r.artist + "|" + r.album + "|" + r.year + "|" + r.comment + "|" +
           r.track + "|" + r.genre;
  };
  const std::string common = "Padded|" + std::string(30, 'a') + "||1999|" + std::string(28, 'c');
  EXPECT_EQ(read(Bytes("\0\7\x93")), common + "|7|SynthPop");
  EXPECT_EQ(read(Bytes("\0\0\x94")), common + "||");
  EXPECT_EQ(read("de\x11"), common + "de||Rock");
  EXPECT_EQ(read("de\x11", 1), "none");
}

}  // namespace
}  // namespace sonotik
