// The object-shaped readers of an MP3's head and of ID3v2.3, and Infotag over them.
#include <gtest/gtest.h>

#include "tags/Infotag.h"
#include "tags/clsID3V230Reader.h"
#include "tags/clsMP3HeadReader.h"
#include "tags/tag_files.h"

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

TEST(clsID3V230Reader, TakesOtherFramesApart) {
  const std::string lines =
      Bytes("\0eng\2\1d\0one\n\0") + Big(61000) + Bytes("two\0") + Big(3600000);
  const clsID3V230Reader r =
      Read(Tag(3, 0x20,
               Frame3("COMM", Bytes("\0engabout\0fine\0more")) + Frame3("TRCK", Latin("3/256")) +
                   Frame3("WXXX", Bytes("\0\0a.org")) + Frame3("WXXX", Bytes("\0b\0b.org")) +
                   Frame3("USLT", Bytes("\0eng\0la")) + Frame3("USLT", Bytes("\0engla")) +
                   Frame3("USLT", Bytes("\0eng{::}li")) + Frame3("PRIV", Bytes("\0a\0b")) +
                   Frame3("TSSE", "") + Frame3("SYLT", lines)));
  EXPECT_TRUE(r.TagPresent && r.ExperimentalTag && !r.ExtendedHeader && !r.CRC);
  EXPECT_EQ(Joined({r.Comment, r.URL, r.Lyrics, r.SyncLyrics, r.Unknown}),
            "fine|a.org|b->b.org|la\r\nli|[01:01]one\r\n[60:00]two|PRIV=a b|TSSE=|");
  EXPECT_EQ(r.Track * 1000 + r.Tracks, 3000);
}

TEST(clsID3V230Reader, KnowsItsVersionItsSizesAndTheTagsEnd) {
  const std::string song = Frame3("TIT2", Latin("Song"));
  const std::string lyrics = Bytes("\0eng\0") + std::string(200, 'l');
  const std::string unmasked = "TALB" + Bytes("\0\0\0\xC8\0\0") + std::string(200, 'x');
  const std::string checksum = Big(10) + Zeros(2) + Big(0) + Big(0xFFFFFFFE);
  Check({{"2.2", Tag(2, 0, song), "absent"},
         {"2.4", Tag(4, 0, song), "absent"},
         {"extended", Tag(3, 0x40, Big(6) + Zeros(6) + song), "Song"},
         {"checksum", Tag(3, 0x40, checksum + song), "Song"},
         {"weighed sizes", Tag(3, 0, Frame4("TALB", std::string(300, 'x')) + song), "Song"},
         {"plain for lyrics", Tag(3, 0, Frame3("USLT", lyrics) + song), "Song"},
         {"nothing masked", Tag(3, 0, unmasked + song), "Song"},
         {"past empty frames", Tag(3, 0, Frame3("TALB", "") + song), "Song"},
         {"up to padding", Tag(3, 0, Zeros(10) + song), ""},
         {"up to the tag's end", Tag(3, 0, Frame3("TALB", "x")) + song, ""},
         {"an overflow ends it", Tag(3, 0, song + "APIC" + Big(0xFFFFFFFF) + Zeros(9)),
          "Songabsent"}},
        [](const std::string& file) {
          const auto r = Read(file);
          return r.SongTitle + (r.TagPresent ? "" : "absent");
        });
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
  EXPECT_FALSE(scratch.Has("song.mp3.pic"));
}

TEST(clsMP3HeadReader, TakesTheFirstByteFFForAFrame) {
  const std::string body(16000, 'x');
  const std::string version2 = "\xFF\xF3\x90\x40" + body;
  InfotagRecord record;
  const auto figures = [&](const std::string& file) {
    MemorySource source(AsBytes(file));
    clsMP3HeadReader(record).ReadMP3Header(source);
    const Infotag tag(record);
    EXPECT_EQ(tag.FileSize() + std::to_string(tag.Layer()), std::to_string(file.size()) + "0");
    return std::to_string(tag.Bitrate()) + " " + tag.Frequency() + " " +
           std::to_string(tag.Length()) + " " + tag.Mode() +
           (tag.IsProtected() ? " protected" : "") + (tag.IsCopyright() ? " copyright" : "");
  };
  Check({{"version 1", "xx\xFF\xFB\x90\x68" + body, "128 44100 1 Joint Stereo protected copyright"},
         {"behind a tag", Tag(3, 0, "\xFF\xFB\xFF\xFF") + "\xFF\xFA\xE4\xC0" + body,
          "320 48000 0 Mono"},
         {"any FF", "\xFF\x08\x98\x80" + body, "0 32000 0 Dual Channel"},
         {"version 2", version2, "0 22050 0 Joint Stereo protected"},
         {"just whole", "\xFF\xFB\x90\x64", "128 44100 0 Joint Stereo protected"},
         {"too near the end", "\xFF\xFB\x90", "0 0 0 "},
         {"none", "xxxx", "0 0 0 "}},
        [&](const std::string& file) {
          record = {};
          return figures(file);
        });
  // A record that wasn't emptied: version 2 goes by the rate in it.
  record.Bitrate = 7;
  EXPECT_EQ(figures(version2), "56 22050 2 Joint Stereo protected");
}

TEST(Infotag, TakesVersion1OnlyWhereItStandsAlone) {
  const Scratch scratch;
  const std::string v1 = Id3v1("Old" + Zeros(27) + "Oldies", Zeros(3));
  const std::string v2 = Tag(3, 0, Frame3("TIT2", Latin("New")));
  InfotagRecord record;
  Infotag tag(record);
  Check({{"1", v1, "Old|Oldies|"},
         {"both", v2 + v1, "New||"},
         {"2.3", v2, "New||"},
         {"2.4 isn't read", Tag(4, 0, "x") + v1, "Old|Oldies|"},
         {"none", "x", "||"}},
        [&](const std::string& file) {
          EXPECT_TRUE(tag.Find_Header_Tags(scratch.Put("a.mp3", file)));
          return Joined({tag.Title(), tag.artist()});
        });
  EXPECT_TRUE(tag.Find_Header_Tags(scratch.Path("none.mP3  ")));
  EXPECT_FALSE(tag.Find_Header_Tags("MP3"));
  EXPECT_FALSE(tag.Find_Header_Tags(scratch.Path("a.mp3.tag")));
  EXPECT_EQ(tag.FileSize(), "0");
}

}  // namespace
}  // namespace sonotik
