#include "desktop/mpv_player.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <cmath>
#include <map>

#include "desktop/event_loop.h"
#include "support/gif_files.h"

namespace sonotik {
namespace {
namespace fs = std::filesystem;

class MpvPlayerTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = std::make_unique<TempFolder>();
    fs::current_path(folder_->native());
    const std::string sound = " -f lavfi -i sine=440:d=1 ";
    Make(sound + "tone.wav");
    Make(sound + "-b:a 128k tone.mp3");
    Make("-f lavfi -i color=red:s=160x240:d=1 -f lavfi -i color=blue:s=160x240:d=1" + sound +
         "-filter_complex '[0][1]hstack,setdar=16/9' -c:v mpeg2video -c:a mp2 clip.mpg");
    Make("-i clip.mpg -c copy -metadata:s:v rotate=90 turned.mp4");
    Make(
        "-i tone.mp3 -i clip.mpg -map 0:a -map 1:v -c:a copy -c:v png -frames:v 1 "
        "-disposition:v attached_pic cover.mp3");
    const std::string tone = folder_->Read("tone.wav");
    folder_->Write("cut.wav", tone.substr(0, tone.size() / 2));
    for (const char* name : {"-vo.wav", "a:b,c;%41&.wav", "caf\xe9.wav"}) {
      folder_->Write(name, tone);
    }
  }
  static void TearDownTestSuite() {
    fs::current_path("/");
    folder_.reset();
  }
  static void Make(const std::string& arguments) {
    RunIn(*folder_, "ffmpeg -v error -nostdin " + arguments);
  }
  // Two seconds of CD+G, 300 packets of 24 bytes each: a screen of one colour from `first` on and
  // nothing after it.
  static std::string Cdg(int first) {
    std::string bytes(600 * 24, '\0');
    const std::string colors = {9, 30, 0, 0, 0, 0, 0x3c, 0};  // number 1 is red
    const std::string preset = {9, 1, 0, 0, 1};
    bytes.replace(first * 24, colors.size(), colors);
    bytes.replace((first + 1) * 24, preset.size(), preset);
    return bytes;
  }

  bool AtEnd() { return player_->Position() == player_->Length(); }
  bool PlayToEnd() {
    return player_->Run() && Becomes([this] { return AtEnd(); });
  }
  // While another player plays on.
  bool StandsStill() {
    MpvPlayer other([](const std::function<void()>&) {});
    other.RenderFile("tone.wav");
    other.Run();
    const double place = *player_->Position();
    return Becomes([&] { return *other.Position() > 0.2; }) &&
           std::abs(*player_->Position() - place) < 0.1;
  }
  // Blue, green and red of the picture shown.
  std::vector<int> Pixel(int x, int y) {
    const PixelSurface& pixels = player_->pixels();
    const uint8_t* at = &pixels.bytes.at(y * pixels.stride + x * 4);
    return {at[0], at[1], at[2]};
  }
  bool ShowsPicture(int width, int height) {
    return Becomes([&, this] {
      const PixelSurface& pixels = player_->pixels();
      return pixels.width == width && pixels.height == height && Pixel(1, 1)[2] > 150;
    });
  }

  static inline std::unique_ptr<TempFolder> folder_;
  std::unique_ptr<MpvPlayer> player_ =
      std::make_unique<MpvPlayer>([](const std::function<void()>& closure) {
        QMetaObject::invokeMethod(qApp, closure, Qt::QueuedConnection);
      });
};

TEST(MpvVolume, IsTheCubeRootOfTheGain) {
  const struct {
    int hundredths;
    double gain;
  } kCases[] = {{0, 1},      {-2000, 0.1}, {-6000, 0.001}, {-9999, 1.00115e-5},
                {-10000, 0}, {-20000, 0},  {500, 1}};
  for (const auto& [hundredths, gain] : kCases) {
    EXPECT_NEAR(std::pow(VolumePercent(hundredths) / 100, 3), gain, 1e-9) << hundredths;
  }
}

TEST_F(MpvPlayerTest, OpensAnyNamedFilePausedAtItsStart) {
  for (const char* name : {"tone.wav", "TONE.mp3", "clip.mpg", "turned.mp4", "-vo.wav",
                           "a:b,c;%41&.wav", "caf\xe9.wav", ".\\\\tone.wav"}) {
    ASSERT_TRUE(player_->RenderFile(name)) << name;
    EXPECT_NEAR(player_->Length().value_or(-1), 1, 0.1) << name;
    EXPECT_NEAR(player_->Position().value_or(-1), 0, 0.05) << name;
  }
}

