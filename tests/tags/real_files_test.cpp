// Real files: sound by ffmpeg, tags by TagLib, which also judges what is read of the MP3s.
#include <gtest/gtest.h>
#include <taglib/attachedpictureframe.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2framefactory.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>

#include <cstdlib>

#include "tags/mpeg_info.h"
#include "tags/tag_files.h"
#include "tags/tag_reader.h"
#include "text/text.h"

namespace sonotik {
namespace {

constexpr auto kV1 = TagLib::MPEG::File::ID3v1;
constexpr auto kV2 = TagLib::MPEG::File::ID3v2;
constexpr auto kNone = TagLib::MPEG::File::NoTags;

class RealFiles : public testing::Test {
 protected:
  void Make(const std::string& name, const std::string& options) {
    const std::string command = "ffmpeg -v error -y -f lavfi -i sine=frequency=440:" + options +
                                " '" + scratch.Native(name).string() + "'";
    EXPECT_EQ(std::system(command.c_str()), 0) << options;
  }

  std::string Sound(const std::string& options) {
    Make("sound.mp3", "duration=7 " + options);
    TagLib::MPEG::File(scratch.Native("sound.mp3").c_str()).strip();
    return scratch.Read("sound.mp3");
  }

  void PutTag(int tags, TagLib::ID3v2::Version version, size_t cover) {
    TagLib::MPEG::File file(scratch.Native("a.mp3").c_str());
    if (tags == kNone) return;
    TagLib::ID3v2::Tag* const tag = file.ID3v2Tag(true);
    tag->setTitle("Rock & Roll");
    tag->setArtist("Band");
    tag->setAlbum(std::string(300, 'a'));
    tag->setYear(1999);
    tag->setGenre("Soul");
    if (cover > 0) {
      auto* const picture = new TagLib::ID3v2::AttachedPictureFrame;
      picture->setMimeType("image/jpeg");
      // False starts of frames in the picture must not be taken for sound.
      picture->setPicture(TagLib::ByteVector(static_cast<unsigned>(cover), '\xFF'));
      tag->addFrame(picture);
    }
    const auto copies = tags & kV1 ? TagLib::File::Duplicate : TagLib::File::DoNotDuplicate;
    ASSERT_TRUE(file.save(tags, TagLib::File::StripOthers, version, copies));
  }

  // Title, artist, album, year and genre as the judge tells them, in the shape of the fields.
  std::string Judged() const {
    const TagLib::MPEG::File judge(scratch.Native("a.mp3").c_str());
    const TagLib::Tag& tag = *judge.tag();
    return Joined({ReplaceAll(tag.title().to8Bit(true), "&", "&&"), tag.artist().to8Bit(true),
                   tag.album().to8Bit(true), tag.year() ? std::to_string(tag.year()) : "",
                   tag.genre().to8Bit(true)});
  }
  std::string Read(const std::string& name) {
    reader.ReadFor(TagCaller::kTrackList, scratch.Path(name));
    return Joined(
        {fields.txtTitle, fields.txtArtist, fields.txtAlbum, fields.txtYear, fields.txtGenre});
  }

