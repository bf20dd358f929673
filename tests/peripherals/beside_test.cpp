// What goes on beside a track: the inputs' switches and the visualisation.
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

using Calls = std::vector<std::string>;

class BesideTest : public JukeboxTest {
 protected:
  BesideTest() {
    settings.mute_line_in_on_play = true;
    settings.enable_mic_on_videos = true;
    settings.use_visualisations = true;
    song = WriteTrack("Day", "1.wav");
    film = WriteTrack("Day", "2.mpg");
  }
  void Play(const std::string& path) {
    machine.mixer.calls.clear();
    machine.processes.started.clear();
    machine.visualiser.calls.clear();
    Choose(path);
  }
  std::string song, film;
};

TEST_F(BesideTest, TheMicrophoneFollowsTheKindOfTrackAndTheLineIsNeverOpenedAgain) {
  Start();
  // The scripts' first lines are their commands.
  const std::tuple<std::string, std::optional<std::string>, Calls> scripts[] = {
      {"mute.txt", std::nullopt, {}},
      {"mute.txt", "mute -a \"b, c\"\r\nnot this\r\n", {"mute -a \"b, c\""}},
      {"mute.txt", "", {}},
      {"mute.txt", "\r\nnot this", {}},
      {"unmute.txt", std::nullopt, {}},
      {"unmute.txt", "open", {"open"}}};
  for (const auto& [script, text, commands] : scripts) {
    if (text) folder.Write(script, *text);
    const bool mutes = script == "mute.txt";
    Play(mutes ? song : film);
    EXPECT_EQ(machine.mixer.calls, (Calls{"line 1", mutes ? "mic 1" : "mic 0"}));
    EXPECT_EQ(machine.processes.started, commands) << script;
  }
  machine.mixer.calls.clear();
  Advance(40);
  jukebox->shutdown.power_down();
  EXPECT_EQ(machine.mixer.calls, Calls{}) << "neither the end of a track nor of the program";
}

TEST_F(BesideTest, TheVisualisationRunsBesideSongsUntilAFilmSilenceOrPowerDown) {
  Start();
  Play(song);
  EXPECT_EQ(machine.visualiser.calls, Calls{"projectM-pulseaudio"});
  Play(song);
  EXPECT_EQ(machine.visualiser.calls, Calls{}) << "it runs already";
  Play(film);
  EXPECT_EQ(machine.visualiser.calls, Calls{"close"});
  folder.Write("visualiser.txt", "goom --full\r\n");
  Play(song);
  EXPECT_EQ(machine.visualiser.calls, Calls{"goom --full"});
  house().winamp.Execute(40002);
  EXPECT_TRUE(machine.visualiser.running) << "no other command is known";
  Advance(35);
  EXPECT_EQ(machine.visualiser.calls, (Calls{"goom --full", "close"})) << "silence";
  folder.Write("visualiser.txt", "\r\n");
  Play(song);
  EXPECT_EQ(machine.visualiser.calls, Calls{}) << "an empty line is none";
  machine.visualiser.running = true;
  jukebox->shutdown.TimedExit();
  EXPECT_EQ(machine.visualiser.calls, Calls{}) << "a timed exit leaves it";
  house().state.shutting_down = false;
  jukebox->shutdown.power_down();
  EXPECT_EQ(machine.visualiser.calls, Calls{"close"});
}

}  // namespace
}  // namespace sonotik