TEST_F(MpvPlayerTest, RefusesWhatIsNoMediaOfItsOwn) {
  std::string noise(20000, '\0');
  for (size_t i = 0; i < noise.size(); ++i) noise[i] = static_cast<char>(i * i * 2654435761u >> 13);
  std::map<std::string, std::string> files = {
      {"zero.mp3", ""},
      {"noise.mp3", noise},
      {"list.m3u", "#EXTM3U\n/etc/passwd\n"},
      {"list.mp3", "#EXTM3U\ntone.wav\n"},
      {"segments.m3u8", "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\ntone.wav\n#EXT-X-ENDLIST\n"},
      {"edit.wav", "# mpv EDL v0\ntone.wav\n"},
      {"joined.wav", "ffconcat version 1.0\nfile tone.wav\n"},
      {"sheet.cue", "FILE \"tone.wav\" WAVE\n  TRACK 01 AUDIO\n    INDEX 01 00:00:00\n"}};
  for (const auto& [name, bytes] : files) folder_->Write(name, bytes);
  fs::create_directory("folder.wav");
  for (const char* none : {"folder.wav", "missing.cdg", "", "http://localhost/a.mp3"}) files[none];
  for (const auto& [name, bytes] : files) {
    ASSERT_TRUE(player_->RenderFile("tone.wav"));
    EXPECT_FALSE(player_->RenderFile(name)) << name;
    EXPECT_FALSE(player_->Position() || player_->Length()) << name;
  }
  EXPECT_FALSE(player_->Run() || player_->Pause() || player_->Stop() || player_->SetPosition(0) ||
               player_->SetRate(1) || player_->Rate() || player_->NativeSize());
}

TEST_F(MpvPlayerTest, EndsWithThePositionAtTheLengthAndPlaysAgain) {
  for (const char* name : {"tone.wav", "tone.mp3", "clip.mpg", "cut.wav"}) {
    ASSERT_TRUE(player_->RenderFile(name)) << name;
    ASSERT_TRUE(player_->SetRate(2));
    ASSERT_TRUE(PlayToEnd()) << name;
    EXPECT_TRUE(player_->Stop());
    EXPECT_TRUE(AtEnd()) << name;
    ASSERT_TRUE(player_->SetPosition(0));
    EXPECT_NEAR(*player_->Position(), 0, 0.05) << name;
    EXPECT_TRUE(PlayToEnd()) << name;
  }
}

// By then libmpv has read all of the file, and pauses by itself at the end.
TEST_F(MpvPlayerTest, APauseJustBeforeTheEndIsNotTheEnd) {
  ASSERT_TRUE(player_->RenderFile("clip.mpg"));
  ASSERT_TRUE(player_->SetPosition(*player_->Length() - 0.1));
  player_->Run();
  player_->Pause();
  EXPECT_TRUE(StandsStill());
  EXPECT_LT(*player_->Position(), *player_->Length());
  EXPECT_TRUE(PlayToEnd());
}

TEST_F(MpvPlayerTest, PauseKeepsThePlaceAndTheNextFileOpensPaused) {
  ASSERT_TRUE(player_->RenderFile("tone.wav"));
  EXPECT_TRUE(player_->SetBalance(-1000));
  player_->Run();
  ASSERT_TRUE(Becomes([this] { return *player_->Position() > 0.2; }));
  ASSERT_TRUE(player_->Pause());
  EXPECT_TRUE(StandsStill());
  const double place = *player_->Position();
  ASSERT_TRUE(player_->Run());
  ASSERT_TRUE(Becomes([&, this] { return *player_->Position() != place; }));
  EXPECT_GT(*player_->Position(), place - 0.05);
  EXPECT_LT(*player_->Position(), 0.9);

  ASSERT_TRUE(player_->RenderFile("tone.mp3"));
  EXPECT_TRUE(StandsStill());
}

TEST_F(MpvPlayerTest, RendersThePictureAtThePlacedSize) {
  ASSERT_TRUE(player_->RenderFile("clip.mpg"));
  const std::optional<VideoSize> size = player_->NativeSize();
  ASSERT_TRUE(size);
  EXPECT_NEAR(size->width, 427, 1);  // of 320: its pixels are wide
  EXPECT_EQ(size->height, 240);

  // Fills the box, whatever the ratio, also paused; from left red and blue.
  for (const auto& [width, height] : {std::pair{100, 300}, {333, 21}}) {
    ASSERT_TRUE(player_->PlaceVideo({VideoHost::kMainWindow, 0, 0, width, height}));
    ASSERT_TRUE(ShowsPicture(width, height));
    EXPECT_EQ(player_->pixels().bytes.size(), size_t(player_->pixels().stride) * height);
    const std::vector<int> left = Pixel(0, height - 1), right = Pixel(width - 1, 0);
    EXPECT_TRUE(left[2] > 200 && left[0] < 50 && right[0] > 200 && right[2] < 50) << width;
  }

  int frames = 0;
  player_->on_frame = [&] { ++frames; };
  player_->Run();
  EXPECT_TRUE(Becomes([&] { return frames > 3; }));
  frames = 0;
  player_->Close();
  EXPECT_EQ(frames, 1);
  QCoreApplication::processEvents();
  EXPECT_EQ(frames, 1);
  EXPECT_TRUE(player_->pixels().bytes.empty());

  // A picture that is to be turned ends the process if libmpv is left to it.
  ASSERT_TRUE(player_->RenderFile("turned.mp4"));
  ASSERT_TRUE(player_->PlaceVideo({VideoHost::kSecondMonitor, 0, 0, 64, 48}));
  EXPECT_TRUE(ShowsPicture(64, 48));
}

