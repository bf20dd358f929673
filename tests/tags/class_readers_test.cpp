// The object-shaped readers and Infotag over them.
#include <gtest/gtest.h>

#include "tags/Infotag.h"
#include "tags/clsID3V111Reader.h"
#include "tags/clsID3V230Reader.h"
#include "tags/clsMP3HeadReader.h"
#include "tags/tag_bytes.h"

namespace sonotik {
namespace {

std::string Apic(const std::string& mime, char type, const std::string& title,
                 const std::string& picture) {
  return Frame3("APIC", '\0' + mime + '\0' + type + title + '\0' + picture);
}

clsID3V230Reader Read(const std::string& bytes) {
  clsID3V230Reader reader;
  MemorySource source(AsBytes(bytes));
  reader.ReadID3V230Tag(source, false);
  return reader;
}

TEST(clsID3V111Reader, LosesTextsWithoutNulAndTakesAnyTrack) {
  const auto read = [](const std::string& bytes) {
    MemorySource source(AsBytes(bytes));
    clsID3V111Reader r;
    r.artist = "was";
    r.ReadID3V111Tag(source, false);
    return r.SongTitle + "|" + r.artist + "|" + r.album + "|" + r.Year + "|" + r.Comment + "|" +
           std::to_string(r.Track) + "|" + r.Genre + (r.TagPresent ? "" : "|none");
  };
  const std::string names = "Song" + Zeros(26) + std::string(30, ' ') + std::string(30, 'a');
  const std::string tag = Id3v1(names + "1999" + "said" + Zeros(24), Bytes("e\7\x75"));
  EXPECT_EQ(read("x" + tag), "Song||||said|7|Powder Ballad");
  EXPECT_EQ(read(tag.substr(1)), "|||||0||none");
  EXPECT_EQ(read(std::string(200, 'x')), "|||||0||none");
  // Its own eight names, and where the list ends.
  std::string names_of_genres;
  for (const int number : {39, 40, 81, 82, 84, 117, 123, 128, 133, 147, 148, 255}) {
    names_of_genres += read(Id3v1("", {'\0', '\0', static_cast<char>(number)})).substr(7) + ",";
  }
  EXPECT_EQ(
      names_of_genres,
      "Noise,AlternRock,Folk/Rock,National folk,Fast-fusion,Powder Ballad,A Capella,Club House,"
      "NegerPunk,SynthPop,,,");
  // A file that isn't there leaves all standing.
  clsID3V111Reader reader;
  reader.artist = "was";
  reader.ReadID3V111Tag("\\none.mp3", false);
  EXPECT_EQ(reader.artist, "was");
}

TEST(clsID3V230Reader, SetsAPropertyForEachFrame) {
  const std::pair<const char*, std::string ID3V230Properties::*> texts[] = {
      {"TIT2", &ID3V230Properties::SongTitle}, {"TPE1", &ID3V230Properties::artist},
      {"TYER", &ID3V230Properties::Year},      {"TOPE", &ID3V230Properties::OriginalArtist},
      {"TIT3", &ID3V230Properties::SubTitle},  {"TENC", &ID3V230Properties::EncodedBy}};
  for (const auto& [id, member] : texts) {
    // Whatever the encoding says, and with every NUL.
    EXPECT_EQ(Read(Tag(3, 0, Frame3(id, Bytes("\1A\0B")))).*member, Bytes("A\0B")) << id;
    EXPECT_EQ(Read(Tag(3, 0, Frame4(id, std::string(512, 'x')))).*member, std::string(511, 'x'));
    EXPECT_EQ(Read(Tag(3, 0, Frame4(id, std::string(513, 'x')))).*member, "");
    EXPECT_EQ(Read(Tag(3, 0, Frame3(id, "xyz", 0x40))).*member, "") << "encrypted";
  }
  const std::string lines =
      "engX\2\1d" + Bytes("\0one\n\0") + Big(61000) + Bytes("two\0") + Big(3600000);
  const clsID3V230Reader r = Read(
      Tag(3, 0x20,
          Frame3("COMM", Bytes("\0engabout\0fine\0more")) + Frame3("TRCK", Latin("3/256")) +
              Frame3("WXXX", Bytes("\0\0a.org")) + Frame3("WXXX", Bytes("\0b\0b.org")) +
              Frame3("USLT", Bytes("\0eng\0la")) + Frame3("USLT", Bytes("\0engla")) +
              Frame3("USLT", Bytes("\0eng{::}li")) + Frame3("PRIV", Bytes("\0a\0b")) +
              Frame3("TSSE", "") + Frame3("SYLT", '\0' + lines.substr(0, 3) + lines.substr(4))));
  EXPECT_TRUE(r.TagPresent && r.ExperimentalTag && !r.ExtendedHeader && !r.CRC);
  EXPECT_EQ(r.Comment, "fine");
  EXPECT_EQ(r.Track * 1000 + r.Tracks, 3000);
  EXPECT_EQ(r.URL, "a.org|b->b.org");
  EXPECT_EQ(r.Lyrics, "la\r\nli");
  EXPECT_EQ(r.Unknown, "PRIV=a b|TSSE=");
  EXPECT_EQ(r.SyncLyrics, "[01:01]one\r\n[60:00]two");
}

TEST(clsID3V230Reader, KnowsItsVersionItsSizesAndTheTagsEnd) {
  const std::string song = Frame3("TIT2", Latin("Song"));
  const std::string lyrics = Bytes("\0eng\0") + std::string(200, 'l');
  const std::string checksum = Big(10) + Zeros(2) + Big(0) + Big(0xFFFFFFFE);
  const Row rows[] = {
      {"2.3", Tag(3, 0, song), "Song"},
      {"2.2", Tag(2, 0, song), "absent"},
      {"2.4", Tag(4, 0, song), "absent"},
      {"extended", Tag(3, 0x40, Big(6) + Zeros(6) + song), "Song"},
      {"checksum", Tag(3, 0x40, checksum + song), "Song"},
      {"weighed sizes", Tag(3, 0, Frame4("TALB", std::string(300, 'x')) + song), "Song"},
      {"plain for lyrics", Tag(3, 0, Frame3("USLT", lyrics) + song), "Song"},
      {"nothing masked", Tag(3, 0, "TALB" + Bytes("\0\0\0\xC8\0\0") + std::string(200, 'x') + song),
       "Song"},
      {"past empty frames", Tag(3, 0, Frame3("TALB", "") + song), "Song"},
      {"up to padding", Tag(3, 0, Zeros(10) + song), ""},
      {"up to the tag's end", Tag(3, 0, Frame3("TALB", "x")) + song, ""},
      {"an overflow ends it", Tag(3, 0, song + "APIC" + Big(0xFFFFFFFF) + Zeros(9)), "Songabsent"},
  };
  for (const Row& row : rows) {
    const auto r = Read(row.file);
    EXPECT_EQ(r.SongTitle + (r.TagPresent ? "" : "absent"), row.expected) << row.what;
  }
  EXPECT_EQ(Read(Tag(3, 0x40, checksum + song)).CRCValue, 0xFFFFFFFE);

  std::string told;
  clsID3V230Reader reader([&](const std::string& text) { told = text; });
  const std::string unsync = Tag(3, 0x80, song);
  MemorySource source(AsBytes(unsync));
  reader.ReadID3V230Tag(source, true);
  EXPECT_EQ(told + (reader.TagPresent ? "there" : ""), "there");
  reader.ReadID3V230Tag(source, false);
  EXPECT_FALSE(reader.TagPresent);
  EXPECT_NE(told.find("Tag is Unsyncronized.  This"), told.npos);
}

TEST(clsID3V230Reader, ListsPicturesAndLiftsThemOut) {
  const Scratch scratch;
  const std::string big(3000000, 'p');
  const std::string path = scratch.Put(
      "song.mp3", Tag(3, 0,
                      Apic("image/jpeg", 3, "Front", big) + Apic("image/png", 0, "", "q") +
                          Apic("image/../../x", 17, "", "evil")));
  clsID3V230Reader reader;
  reader.ReadID3V230Tag(path, false);
  EXPECT_EQ(reader.GraphicTitle, "Front||");
  EXPECT_EQ(reader.GraphicExtended, "Front Cover|Other|A Bright Colored Fish???");
  EXPECT_EQ(reader.GraphicSize, "3000019|14|21");
  EXPECT_EQ(reader.GraphicStartPos, "10|3000039|3000063");
  scratch.Put("song.mp30.jpg", "taken");
  std::string kind;
  std::string title;
  EXPECT_EQ(reader.ExtractGraphic(path, 10, 3000019, &kind, &title), path + "1.jpg");
  EXPECT_EQ(kind + title, "jpegFront");
  EXPECT_EQ(scratch.Read("song.mp31.jpg"), big);
  EXPECT_EQ(reader.ExtractGraphic(path, 3000039, 14), path + "0.png");
  EXPECT_EQ(scratch.Read("song.mp30.png"), "q");
  // No tag writes outside the folder, and nothing half made is left.
  EXPECT_EQ(reader.ExtractGraphic(path, 3000063, 21), "");
  EXPECT_EQ(reader.ExtractGraphic(path + "x", 10, 9), "");
  EXPECT_FALSE(std::filesystem::exists(scratch.Native("song.mp3.pic")));
}

TEST(clsMP3HeadReader, TakesTheFirstByteFFForAFrame) {
  const std::string body(16000, 'x');
  const Row rows[] = {
      {"version 1", "xx\xFF\xFB\x90\x68" + body, "128 44100 1 Joint Stereo protected copyright"},
      {"behind a tag", Tag(3, 0, "\xFF\xFB\xFF\xFF") + "\xFF\xFA\xE4\xC0" + body,
       "320 48000 0 Mono"},
      {"any FF", "\xFF\x08\x98\x80" + body, "0 32000 0 Dual Channel"},
      {"version 2", "\xFF\xF3\x90\x40" + body, "0 22050 0 Joint Stereo protected"},
      {"just whole", "\xFF\xFB\x90\x64", "128 44100 0 Joint Stereo protected"},
      {"too near the end", "\xFF\xFB\x90", "0 0 0 "},
      {"none", "xxxx", "0 0 0 "},
  };
  for (const Row& row : rows) {
    InfotagRecord record;
    MemorySource source(AsBytes(row.file));
    clsMP3HeadReader(record).ReadMP3Header(source);
    const Infotag tag(record);
    EXPECT_EQ(std::to_string(tag.Bitrate()) + " " + tag.Frequency() + " " +
                  std::to_string(tag.Length()) + " " + tag.Mode() +
                  (tag.IsProtected() ? " protected" : "") + (tag.IsCopyright() ? " copyright" : ""),
              row.expected)
        << row.what;
    EXPECT_EQ(tag.FileSize() + std::to_string(tag.Layer()), std::to_string(row.file.size()) + "0");
  }
  // A record that wasn't emptied: version 2 goes by the rate in it.
  InfotagRecord record;
  record.Bitrate = 7;
  const std::string file = "\xFF\xF3\x90\x40" + body;
  MemorySource source(AsBytes(file));
  clsMP3HeadReader(record).ReadMP3Header(source);
  EXPECT_EQ(record.Bitrate, 56);
}

TEST(Infotag, TakesVersion1OnlyWhereItStandsAlone) {
  const Scratch scratch;
  const std::string v1 = Id3v1("Old" + Zeros(27) + "Oldies", Zeros(3));
  const std::string v2 = Tag(3, 0, Frame3("TIT2", Latin("New")));
  InfotagRecord record;
  Infotag tag(record);
  for (const auto& [file, names] : {std::pair(v1, "Old|Oldies"),
                                    {v2 + v1, "New|"},
                                    {v2, "New|"},
                                    {Tag(4, 0, "x") + v1, "Old|Oldies"},
                                    {std::string("x"), "|"}}) {
    EXPECT_TRUE(tag.Find_Header_Tags(scratch.Put("a.mp3", file)));
    EXPECT_EQ(tag.Title() + "|" + tag.artist(), names);
  }
  EXPECT_TRUE(tag.Find_Header_Tags(scratch.Path("none.mP3  ")));
  EXPECT_FALSE(tag.Find_Header_Tags("MP3"));
  EXPECT_FALSE(tag.Find_Header_Tags(scratch.Path("a.mp3.tag")));
  EXPECT_EQ(tag.FileSize(), "0");
}

}  // namespace
}  // namespace sonotik
