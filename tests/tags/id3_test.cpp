#include <gtest/gtest.h>

#include "tags/clsID3V111Reader.h"
#include "tags/id3v1.h"
#include "tags/mdlID3.h"
#include "tags/tag_files.h"

namespace sonotik {
namespace {

auto Reading(std::string TagRecord::*member) {
  return [member](const std::string& file) {
    MemorySource source(AsBytes(file));
    TagRecord record;
    ReadID3v2Tag(source, record);
    return record.*member;
  };
}
const auto kTitle = Reading(&TagRecord::title);

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

// Plain tags of all versions stand in the tables of RealFiles.
TEST(Id3v2, FindsTheFramesBehindAllHeadersAndSizes) {
  const std::string plain = "TIT2" + Big(301) + Zeros(2) + Latin(kLong);
  const std::string high = "TIT2" + Big(0x85) + Zeros(2) + Latin(std::string(0x84, 'x'));
  Check(
      {{"2.4 with plain sizes", Tag(4, 0, plain + kFrames4), "Song"},
       {"2.4 with a plain size at the end", Tag(4, 0, plain), kLong},
       {"neither size fits", Tag(4, 0, plain.substr(0, 211)), ""},
       {"a top bit makes a size plain", Tag(4, 0, high), std::string(0x84, 'x')},
       {"2.3 extended", Tag(3, 0x40, Big(6) + Zeros(6) + kFrames3), "Song"},
       {"2.4 extended", Tag(4, 0x40, Sync(6) + Bytes("\1\0") + kFrames4), "Song"},
       {"right before a footer", Footed(Frame4("TIT2", Latin(kLong))), kLong},
       {"padding ends the walk", Tag(3, 0, kFrames3 + Zeros(10) + Frame3("TIT2", "")), "Song"},
       {"so does too large a frame", Tag(3, 0, kFrames3 + "TIT2" + Big(9) + Zeros(8)), "Song"},
       {"a cut file", "ID3\3" + Zeros(4) + Big(0x700, 2) + "TIT2" + Big(600) + Zeros(3) + "S", "S"},
       {"an empty frame replaces too", Tag(3, 0, kFrames3 + Frame3("TIT2", "")), ""}},
      kTitle);
}

TEST(Id3v2, HonoursFrameFlagsAndUnsynchronisation) {
  const std::string stuffed = Bytes("\1\xFF\0\xFE") + Wide("Song");
  Check({{"2.3 whole", Tag(3, 0x80, "TIT2" + Big(11) + Zeros(2) + stuffed + kFrames3), "Song"},
         {"2.4 by the tag's flag", Title4(stuffed, 0, 0x80), "Song"},
         {"2.4 by the frame's flag", Title4(stuffed, 2), "Song"},
         {"2.4 unflagged stays stuffed", Title4(Bytes("\0A\xFF\0Z")), "A\xFF"},
         {"2.4 group and length go first", Title4("g" + Big(5) + kSong, 0x41), "Song"},
         {"2.4 a length alone is no text", Title4("ab", 1), ""},
         {"2.3 group goes first", Title3("g" + kSong, 0x20), "Song"},
         {"2.3 compressed", Title3(kSong, '\x80'), ""},
         {"2.3 encrypted", Title3(kSong, 0x40), ""},
         {"2.4 compressed", Title4(kSong, 8), ""},
         {"2.4 encrypted", Title4(kSong, 4), ""}},
        kTitle);
  Check({{"twice", Bytes("\xFF\xFF\0\0b"), Bytes("\xFF\xFF\0b")},
         {"the last byte stays", Bytes("a\xFF\0"), Bytes("a\xFF\0")},
         {"alone", "\xFF", "\xFF"}},
        [](std::string bytes) {
          const std::span<uint8_t> view(reinterpret_cast<uint8_t*>(bytes.data()), bytes.size());
          return bytes.substr(0, bytes.size() - RemoveUnsync(view));
        });
}

// What a real reader would read otherwise stands in the table of RealFiles.
TEST(Id3v2, DecodesBytesByTheEncodingByte) {
  const std::string mark = "\xFF\xFE";
  const std::string wide = "\1eng" + mark + Wide("d") + Zeros(2) + mark + Wide("text");
  Check({{"encoding 2 takes high bytes", Title4("\2XyZ"), "XZ"},
         {"no such encoding", Title4("\4Song"), ""},
         {"line ends", Title3(Latin("a\rb\nc")), "ab\r\nc"}},
        kTitle);
  Check({{"COMM", Tag(3, 0, Frame3("COMM", Bytes("\0engabout\0fine"))), "fine"},
         {"COM", Tag(2, 0, Frame2("COM", Bytes("\0eng\0fine"))), "fine"},
         {"COMM, UTF-16: half a mark", Tag(3, 0, Frame3("COMM", wide)), "\xFFtext"},
         {"COMM cut short", Tag(3, 0, Frame3("COMM", Bytes("\0en"))), ""}},
        Reading(&TagRecord::comment));
  Check({{"WXXX", Tag(3, 0, Frame3("WXXX", Bytes("\0x\0x.org"))), "x.org"}},
        Reading(&TagRecord::url));
  Check({{"TDRC", Tag(4, 0, Frame4("TDRC", Latin("2004-05-06"))), "2004"}},
        Reading(&TagRecord::year));
}

TEST(Id3v2, TakesAGenreByTheNumberInItsBrackets) {
  const std::pair<const char*, const char*> genres[] = {
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
  Check({{"at the end", audio + Footed(kFrames4), "Song"},
         {"before ID3v1", audio + Footed(kFrames4) + Id3v1("old", Zeros(3)), "Song"},
         {"a footer that points before the file", Footed(kFrames4).substr(10), ""},
         {"an update keeps what it doesn't have", update, "Song"},
         {"no update starts anew", seeking + Tag(4, 0, fresh), ""},
         {"seeking past the end", seeking, "Song"}},
        kTitle);
  Check({{"an update replaces its own frames", update, "New"}}, Reading(&TagRecord::artist));
}

std::string ByModule(const std::string& file) {
  MemorySource source(AsBytes(file));
  TagRecord r;
  if (!ReadID3v1Tag(source, r)) return "none";
  return Joined({r.title, r.artist, r.album, r.year, r.comment, r.track, r.genre});
}
std::string ByClass(const std::string& file) {
  MemorySource source(AsBytes(file));
  clsID3V111Reader r;
  r.artist = "was";
  r.ReadID3V111Tag(source, false);
  const std::string track = std::to_string(r.Track);
  return Joined({r.SongTitle, r.artist, r.album, r.Year, r.Comment, track, r.Genre}) +
         (r.TagPresent ? "" : "none");
}

TEST(Id3v1, TheTwoReadersTellTracksAndTextsApart) {
  const std::string full(30, 'a');
  const std::string names = " Padded" + std::string(23, ' ') + full + "Al" + Zeros(28) + "1999";
  const auto tag = [&](const std::string& end) {
    return "x" + Id3v1(names + "said" + Zeros(24), end);
  };
  const std::string filled = Id3v1(names + std::string(28, 'c'), "de\x11");
  Check({{"a track", tag(Bytes("\0\7\x93")), "Padded|" + full + "|Al|1999|said|7|SynthPop|"},
         {"none", tag(Bytes("\0\0\x94")), "Padded|" + full + "|Al|1999|said|||"},
         {"a filled comment", filled,
          "Padded|" + full + "|Al|1999|" + std::string(28, 'c') + "de||Rock|"},
         {"short", filled.substr(1), "none"}},
        ByModule);
  // A text without a NUL is lost, and byte 126 is a track whatever stands before it.
  Check({{"a track", tag("e\7\x75"), "||Al||said|7|Powder Ballad|"},
         {"a filled comment", filled, "||Al|||101|Rock|"},
         {"short", filled.substr(1), "|||||0||none"},
         {"no tag", std::string(200, 'x'), "|||||0||none"}},
        ByClass);
  clsID3V111Reader reader;
  reader.artist = "was";
  reader.ReadID3V111Tag("\\none.mp3", false);
  EXPECT_EQ(reader.artist, "was");
}

}  // namespace
}  // namespace sonotik
