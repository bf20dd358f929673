// The message sign: its file, its frames, and when something is sent at all.
#include "peripherals/led_sign.h"

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

using namespace std::string_literals;
using Calls = std::vector<std::string>;

// The frames' fixed pieces, in bytes.
const std::string kHead = "\x01\x01\x01\x01\x01\x3F\x30\x30\x02\x41\x30"s;
const std::string kEnd = "\x04"s;

std::string Betabrite(const std::string& line) { return kHead + line + kEnd; }

Calls BigBoard(const std::string& line1, const std::string& line2) {
  Calls calls = {"open", "discard", "\x00\xFF\xFF\x00\x0B"s, "\x00"s};
  for (int code = 1; code <= 127; ++code) calls.push_back(std::string(1, static_cast<char>(code)));
  for (const std::string& piece :
       {"\xFF\x01\x30\x31\xEF\xB7\xEF\xA2"s, line1, "\xEF\xB1\xEF\xA0\xFF\xEF\xB0\xEF\xA2"s, line2,
        "\xEF\xB1\xEF\xA0\xFF\xFF\x00"s, "close"s}) {
    calls.push_back(piece);
  }
  return calls;
}

class SignTest : public JukeboxTest {
 protected:
  // betabrite.ini with this model, switched on.
  void WriteSign(int model, int enabled = 1) {
    folder.Write("betabrite.ini", "Betabrite config\r\n4800,E,7,1\r\n 2 \r\n " +
                                      std::to_string(model) + " \r\n " + std::to_string(enabled) +
                                      " \r\n");
  }
  // What the sign was sent since the last look.
  Calls Sent() { return std::exchange(machine.sign_port.calls, {}); }
};

TEST_F(SignTest, EachModelGetsItsFrameAndTheBadgeOrASignSwitchedOffNone) {
  const std::string dawn =
      WriteTrack("Day", "1.wav", "Ada & Co", "Z\xC3\xBCrich \xE2\x82\xAC\xC4\x80");
  const struct {
    int model, enabled;
    Calls track, nothing;
  } cases[] = {
      {0,
       1,
       {"open", Betabrite("Ada & Co - Z\xFCrich \x80?"), "close"},
       {"open", Betabrite(""), "close"}},
      {1, 1, BigBoard("Ada & Co", "Z\xFCrich \x80?"), BigBoard("", "")},
      {2, 1, {}, {}},
      {0, 0, {}, {}},
  };
  for (const auto& each : cases) {
    WriteSign(each.model, each.enabled);
    Start();
    EXPECT_EQ(machine.sign_port.settings, "4800,E,7,1");
    EXPECT_EQ(machine.sign_port.number, 3);
    Choose(dawn);
    EXPECT_EQ(Sent(), each.track) << each.model;
    Advance(35);
    EXPECT_EQ(Sent(), each.nothing) << "when nothing plays any more";
    jukebox->shutdown.TimedExit();
    EXPECT_EQ(Sent(), Calls{}) << "a timed exit leaves the text standing";
    house().state.shutting_down = false;
    jukebox->shutdown.power_down();
    EXPECT_EQ(Sent(), each.nothing) << "at the end";
  }
}

TEST_F(SignTest, AFactTakesTheFirstLineAloneAndGivesItBackToTheTrack) {
  folder.Write("songfacts.dat", FactBytes("ada", "DAWN", {"Rock & roll"}));
  const std::string dawn = WriteTrack("Day", "1.wav");
  machine.player.lengths[dawn] = 100;
  WriteSign(1);
  Start();
  Choose(dawn);
  Calls both = BigBoard("Ada", "Dawn");
  for (const std::string& call : BigBoard("Rock & roll", "")) both.push_back(call);
  EXPECT_EQ(Sent(), both);
  Advance(13);
  EXPECT_EQ(Sent(), BigBoard("Ada", "Dawn"));
}

TEST_F(SignTest, APortThatIsNoneEndsTheStartOfATrackAndNotTheTicks) {
  const std::string dawn = WriteTrack("Day", "1.wav");
  WriteSign(0);
  Start();
  machine.sign_port.there = false;
  EXPECT_THROW(Choose(dawn, PlayWay::kPlayNow), RuntimeFailure);
  EXPECT_EQ(machine.player.file, "");
  Advance(2);
  machine.sign_port.there = true;
  Choose(dawn);
  EXPECT_EQ(machine.player.file, dawn);
}

TEST_F(SignTest, CommitChangesHandsTheSettingsToThePortAndSavesNothing) {
  Start();
  house().sign.port = 1;
  house().sign.port_settings = "2400,O,7,2";
  EXPECT_EQ(machine.sign_port.number, 1);
  jukebox->options.commit_sign();
  EXPECT_EQ(machine.sign_port.number, 2);
  EXPECT_EQ(machine.sign_port.settings, "2400,O,7,2");
  EXPECT_FALSE(folder.Has("betabrite.ini"));
}

}  // namespace
}  // namespace sonotik
