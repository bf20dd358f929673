#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "widgets/gif_decoder.h"
#include "widgets/ucAniGIF.h"

namespace sonotik {
namespace {
namespace fs = std::filesystem;
using testing::ElementsAre;

// Little-endian words and single bytes of a GIF under construction.
std::string Word(int value) {
  return {static_cast<char>(value & 255), static_cast<char>(value >> 8 & 255)};
}
std::string Head(const std::string& signature = "GIF89a", bool table = true) {
  return signature + Word(4) + Word(4) + (table ? "\x80" : std::string(1, '\0')) +
         std::string(2, '\0') + (table ? std::string("\xff\0\0\0\0\xff", 6) : "");
}
std::string Control(int packed, int delay, int transparent = 0) {
  return std::string("\x21\xf9\x04") + static_cast<char>(packed) + Word(delay) +
         static_cast<char>(transparent) + '\0';
}
std::string Block(const std::string& bytes) { return static_cast<char>(bytes.size()) + bytes; }
std::string Image(int left, int top, int width, int height, int code_size,
                  const std::string& codes) {
  return ',' + Word(left) + Word(top) + Word(width) + Word(height) + '\0' +
         static_cast<char>(code_size) + Block(codes) + '\0';
}
// Four pixels of colours 0, 1, 1, 0: clear, 0, 1, 1, 0, end in three bits each.
const std::string kFour("\x44\x12\x05", 3);
std::string Dot() { return Image(0, 0, 2, 2, 2, kFour); }
std::string Loops(int count) { return "\x21\xff\x0bNETSCAPE2.0\x03\x01" + Word(count) + '\0'; }

std::vector<uint8_t> Pixels(const ucAniGIF& gif) {
  std::vector<uint8_t> rgba = gif.picture().bytes;
  for (size_t i = 0; i + 3 < rgba.size(); i += 4) std::swap(rgba[i], rgba[i + 2]);
  return rgba;
}

class TestClock : public Clock {
 public:
  DateTime Now() const override { return {}; }
  int64_t Milliseconds() const override { return ms; }
  int64_t ms = 0;
};

struct Player {
  TestClock clock;
  Timers timers{clock};
  Form form;
  Panel panel;
  ucAniGIF gif;
  std::vector<int> frames;
  int ends = 0;
  Player() {
    form.SetPlace({0, 0, 100, 100});
    form.Add(panel, {0, 0, 100, 100});
    panel.Add(gif, {0, 0, 40, 40});
    gif.SetTimers(timers);
    gif.on_frame_changed = [this](int frame) { frames.push_back(frame); };
    gif.on_loops_ended = [this] { ++ends; };
  }
  void Advance(int ms) {
    for (int i = 0; i < ms; ++i) {
      ++clock.ms;
      timers.FireDue();
    }
  }
};

TEST(Gifs, HaveTheSameFramesAsAnotherDecoderSees) {
  std::string name = (fs::temp_directory_path() / "gif_test_XXXXXX").string();
  const fs::path folder = mkdtemp(name.data());
  const auto run = [&](const std::string& command) {
    EXPECT_EQ(std::system(("cd " + folder.string() + " && " + command).c_str()), 0) << command;
  };
  const auto read = [&](const std::string& file) {
    std::ifstream stream(folder / file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(stream), {});
  };
  const std::string im = "convert-im6.q16 ";
  // Photo-like noise, few colours, interlaced rows, all disposals with holes, frames off the
  // corner, local tables, a table that fills up.
  run(im + "-size 97x61 plasma:red-blue -interlace none a.gif");
  run(im + "-size 33x70 plasma: -interlace GIF b.gif");
  run(im + "-size 5x3 plasma: -interlace GIF c.gif");
  run(im + "-size 300x200 xc: +noise Random -colors 256 d.gif");
  run(im + "-size 400x300 xc:navy -colors 2 e.gif");
  for (const char* disposal : {"none", "background", "previous"}) {
    // A first frame has nothing to go back to; the other decoder would empty the picture.
    const std::string first = disposal == std::string("previous") ? "none" : disposal;
    run(im + "-delay 7 -loop 3 -dispose " + first +
        " \\( -size 40x40 plasma:yellow-red \\) -dispose " + disposal +
        " \\( -size 20x10 xc:none -fill lime -draw "
        "'rectangle 3,2 12,8' -repage 40x40+5+7 \\) \\( -size 11x30 gradient:red-blue -repage "
        "40x40+29+2 \\) \\( -size 15x15 xc:none -fill white -draw 'circle 7,7 7,1' -repage "
        "40x40+0+25 \\) f-" +
        disposal + ".gif");
  }
  run("ffmpeg -v error -nostdin -f lavfi -i testsrc2=s=64x48:d=0.5:r=10 -loop 0 g.gif");
  for (const auto& file : fs::directory_iterator(folder)) {
    const std::string gif_name = file.path().filename().string();
    if (!gif_name.ends_with(".gif")) continue;
    const std::string rgba = gif_name + ".rgba";
    run(im + gif_name + " -coalesce -depth 8 rgba:" + rgba);
    const std::string judged = read(rgba);
    ucAniGIF gif;
    ASSERT_TRUE(gif.LoadAnimatedGIF_Array(read(gif_name))) << gif_name;
    const size_t frame_bytes = static_cast<size_t>(gif.actual_width()) * gif.actual_height() * 4;
    ASSERT_EQ(judged.size(), frame_bytes * static_cast<size_t>(gif.frame_count())) << gif_name;
    for (int frame = 1; frame <= gif.frame_count(); ++frame) {
      ASSERT_EQ(gif.frame(), frame);
      std::vector<uint8_t> other(judged.begin() + (frame - 1) * static_cast<int64_t>(frame_bytes),
                                 judged.begin() + frame * static_cast<int64_t>(frame_bytes));
      // What is transparent has no colour.
      for (size_t i = 0; i < other.size(); i += 4) {
        if (other[i + 3] == 0) std::fill_n(&other[i], 3, uint8_t{0});
      }
      EXPECT_TRUE(Pixels(gif) == other) << gif_name << ", frame " << frame;
      gif.SetAction(GifAction::kNext);
    }
  }
  fs::remove_all(folder);
}

TEST(Gifs, TakeWhatIsWholeOfAFileThatIsCutAnywhere) {
  std::string whole = Head() + Loops(2) + Control(4, 10) + Dot() + Control(0, 20);
  const size_t first = whole.find(kFour) + 4;
  whole += Dot() + ';';
  for (size_t cut = 0; cut < whole.size(); ++cut) {
    const auto gif = ReadGif(whole.substr(0, cut));
    const size_t frames = cut < first ? 0 : cut < whole.size() - 1 ? 1 : 2;
    ASSERT_EQ(gif.has_value(), frames > 0) << cut;
    EXPECT_EQ(gif ? gif->frames.size() : 0, frames) << cut;
  }
  // And with any byte of it broken nothing worse happens than another picture.
  for (size_t at = 0; at < whole.size(); ++at) {
    for (const int flip : {1, 128, 255}) {
      std::string broken = whole;
      broken[at] = static_cast<char>(broken[at] ^ flip);
      ucAniGIF gif;
      if (gif.LoadAnimatedGIF_Array(broken)) gif.SetAction(GifAction::kNext);
    }
  }
}

TEST(Gifs, OfHostileFilesNothingIsDrawnThatIsNotThere) {
  const auto big = [](int width, int height) { return Image(0, 0, width, height, 2, kFour); };
  const struct {
    const char* what;
    std::string bytes;
    int frames;
    size_t drawn;  // of the first frame
  } cases[] = {
      {"code size 0", Head() + Image(0, 0, 2, 2, 0, kFour), 1, 0},
      {"code size 1", Head() + Image(0, 0, 2, 2, 1, kFour), 1, 0},
      {"code size 9", Head() + Image(0, 0, 2, 2, 9, kFour), 1, 0},
      {"code size 255", Head() + Image(0, 0, 2, 2, 255, kFour), 1, 0},
      {"no clear code first", Head() + Image(0, 0, 2, 2, 2, {"\x48\x02", 2}), 1, 4},
      // Clear, 0, then 7: the next free code is 6.
      {"a code beyond the next", Head() + Image(0, 0, 2, 2, 2, {"\xc4\x01", 2}), 1, 1},
      {"a string code first", Head() + Image(0, 0, 2, 2, 2, {"\x34\x01", 2}), 1, 0},
      {"more pixels than the frame", Head() + Image(0, 0, 1, 1, 2, kFour), 1, 1},
      {"fewer pixels than the frame", Head() + Image(0, 0, 4, 4, 2, kFour), 1, 4},
      {"zero width", Head() + big(0, 9), 1, 0},
      {"zero height", Head() + big(9, 0), 1, 0},
      {"a large frame", Head() + big(4096, 4096), 1, 4},
      {"a huge frame", Head() + big(65535, 65535), 0, 0},
      {"a frame far off", Head() + Image(65535, 65535, 2, 2, 2, kFour), 0, 0},
      {"no colour table", Head("GIF89a", false) + Dot(), 0, 0},
      {"an unknown block", Head() + Dot() + '!' + Block("x") + '\0' + "?" + Dot(), 1, 4},
      {"another signature", "GIF90a" + Head().substr(6) + Dot(), 0, 0},
      {"small letters", "gif87A" + Head().substr(6) + Dot(), 1, 4},
      {"empty data", Head() + Image(0, 0, 2, 2, 2, "") + Dot(), 1, 4},
      {"a sub-block that claims more", Head() + Dot() + Dot().substr(0, 11) + '\xff' + kFour, 1, 4},
      {"zeros between blocks", Head() + std::string(1000, '\0') + Dot(), 1, 4},
      {"endless extensions", Head() + std::string(100000, '!') + Dot(), 0, 0}};
  for (const auto& c : cases) {
    const auto gif = ReadGif(c.bytes);
    ASSERT_EQ(gif ? static_cast<int>(gif->frames.size()) : 0, c.frames) << c.what;
    ucAniGIF control;
    EXPECT_EQ(control.LoadAnimatedGIF_Array(c.bytes), c.frames > 0) << c.what;
    if (!gif) continue;
    const std::vector<uint8_t> indexes = DecodeGifFrame(c.bytes, gif->frames[0]);
    EXPECT_EQ(indexes.size(), c.drawn) << c.what;
    EXPECT_LE(indexes.capacity(), 1000U) << c.what << ": room for what the data can't fill";
  }
  std::string many = Head();
  for (int i = 0; i < 20000; ++i) many += Dot();
  EXPECT_EQ(ReadGif(many)->frames.size(), 20000U);
}

TEST(Gifs, TellWhatTheFileSaysOfItsFrames) {
  const std::string bytes = Head() + Loops(513) + Control(3 << 2, 10) + Dot() +
                            Control(3 << 2 | 1, 655, 1) + Image(3, 1, 2, 2, 2, kFour) +
                            Control(5 << 2, 0) + Dot() + Dot();
  const auto gif = ReadGif(bytes);
  ASSERT_TRUE(gif);
  EXPECT_EQ(gif->loops, 513);
  EXPECT_EQ(gif->width, 5) << "not the screen's";
  EXPECT_EQ(gif->height, 3);
  ASSERT_EQ(gif->frames.size(), 4U);
  EXPECT_EQ(gif->frames[0].disposal, GifDisposal::kUnspecified) << "nothing to go back to";
  EXPECT_EQ(gif->frames[1].disposal, GifDisposal::kToPrevious);
  EXPECT_EQ(gif->frames[1].delay_ms, 6550);
  EXPECT_TRUE(gif->frames[1].transparent);
  EXPECT_EQ(gif->frames[2].disposal, GifDisposal::kUnspecified);
  EXPECT_FALSE(gif->frames[2].transparent);
  EXPECT_EQ(gif->frames[3].delay_ms, 0);
}

TEST(Animations, RunByTheirDelaysButNeverFasterThanTheLeast) {
  Player p;
  ASSERT_TRUE(p.gif.LoadAnimatedGIF_Array(Head() + Control(0, 0) + Dot() + Control(0, 20) + Dot() +
                                          Control(0, 1) + Dot()));
  p.Advance(500);
  EXPECT_TRUE(p.frames.empty()) << "nothing plays by itself";
  p.gif.SetAction(1);
  p.Advance(49);
  EXPECT_EQ(p.gif.frame(), 1);
  p.Advance(1);
  EXPECT_EQ(p.gif.frame(), 2);
  p.Advance(199);
  EXPECT_EQ(p.gif.frame(), 2);
  p.Advance(51);
  EXPECT_THAT(p.frames, ElementsAre(2, 3, 1));
  EXPECT_EQ(p.gif.loops_remaining(), 0);
  for (const auto& [set, kept] : {std::pair{5, 10}, {40000, 32700}, {-1, 10}, {70, 70}}) {
    p.gif.SetMinFrameDelay(set);
    EXPECT_EQ(p.gif.min_frame_delay(), kept);
  }
}

TEST(Animations, EndAfterTheirLoopsOnTheFirstFrame) {
  Player p;
  ASSERT_TRUE(p.gif.LoadAnimatedGIF_Array(Head() + Loops(2) + Dot() + Dot()));
  p.gif.SetAction(GifAction::kPlay);
  p.Advance(100);
  EXPECT_EQ(p.gif.loops_remaining(), 1);
  p.Advance(1000);
  EXPECT_THAT(p.frames, ElementsAre(2, 1, 2, 1));
  EXPECT_EQ(p.ends, 1);
  EXPECT_FALSE(p.gif.playing());
  EXPECT_EQ(p.timers.UntilNext(), -1);
  p.gif.SetLoops(-3);
  EXPECT_EQ(p.gif.loops(), 3);
  p.gif.SetLoops(INT32_MIN);
  EXPECT_GT(p.gif.loops(), 0);

  ASSERT_TRUE(p.gif.LoadAnimatedGIF_Array(Head() + Dot()));
  p.gif.SetAction(GifAction::kPlay);
  p.Advance(50);
  EXPECT_EQ(p.ends, 2) << "a single frame ends at its first tick";
}

TEST(Animations, DoWhatTheActionSays) {
  Player p;
  p.gif.SetAction(1);
  EXPECT_FALSE(p.gif.playing()) << "an empty one can't";
  ASSERT_TRUE(p.gif.LoadAnimatedGIF_Array(Head() + Dot() + Dot() + Dot()));
  for (const int wrong : {-1, 5}) p.gif.SetAction(wrong);
  p.gif.SetAction(GifAction::kPause);
  EXPECT_TRUE(p.frames.empty());
  p.gif.SetAction(GifAction::kNext);
  p.gif.SetAction(GifAction::kNext);
  p.gif.SetAction(GifAction::kNext);
  EXPECT_THAT(p.frames, ElementsAre(2, 3, 1));
  p.gif.SetAction(GifAction::kRestart);
  p.Advance(50);
  p.gif.SetAction(GifAction::kPause);
  p.Advance(500);
  EXPECT_EQ(p.gif.frame(), 2);
  p.gif.SetAction(GifAction::kPlay);
  p.Advance(50);
  p.gif.SetAction(GifAction::kStop);
  EXPECT_EQ(p.gif.frame(), 1);
  p.gif.design_mode = true;
  p.gif.SetAction(GifAction::kPlay);
  EXPECT_FALSE(p.gif.playing());
}

TEST(Animations, StandStillWhileTheyDoNotShow) {
  Player p;
  ASSERT_TRUE(p.gif.LoadAnimatedGIF_Array(Head() + Dot() + Dot()));
  p.gif.SetAction(GifAction::kPlay);
  p.panel.SetVisible(false);
  EXPECT_EQ(p.timers.UntilNext(), -1);
  p.Advance(500);
  p.gif.SetVisible(false);
  p.panel.SetVisible(true);
  EXPECT_EQ(p.timers.UntilNext(), -1);
  p.gif.SetVisible(true);
  p.Advance(50);
  EXPECT_THAT(p.frames, ElementsAre(2));
  p.gif.SetAction(GifAction::kPause);
  p.panel.SetVisible(false);
  p.panel.SetVisible(true);
  EXPECT_TRUE(p.gif.playing()) << "also one that was paused by hand";
}

TEST(Animations, ShowOtherColorsAndMirroredRowsAtOnce) {
  ucAniGIF gif;
  ASSERT_TRUE(gif.LoadAnimatedGIF_Array(Head() + Image(0, 0, 2, 1, 2, kFour)));
  const auto reds = [&] { return std::vector<int>{Pixels(gif)[0], Pixels(gif)[4]}; };
  EXPECT_THAT(reds(), ElementsAre(255, 0));
  gif.SetMirrored(1);
  EXPECT_THAT(reds(), ElementsAre(0, 255));
  gif.SetMirrored(4);
  gif.CacheColorTables();
  gif.SetPalette(0, {Rgb(7, 0, 0)});
  EXPECT_THAT(reds(), ElementsAre(0, 7)) << "a number beyond the table is black";
  gif.SetPalette(1, {});
  EXPECT_TRUE(gif.GetPalette(1).empty());
  gif.RestoreColorTables();
  EXPECT_THAT(reds(), ElementsAre(0, 255));
}

TEST(Animations, ComeFromElsewhereOrSayThatTheyDoNot) {
  auto gif = std::make_unique<ucAniGIF>();
  std::vector<std::string> heard;
  gif->on_remote_load_complete = [&] { heard.push_back("complete"); };
  gif->on_remote_load_failure = [&] { heard.push_back("failure"); };
  gif->LoadAnimatedGIF_Remote("a");
  ucAniGIF::Received received;
  gif->remote_loader = [&](const std::string&, ucAniGIF::Received r) { received = std::move(r); };
  gif->LoadAnimatedGIF_Remote("a");
  received(std::nullopt);
  received("GIF90a");
  received(Head() + Dot());
  EXPECT_THAT(heard, ElementsAre("failure", "failure", "failure", "complete"));
  EXPECT_EQ(gif->frame_count(), 1);
  gif.reset();
  received(Head() + Dot());
}

TEST(Animations, AreStoredByKeyWithTheirBytes) {
  ucAniGIF gif;
  ASSERT_TRUE(gif.LoadAnimatedGIF_Array(Head() + Loops(9) + Dot()));
  gif.SetStretch(2);
  gif.SetOffset(-3, 4);
  PropertyBag bag;
  gif.WriteTo(bag);
  bag.Write("DelayLoad", "7");
  bag.Write("Delay", "5");
  bag.Write("loops", "-4");
  ucAniGIF same;
  same.ReadFrom(bag);
  EXPECT_EQ(same.frame_count(), 1);
  EXPECT_EQ(same.stretch(), 2);
  EXPECT_EQ(same.offset_x(), -3);
  EXPECT_EQ(same.delay_animation(), 1);
  EXPECT_EQ(same.min_frame_delay(), 10);
  EXPECT_EQ(same.loops(), 4);
}

}  // namespace
}  // namespace sonotik
