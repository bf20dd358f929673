// The card's switches, on a card of the tests' own.
#include "desktop/alsa_mixer.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include "support/temp_folder.h"

namespace sonotik {
namespace {

class AlsaMixerTest : public testing::Test {
 protected:
  ~AlsaMixerTest() override { ::unsetenv("ALSA_CONFIG_PATH"); }
  void UseCard(const std::string& device, const std::string& switches) {
    folder.Write("card", switches);
    // A name of its own: the library takes a file changed within a second for the same.
    const std::string config = device + ".conf";
    folder.Write(config, "ctl_type.cabinet { lib \"" SONOTIK_TEST_CARD "\" }\nctl." + device +
                             " { type cabinet file \"" + (folder.native() / "card").string() +
                             "\" }\n");
    ::setenv("ALSA_CONFIG_PATH", (folder.native() / config).c_str(), 1);
  }
  TempFolder folder;
  AlsaMixer mixer;
};

TEST_F(AlsaMixerTest, ALineIsMutedAndOpenedAndNoOtherSwitchMoves) {
  UseCard("default",
          "1 Master Playback Switch\n1 Line Playback Switch\n1 front mic Playback Switch\n"
          "1 Mic Capture Switch\n1 Mic Boost Playback Switch\n");
  EXPECT_TRUE(mixer.SetMute(MixerLine::kLineIn, true));
  EXPECT_TRUE(mixer.SetMute(MixerLine::kMicrophone, true));
  EXPECT_EQ(folder.Read("card"),
            "1 Master Playback Switch\n0 Line Playback Switch\n0 front mic Playback Switch\n"
            "0 Mic Capture Switch\n1 Mic Boost Playback Switch\n");
  EXPECT_TRUE(mixer.SetMute(MixerLine::kMicrophone, false));
  EXPECT_EQ(folder.Read("card"),
            "1 Master Playback Switch\n0 Line Playback Switch\n1 front mic Playback Switch\n"
            "1 Mic Capture Switch\n1 Mic Boost Playback Switch\n");
}

TEST_F(AlsaMixerTest, WithoutACardOrTheLineNothingIsFoundAndNothingIsSaid) {
  testing::internal::CaptureStderr();
  UseCard("default", "1 Master Playback Switch\n");
  EXPECT_FALSE(mixer.SetMute(MixerLine::kLineIn, true));
  EXPECT_EQ(folder.Read("card"), "1 Master Playback Switch\n");
  UseCard("somewhere_else", "1 Line Playback Switch\n");
  EXPECT_FALSE(mixer.SetMute(MixerLine::kLineIn, true));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace sonotik
