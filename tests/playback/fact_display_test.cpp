// Facts of the playing song, and its thumbs.
#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class FactDisplayTest : public JukeboxTest {
 protected:
  FactDisplayTest() {
    folder.Write("songfacts.dat", FactBytes("ADA & Co", "Other", {"no", "", "", "", ""}) +
                                      FactBytes("Ada & Co", "Dusk", {"", "2", "", "", ""}) +
                                      FactBytes("ada & co", "DAWN", {"1", "2", "", "4", "5"}));
    dawn = WriteTrack("Day", "1.wav", "Ada & Co", "Dawn");
    noon = WriteTrack("Day", "2.wav", "Ada & Co", "Noon");
    other = WriteTrack("Day", "3.wav", "Bob", "Dawn");
    dusk = WriteTrack("Day", "4.wav", "Ada & Co", "Dusk");
  }
  // The fact that shows, "-" for none.
  std::string Fact() { return form().song_fact.visible() ? form().song_fact.caption() : "-"; }
  std::string dawn, noon, other, dusk;
};

TEST_F(FactDisplayTest, FactsAreSpacedOverTheTrackAndAnEmptyOneUsesItsTurn) {
  machine.player.lengths[dawn] = 100;
  Start();
  std::vector<std::string> sign;
  house().fact_display.show_fact_on_sign = [&](const std::string& fact) { sign.push_back(fact); };
  house().fact_display.show_track_on_sign = [&] { sign.push_back("track"); };
  Choose(dawn);
  const std::pair<int, const char*> moments[] = {{0, "1"},  {12, "1"}, {13, "-"}, {20, "-"},
                                                 {21, "2"}, {33, "2"}, {34, "-"}, {42, "-"},
                                                 {62, "-"}, {63, "4"}, {84, "5"}, {97, "-"}};
  int now = 0;
  for (const auto& [second, fact] : moments) {
    Advance(second - now);
    now = second;
    EXPECT_EQ(Fact(), fact) << now;
  }
  EXPECT_EQ(sign,
            (std::vector<std::string>{"1", "track", "2", "track", "4", "track", "5", "track"}));
}

TEST_F(FactDisplayTest, ATitleWithoutFactsHidesThemAndAnArtistWithoutLeavesThemToTheTick) {
  Start();
  Choose(dawn);
  EXPECT_EQ(Fact(), "1");
  Choose(noon);
  EXPECT_EQ(Fact(), "-");
  Choose(dawn);
  // Nothing of the one before is told beside a song whose first fact is empty.
  Choose(dusk);
  EXPECT_EQ(Fact(), "-");
  Advance(7);
  EXPECT_EQ(Fact(), "2");
  Choose(dawn);
  Choose(other);
  EXPECT_EQ(Fact(), "1");
  Advance(1);
  EXPECT_EQ(Fact(), "-");
}

TEST_F(FactDisplayTest, ThumbsStopAtThreeAndStayOverATrackStart) {
  settings.show_ratings_thumbs = true;
  Start();
  form().ShowScreen(screen::kNowPlaying);
  for (int i = 0; i < 5; ++i) Click(form().now_playing.rating_up);
  EXPECT_EQ(house().rating.current(), 3);
  Choose(dawn);
  for (int i = 0; i < 9; ++i) Click(form().now_playing.rating_down);
  EXPECT_EQ(house().rating.current(), -3);
}

}  // namespace
}  // namespace sonotik
