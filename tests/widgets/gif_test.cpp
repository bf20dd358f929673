#include <gmock/gmock.h>

#include <algorithm>

#include "fuzz/gif_bytes.h"
#include "support/gif_files.h"
#include "support/test_machine.h"
#include "widgets/gif_decoder.h"
#include "widgets/ucAniGIF.h"

namespace sonotik {
namespace {

using gif::Control;
using gif::Dot;
using gif::Head;
using gif::Image;
using gif::kFour;
using gif::Loops;
using testing::ElementsAre;

std::vector<uint8_t> Pixels(const ucAniGIF& gif) {
  std::vector<uint8_t> rgba = gif.picture().bytes;
  for (size_t i = 0; i + 3 < rgba.size(); i += 4) std::swap(rgba[i], rgba[i + 2]);
  return rgba;
}

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
      clock.Add(1);
      timers.FireDue();
    }
  }
};

TEST(Gifs, HaveTheSameFramesAsAnotherDecoderSees) {
  const TempFolder folder;
  for (const std::string& name : MakeGifs(folder)) {
    RunIn(folder, kImageMagick + name + " -coalesce -depth 8 rgba:frames");
    const std::string judged = folder.Read("frames");
    ucAniGIF gif;
    ASSERT_TRUE(gif.LoadAnimatedGIF_Array(folder.Read(name))) << name;
    const auto size = static_cast<int64_t>(gif.actual_width()) * gif.actual_height() * 4;
    ASSERT_EQ(static_cast<int64_t>(judged.size()), size * gif.frame_count()) << name;
    for (int frame = 1; frame <= gif.frame_count(); ++frame) {
      ASSERT_EQ(gif.frame(), frame);
      std::vector<uint8_t> other(judged.begin() + (frame - 1) * size,
                                 judged.begin() + frame * size);
      // What is transparent has no colour.
      for (size_t i = 0; i < other.size(); i += 4) {
        if (other[i + 3] == 0) std::fill_n(&other[i], 3, uint8_t{0});
      }
      EXPECT_TRUE(Pixels(gif) == other) << name << ", frame " << frame;
      gif.SetAction(GifAction::kNext);
    }
  }
}

TEST(Gifs, TakeWhatIsWholeOfAFileThatIsCutAnywhere) {
  std::string whole = Head() + Loops(2) + Control(4, 10) + Dot() + Control(0, 20);
  const size_t first = whole.find(kFour) + 4;
  whole += Dot() + ';';
  for (size_t cut = 0; cut < whole.size(); ++cut) {
    const auto gif = ReadGif(whole.substr(0, cut));
    const size_t frames = cut < first ? 0 : cut < whole.size() - 1 ? 1 : 2;
    EXPECT_EQ(gif ? gif->frames.size() : 0, frames) << cut;
  }
}

TEST(Gifs, OfHostileFilesNothingIsDrawnThatIsNotThere) {
  for (const gif::Recipe& recipe : gif::Recipes()) {
    const auto read = ReadGif(recipe.bytes);
    ASSERT_EQ(read ? read->frames.size() : 0, recipe.frames) << recipe.name;
    ucAniGIF control;
    EXPECT_EQ(control.LoadAnimatedGIF_Array(recipe.bytes), read.has_value()) << recipe.name;
    if (!read) continue;
    const std::vector<uint8_t> indexes = DecodeGifFrame(recipe.bytes, read->frames[0]);
    EXPECT_EQ(indexes.size(), recipe.drawn) << recipe.name;
    EXPECT_LE(indexes.capacity(), 1000U) << recipe.name << ": room for what the data can't fill";
  }
}

TEST(Gifs, AreAsLargeAsTheirFramesAndAFirstFrameHasNothingToGoBackTo) {
  const auto gif =
      ReadGif(Head() + Loops(513) + Control(3 << 2, 10) + Dot() + Control(3 << 2, 655) +
              Image(3, 1, 2, 2, 2, kFour) + Control(5 << 2, 0) + Dot() + Dot());
  ASSERT_TRUE(gif);
  EXPECT_THAT((std::vector{gif->loops, gif->width, gif->height}), ElementsAre(513, 5, 3))
      << "not the screen's";
  std::vector<GifDisposal> disposals;
  for (const GifFrame& frame : gif->frames) disposals.push_back(frame.disposal);
  EXPECT_THAT(disposals, ElementsAre(GifDisposal::kUnspecified, GifDisposal::kToPrevious,
                                     GifDisposal::kUnspecified, GifDisposal::kUnspecified));
  EXPECT_EQ(gif->frames[3].delay_ms, 0) << "a delay is that of one frame";
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
  EXPECT_EQ(p.timers.UntilNext(), -1);
  for (const auto& [set, loops] : {std::pair{-3, 3}, {INT32_MIN, INT32_MAX}}) {
    p.gif.SetLoops(set);
    EXPECT_EQ(p.gif.loops(), loops);
  }
  ASSERT_TRUE(p.gif.LoadAnimatedGIF_Array(Head() + Dot()));
  p.gif.SetAction(GifAction::kPlay);
  p.Advance(50);
  EXPECT_EQ(p.ends, 2) << "a single frame ends at its first tick";
}

TEST(Animations, DoWhatTheActionSays) {
  Player p;
  p.gif.SetAction(GifAction::kPlay);
  EXPECT_FALSE(p.gif.playing()) << "an empty one can't";
  ASSERT_TRUE(p.gif.LoadAnimatedGIF_Array(Head() + Dot() + Dot() + Dot()));
  // 0 stops, 1 plays, 2 pauses, 3 shows the next one, 4 begins anew.
  const struct {
    int action, ms, frame;
  } steps[] = {{-1, 500, 1}, {5, 500, 1}, {2, 0, 1},   {3, 0, 2},  {3, 0, 3},  {3, 0, 1},
               {3, 500, 2},  {4, 50, 2},  {2, 500, 2}, {1, 50, 3}, {0, 500, 1}};
  for (const auto& step : steps) {
    p.gif.SetAction(step.action);
    p.Advance(step.ms);
    EXPECT_EQ(p.gif.frame(), step.frame) << &step - steps;
  }
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

}  // namespace
}  // namespace sonotik
