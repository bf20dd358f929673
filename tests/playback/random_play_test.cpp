// The machine's own choice of music.
#include <gtest/gtest.h>

#include <set>

#include "playback/genre_lists.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class RandomPlayTest : public JukeboxTest {
 protected:
  RandomPlayTest() {
    settings.enable_random_play = true;
    settings.wait_between_tracks = "3";
    settings.do_not_repeat_count = 3;
  }
  void WriteTracks(int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i) {
      tracks.push_back(WriteTrack("Mix", std::to_string(i) + ".wav", "Ada", std::to_string(i)));
      bytes += TrackBytes(tracks.back(), "");
    }
    folder.Write("Records.rec", bytes);
  }
  // What the machine picks by itself, moment by moment.
  std::vector<std::string> Picks(int count) {
    std::vector<std::string> played;
    for (int i = 0; i < count; ++i) {
      machine.clock.Add(7);
      house().random_play.Random_Play();
      if (!Playing().empty()) played.push_back(Playing());
    }
    return played;
  }
  std::vector<std::string> tracks;
};

TEST_F(RandomPlayTest, MusicGoesOnAfterTheWaitAndIsTheMachinesOwn) {
  settings.enable_credit_mode = true;
  settings.use_second_monitor = true;
  settings.use_random_volume = true;
  settings.random_volume = -900;
  settings.main_volume = -300;
  WriteTracks(5);
  Start();
  house().selection.announce = [](bool) { FAIL(); };
  Advance(2);
  EXPECT_EQ(Playing(), "");
  Advance(2);
  EXPECT_NE(Playing(), "");
  EXPECT_EQ(machine.player.volume, -900);
  EXPECT_EQ(Plays(kRandomHistory), 1U);
  EXPECT_FALSE(folder.Has("User_history.dat"));
  EXPECT_FALSE(house().playback.random_in_progress);
  EXPECT_EQ(house().credits.count(), 0);
  // A guest's choice comes at the next change of track.
  house().queue.Append(tracks[0], "");
  Advance(31);
  EXPECT_EQ(Playing(), tracks[0]);
  EXPECT_EQ(machine.player.volume, -300);
}

TEST_F(RandomPlayTest, SongsAreNotRepeatedWhileThereAreOthers) {
  settings.do_not_repeat = true;
  WriteTracks(6);
  Start();
  const std::vector<std::string> played = Picks(200);
  int repeats = 0;
  for (size_t i = 3; i < played.size(); ++i) {
    repeats +=
        std::set<std::string>{played[i - 3], played[i - 2], played[i - 1]}.contains(played[i]);
  }
  // After so many rounds as are remembered a repeat is taken, which must stay rare.
  EXPECT_LT(repeats, 60);
  EXPECT_EQ(std::set(played.begin(), played.end()).size(), 6u);
  EXPECT_EQ(house().random_play.recent_songs()[0], Playing());
}

TEST_F(RandomPlayTest, OneTrackPlaysAgainAndACollectionThatIsGonePlaysNothing) {
  settings.do_not_repeat = true;
  settings.do_not_repeat_count = 10;
  WriteTracks(1);
  Start();
  EXPECT_EQ(Picks(20), std::vector<std::string>(20, tracks[0]));
  EXPECT_EQ(Plays(kRandomHistory), 20U);
  folder.Remove("music");
  Picks(1);
  EXPECT_EQ(Plays(kRandomHistory), 20U);
  house().settings.random_from_audio = false;
  Picks(1);
  EXPECT_FALSE(house().playback.random_in_progress);
}

TEST_F(RandomPlayTest, AGenreGivesAnyTrackOfAnyOfItsAlbums) {
  settings.random_from_genres = true;
  WriteTracks(2);
  const std::string rock = WriteTrack("Rock", "1.wav");
  WriteAlbums({{"Rock", "Ada"}, {"gone", "Bob"}}, "genres/Rock.cvr");
  folder.Write("genres/Empty.cvr", "");
  Start();
  house().lists.selected_genres = {"Rock", "Empty", "not there"};
  const std::vector<std::string> played = Picks(100);
  EXPECT_EQ(std::set(played.begin(), played.end()), std::set{rock});
  EXPECT_FALSE(folder.Has("genres/not there.cvr"));
}

TEST_F(RandomPlayTest, AJingleComesByCountAndAMissingFolderCostsARound) {
  settings.enable_jingles = true;
  settings.jingle_song_count = 0;
  settings.wait_between_tracks = "";
  settings.jingle_path = folder.path() + "\\music\\Jingles";
  WriteTracks(3);
  const std::string jingle = WriteTrack("Jingles", "j.wav");
  Start();
  // The first entry of the list is one in two.
  for (const bool is_jingle : {false, true, false, true}) {
    Advance(1);
    EXPECT_EQ(Playing() == jingle, is_jingle);
    machine.player.SetPosition(30);
  }
  folder.Remove("music/Jingles");
  for (const bool plays : {true, false, true}) {
    Advance(1);
    EXPECT_EQ(machine.player.playing(), plays);
    machine.player.SetPosition(30);
  }
  EXPECT_TRUE(house().queue.empty());
}

TEST_F(RandomPlayTest, GenresSurviveAShutdownWithTheCarouselSaved) {
  WriteTracks(1);
  Start();
  house().lists.available_genres = {"Jazz"};
  house().lists.selected_genres = {"Rock", "Soul"};
  house().settings.save_carousel_on_shutdown = true;
  jukebox->shutdown.power_down();
  OptionLists lists;
  LoadGenreLists(folder.path(), lists);
  EXPECT_EQ(lists.available_genres, ItemList{"Jazz"});
  EXPECT_EQ(lists.selected_genres, (ItemList{"Rock", "Soul"}));
}

}  // namespace
}  // namespace sonotik