TEST_F(MpvPlayerTest, APictureMovesToAnotherHostAndTheSoundGoesOn) {
  ASSERT_TRUE(player_->RenderFile("clip.mpg"));
  ASSERT_TRUE(player_->PlaceVideo({VideoHost::kMainWindow, 0, 0, 100, 30}));
  player_->Run();
  ASSERT_TRUE(ShowsPicture(100, 30));
  double place = *player_->Position();
  for (const auto& [host, width] :
       {std::pair{VideoHost::kSecondMonitor, 300}, {VideoHost::kMainWindow, 100}}) {
    VideoHost told = VideoHost::kNone;
    player_->on_frame = [&] { told = player_->placement().host; };
    ASSERT_TRUE(player_->PlaceVideo({host, 0, -5, width, 40}));
    EXPECT_EQ(told, host) << "the host before must let go at once";
    EXPECT_FALSE(player_->pixels().bytes.empty()) << "never black in between";
    EXPECT_TRUE(ShowsPicture(width, 40));
    EXPECT_GE(*player_->Position(), place);
    place = *player_->Position();
    player_->on_frame = {};
  }
  EXPECT_TRUE(PlayToEnd());
}

TEST_F(MpvPlayerTest, TheSecondMonitorKeepsItsLastPictureUntilAnotherFileHasOne) {
  const VideoPlacement room{VideoHost::kSecondMonitor, 0, 0, 64, 48};
  ASSERT_TRUE(player_->RenderFile("clip.mpg"));
  ASSERT_TRUE(player_->PlaceVideo(room));
  ASSERT_TRUE(ShowsPicture(64, 48));
  ASSERT_TRUE(player_->RenderFile("tone.mp3"));
  EXPECT_FALSE(player_->PlaceVideo(room));
  EXPECT_FALSE(player_->pixels().bytes.empty());
  // The new one's first picture may be long in coming, and the old one is not its own.
  folder_->Write("late.cdg", Cdg(150));
  ASSERT_TRUE(player_->RenderFile("late.cdg"));
  ASSERT_TRUE(player_->PlaceVideo(room));
  EXPECT_TRUE(player_->pixels().bytes.empty());
}

TEST_F(MpvPlayerTest, KaraokePlaysItsSoundFromTheStartWithThePicture) {
  folder_->Write("Duo: A, B.cdg", Cdg(150));
  folder_->Write("duo: a, b.MP3", folder_->Read("tone.mp3"));
  ASSERT_TRUE(player_->RenderFile("Duo: A, B.cdg"));
  EXPECT_NEAR(*player_->Length(), 1.03, 0.05);  // the sound's, not the CDG's 2 s
  EXPECT_NEAR(*player_->Position(), 0, 0.05);   // though the picture comes at 0.5 s
  EXPECT_EQ(player_->NativeSize()->width, 300);
  ASSERT_TRUE(player_->PlaceVideo({VideoHost::kMainWindow, 0, 0, 50, 40}));
  player_->Run();
  EXPECT_TRUE(ShowsPicture(50, 40));
  EXPECT_NEAR(*player_->Position(), 0.5, 0.2);
  EXPECT_TRUE(PlayToEnd());
}

TEST_F(MpvPlayerTest, KaraokeMakesDoWithOneOfItsFilesAndACoverInTheSoundIsNoPicture) {
  folder_->Write("silent.cdg", Cdg(0));
  folder_->Write("tone.cdg", "");
  folder_->Write("cover.cdg", Cdg(0));
  const struct {
    const char* name;
    double seconds;
    int width;
  } files[] = {{"silent.CDG", 2, 300},
               {"tone.cdg", 1.03, 0},
               {"cover.cdg", 1.03, 300},
               {"cover.mp3", 1.03, 0}};
  for (const auto& file : files) {
    ASSERT_TRUE(player_->RenderFile(file.name)) << file.name;
    EXPECT_NEAR(*player_->Length(), file.seconds, 0.05) << file.name;
    EXPECT_EQ(player_->NativeSize().value_or(VideoSize{}).width, file.width) << file.name;
    EXPECT_EQ(player_->PlaceVideo({VideoHost::kMainWindow, 0, 0, 50, 40}), file.width > 0);
    EXPECT_TRUE(PlayToEnd()) << file.name;
  }
}

TEST_F(MpvPlayerTest, APictureOnItsWayToAPlayerThatIsGoneIsDropped) {
  ASSERT_TRUE(player_->RenderFile("clip.mpg"));
  player_->PlaceVideo({VideoHost::kMainWindow, 0, 0, 64, 48});
  player_->on_frame = [] { ADD_FAILURE(); };
  player_.reset();
  QCoreApplication::processEvents();
}

}  // namespace
}  // namespace sonotik