  Scratch scratch;
  TagFields fields;
  TagReader reader{fields, [] { return false; }};
};

TEST_F(RealFiles, NamesAgreeWithAnIndependentReader) {
  const std::string sound = Sound("-ar 44100 -ac 2 -b:a 128k");
  using TagLib::String;
  using TagLib::ID3v2::v3;
  using TagLib::ID3v2::v4;
  const struct {
    int tags;
    TagLib::ID3v2::Version version;
    String::Type encoding;
    size_t cover;
  } rows[] = {{kV2, v3, String::Latin1, 0},
              {kV2, v3, String::UTF16, 1 << 20},
              {kV2, v4, String::Latin1, 1 << 20},
              {kV2, v4, String::UTF16, 0},
              {kV2, v4, String::UTF8, 0},
              {kV1 | kV2, v3, String::Latin1, 0},
              {kV1 | kV2, v4, String::Latin1, 40960},
              {kNone, v4, String::Latin1, 0}};
  for (const auto& row : rows) {
    TagLib::ID3v2::FrameFactory::instance()->setDefaultTextEncoding(row.encoding);
    scratch.Put("a.mp3", sound);
    PutTag(row.tags, row.version, row.cover);
    EXPECT_EQ(Read("a.mp3"), Judged());
    EXPECT_EQ(fields.txtmp3time, "0:07");
  }
}

TEST_F(RealFiles, ReadsOtherwiseOnPurposeInThesePlaces) {
  const std::string sound = Sound("-ar 44100 -ac 2 -b:a 128k");
  const auto tag3 = [](const char* id, const std::string& data) {
    return Tag(3, 0, Frame3(id, data));
  };
  const std::string two = Frame3("TIT2", Latin("One")) + Frame3("TIT2", Latin("Two"));
  const struct {
    const char* why;
    std::string tag;
    const char* judged;
    const char* read;
    std::string tail = {};
  } rows[] = {
      {"version 2.2 is no exception", Tag(2, 0, Frame2("TT2", Latin("Song"))), "Song|||||",
       "Song|||||"},
      {"ID3v1 alone stays unread", "", "Old||||Rock|", "|||||", Id3v1("Old", Bytes("\0\0\x11"))},
      {"a bracketed genre replaces its text", tag3("TCON", Latin("(17)Own")), "||||Rock Own|",
       "||||Rock|"},
      {"a bare genre number stays one", tag3("TCON", Latin("17")), "||||Rock|", "||||17|"},
      {"its own names of genres", tag3("TCON", Latin("(40)")), "||||Alternative Rock|",
       "||||Alt. Rock|"},
      {"big-endian UTF-16 is empty", tag3("TIT2", Bytes("\1\xFE\xFF\0A")), "A|||||", "|||||"},
      {"no letter is recoded", tag3("TIT2", Latin("\xE9")), "\xC3\xA9|||||", "\xE9|||||"},
      {"only low bytes of UTF-16", tag3("TIT2", "\1\xFF\xFE\x42\x30"), "\xE3\x81\x82|||||",
       "B|||||"},
      {"the last of two frames", Tag(3, 0, two), "One|||||", "Two|||||"},
      {"up to the first NUL", Tag(4, 0, Frame4("TPE1", Bytes("\0One\0Two"))), "|One Two||||",
       "|One||||"},
      {"a year as it is written", tag3("TYER", Latin("c. 1999")), "|||||", "|||c. 1999||"}};
  for (const auto& row : rows) {
    scratch.Put("a.mp3", row.tag + sound + row.tail);
    EXPECT_EQ(Judged(), row.judged) << row.why;
    EXPECT_EQ(Read("a.mp3"), row.read) << row.why;
  }
}

TEST_F(RealFiles, TimesAndRatesAgreeWithAnIndependentReader) {
  const std::string vbri = "VBRI" + Bytes("\0\1\0\0\0\x32") + Big(70000) + Big(268) + Zeros(10);
  const std::string constant = " -write_xing 0";
  const struct {
    std::string sound;
    const char* version;
    bool vbr;
    std::string header = {};  // in the place of the first frame's data
  } rows[] = {{"-ar 44100 -ac 2 -b:a 128k" + constant, "version 1 layer 3", false},
              {"-ar 44100 -ac 2 -b:a 128k", "version 1 layer 3", true},  // "Info"
              {"-ar 48000 -ac 2 -q:a 4", "version 1 layer 3", true},     // "Xing"
              {"-ar 32000 -ac 1 -b:a 64k" + constant, "version 1 layer 3", false},
              {"-ar 22050 -ac 1 -q:a 5", "version 2 layer 3", true},
              {"-ar 24000 -ac 2 -b:a 64k" + constant, "version 2 layer 3", false},
              {"-ar 11025 -ac 1 -b:a 16k" + constant, "version 2.5 layer 3", false},
              {"-ar 8000 -ac 2 -q:a 6", "version 2.5 layer 3", true},
              {"-ar 44100 -ac 2 -b:a 192k -f mp2", "version 1 layer 2", false},
              {"-ar 44100 -ac 2 -b:a 128k" + constant, "version 1 layer 3", true, vbri}};
  for (const auto& row : rows) {
    const std::string sound = Sound(row.sound).replace(36, row.header.size(), row.header);
    for (const size_t cover : {size_t{0}, size_t{1} << 20}) {
      scratch.Put("a.mp3", sound);
      if (cover > 0) PutTag(kV2, TagLib::ID3v2::v3, cover);
      const TagLib::MPEG::File judge(scratch.Native("a.mp3").c_str());
      const auto& heard = *judge.audioProperties();
      MpegInfo info;
      ASSERT_TRUE(ReadMpegInfo(scratch.Path("a.mp3"), info)) << row.sound;
      EXPECT_NEAR(static_cast<double>(info.Seconds), heard.lengthInMilliseconds() / 1000.0, 0.6)
          << row.sound;
      EXPECT_EQ(info.SampleRate, heard.sampleRate()) << row.sound;
      EXPECT_NEAR(static_cast<double>(info.Bitrate), heard.bitrate(), 2) << row.sound;
      EXPECT_EQ(info.IsVbr, row.vbr) << row.sound;
      EXPECT_EQ(info.Version, row.version) << row.sound;
      EXPECT_EQ(info.ChannelMode == "Mono", heard.channels() == 1) << row.sound;
    }
  }
}

}  // namespace
}  // namespace sonotik
