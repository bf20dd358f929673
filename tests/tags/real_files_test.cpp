// Real MP3s: sound by ffmpeg, tags by TagLib, which also judges the running time.
#include <gtest/gtest.h>
#include <taglib/id3v2framefactory.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>

#include <cstdlib>

#include "tags/mpeg_info.h"
#include "tags/tag_bytes.h"
#include "tags/tag_reader.h"

namespace sonotik {
namespace {

TEST(RealFiles, NamesAndTimeAgreeWithAnIndependentReader) {
  const Scratch scratch;
  TagFields fields;
  TagReader reader(fields, [] { return false; });
  for (const char* sound : {"-ar 44100 -ac 2 -b:a 128k", "-ar 22050 -ac 1 -q:a 5"}) {
    const std::string native = scratch.Native("a.mp3").string();
    const std::string command = "ffmpeg -v error -y -f lavfi -i sine=frequency=440:duration=7 " +
                                std::string(sound) + " '" + native + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);
    for (const auto version : {TagLib::ID3v2::v3, TagLib::ID3v2::v4}) {
      for (const auto& encoding : {TagLib::String::Latin1, TagLib::String::UTF16}) {
        TagLib::ID3v2::FrameFactory::instance()->setDefaultTextEncoding(encoding);
        TagLib::MPEG::File file(native.c_str());
        file.strip();
        TagLib::ID3v2::Tag& tag = *file.ID3v2Tag(true);
        tag.setTitle("Rock & Roll");
        tag.setArtist("Band");
        tag.setAlbum(std::string(300, 'a'));
        tag.setYear(1999);
        tag.setGenre("Soul");
        ASSERT_TRUE(file.save(TagLib::MPEG::File::ID3v2, TagLib::File::StripOthers, version));
        reader.Readtag(scratch.Path("a.mp3"));
        EXPECT_EQ(fields.txtTitle + "|" + fields.txtArtist, "Rock && Roll|Band");
        EXPECT_EQ(fields.txtAlbum, std::string(300, 'a'));
        EXPECT_EQ(fields.txtYear + "|" + fields.txtGenre, "1999|Soul");

        const TagLib::MPEG::File judge(native.c_str());
        const auto& heard = *judge.audioProperties();
        MpegInfo info;
        ASSERT_TRUE(ReadMpegInfo(scratch.Path("a.mp3"), info));
        EXPECT_NEAR(static_cast<double>(info.Seconds), heard.lengthInMilliseconds() / 1000.0, 0.6);
        EXPECT_EQ(info.SampleRate, heard.sampleRate());
        EXPECT_NEAR(static_cast<double>(info.Bitrate), heard.bitrate(), 2);
      }
    }
  }
}

}  // namespace
}  // namespace sonotik
