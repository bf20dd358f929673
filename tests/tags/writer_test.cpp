// What the writer writes, read back by its counterpart and by an independent reader.
#include "tags/clsID3V230Writer.h"

#include <gtest/gtest.h>
#include <taglib/attachedpictureframe.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>

#include "tags/clsID3V230Reader.h"
#include "tags/tag_files.h"

namespace sonotik {
namespace {

class Writer : public testing::Test {
 protected:
  std::string Written(const clsID3V230Writer& writer, const std::string& before) {
    const std::string path = scratch.Put("a.mp3", before);
    writer.WriteID3V230Tag(path);
    EXPECT_FALSE(scratch.Has("a.mp3.mp3") || scratch.Has("a.mp3.new"));
    return scratch.Read("a.mp3");
  }

  Scratch scratch;
  const std::string picture = std::string(2500000, 'p');
  const std::string audio = "\xFF\xFB\x90\x64" + std::string(2500000, 'x');
};

TEST_F(Writer, IsReadBackByItsCounterpartAndByAnIndependentReader) {
  clsID3V230Writer w;
  w.SongTitle = "Song";
  w.artist = "Band";
  // From 128 bytes on, encoding byte included, the sizes of text frames are this library's own.
  w.album = std::string(126, 'a');
  w.Year = "1999";
  w.Track = "3/12";
  w.Genre = "Soul";
  w.Comment = "fine";
  w.Composer = "Co";
  w.OriginalArtist = "Orig";
  w.Language = "deu";
  w.SubTitle = "Sub";
  w.Copyright = "(c)";
  w.EncodedBy = "Enc";
  w.URL = "a.org|b.org";
  w.Lyrics = "la\r\nla" + std::string(200, '!');
  w.SyncLyrics = "[00:01]one\r\n[61:05]two" + std::string(200, '!');
  w.Graphic = scratch.Put("c.JPEG", picture) + "|" + scratch.Path("none.png") + "|" +
              scratch.Put("d.png", "small");
  w.GraphicType = "front COVER|media|nonsense";
  w.GraphicTitle = "Front|gone|Last";
  const std::string file = Written(w, Tag(4, 0x10, Frame4("TIT2", Latin("old"))) + audio);
  EXPECT_TRUE(file.ends_with(audio));

  const std::string path = scratch.Path("a.mp3");
  clsID3V230Reader r;
  r.ReadID3V230Tag(path, false);
  EXPECT_TRUE(r.TagPresent);
  EXPECT_EQ(Joined({r.SongTitle, r.artist, r.album, r.Year, r.Genre, r.Comment, r.Composer,
                    r.OriginalArtist, r.Language, r.SubTitle, r.Copyright, r.EncodedBy, r.URL}),
            "Song|Band|" + w.album + "|1999|Soul|fine|Co|Orig|deu|Sub|(c)|Enc|a.org|b.org|");
  EXPECT_EQ(r.Track * 100 + r.Tracks, 312);
  EXPECT_EQ(r.Lyrics + r.SyncLyrics, w.Lyrics + w.SyncLyrics);
  EXPECT_EQ(r.GraphicTitle + r.GraphicExtended + r.Unknown, "Front|LastFront Cover|Other");
  EXPECT_EQ(r.ExtractGraphic(path, std::stol(r.GraphicStartPos), std::stol(r.GraphicSize)),
            scratch.Path("a.mp30.jpg"));
  EXPECT_EQ(scratch.Read("a.mp30.jpg"), picture);

  TagLib::MPEG::File judge(scratch.Native("a.mp3").c_str());
  ASSERT_TRUE(judge.hasID3v2Tag());
  const TagLib::ID3v2::Tag& tag = *judge.ID3v2Tag();
  EXPECT_EQ(tag.header()->majorVersion(), 3u);
  EXPECT_EQ(tag.header()->completeTagSize() + audio.size(), file.size());
  EXPECT_EQ((tag.title() + tag.artist() + tag.album() + tag.genre() + tag.comment()).to8Bit(),
            "SongBand" + w.album + "Soulfine");
  EXPECT_EQ(tag.year() * 100 + tag.track(), 199903u);
  const auto& pictures = tag.frameList("APIC");
  ASSERT_EQ(pictures.size(), 2u);
  const auto& front = dynamic_cast<const TagLib::ID3v2::AttachedPictureFrame&>(*pictures.front());
  EXPECT_EQ((front.mimeType() + front.description()).to8Bit(), "image/jpgFront");
  EXPECT_EQ(front.type(), TagLib::ID3v2::AttachedPictureFrame::FrontCover);
  EXPECT_EQ(front.picture().size(), picture.size());
}

TEST_F(Writer, LeavesTheFileAndNothingHalfMadeWhereItFails) {
  // The second picture grows while the first is copied.
  clsID3V230Writer w([&] { scratch.Put("d.png", "grown"); });
  w.Graphic = scratch.Put("c.png", "first") + "|" + scratch.Put("d.png", "d");
  EXPECT_EQ(Written(w, audio), audio);
  // A name that is taken by a folder can't be written.
  std::filesystem::create_directory(scratch.Native("a.mp3.mp3"));
  w.WriteID3V230Tag(scratch.Put("a.mp3", "kept"));
  EXPECT_EQ(scratch.Read("a.mp3"), "kept");
  w.WriteID3V230Tag(scratch.Path("none.mp3"));
  EXPECT_FALSE(scratch.Has("none.mp3") || scratch.Has("none.mp3.mp3"));
}

TEST_F(Writer, KeepsToTheBytesThatItsReaderExpects) {
  clsID3V230Writer w;
  EXPECT_EQ(Written(w, Tag(2, 0, "old") + audio), audio);
  EXPECT_EQ(Written(w, "no tag"), "no tag");
  // A tag that lies about its size takes no sound with it.
  const std::string lying = "ID3" + Bytes("\3\0\0\x7F\x7F\x7F\x7F") + audio;
  EXPECT_EQ(Written(w, lying), lying);
  w.SongTitle = std::string(200, 's');
  EXPECT_EQ(Written(w, "x"),
            Tag(3, 0, Bytes("TIT2\0\0\1\x49\0\0\0") + std::string(200, 's')) + "x");
  w.SongTitle = "";
  w.Language = "en";
  w.Comment = "c";
  EXPECT_EQ(Written(w, "x"),
            Tag(3, 0, Frame4("COMM", Bytes("\0eng\0c")) + Frame4("TLAN", Latin("en"))) + "x");
  for (const auto& [name, number] : {std::pair("32x32 ICON", 1),
                                     {"a bright colored fish", 17},
                                     {"Publisher Logo", 20},
                                     {"other", 0}}) {
    EXPECT_EQ(clsID3V230Writer::GetGraphicType(name), number) << name;
  }
}

}  // namespace
}  // namespace sonotik
