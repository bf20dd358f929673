// The object-shaped reader of ID3v2.3.
#include <gtest/gtest.h>

#include "tags/clsID3V230Reader.h"
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

}  // namespace
}  // namespace sonotik
