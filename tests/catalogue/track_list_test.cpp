#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class TrackListTest : public JukeboxTest {
 protected:
  std::string Row(size_t row) { return form().track_list.rows[row].title.caption(); }
  bool RowShows(size_t row) { return form().track_list.rows[row].title.visible(); }
};

TEST_F(TrackListTest, ACompilationIsKnownFromItsSecondRowOn) {
  WriteTrack("Mix", "1.wav", "Ada", "Dawn");
  WriteTrack("Mix", "2.wav", "Bob", "Dusk");
  WriteAlbums({{"Mix", "Various Artists"}});
  Start();
  for (const bool numbers : {false, true}) {
    for (const bool track_first : {false, true}) {
      house().settings.display_track_numbers = numbers;
      house().settings.show_track_first = track_first;
      house().track_list.Open(AlbumPath("Mix"));
      EXPECT_EQ(Row(0), numbers ? "01. Dawn" : "Dawn");
      EXPECT_EQ(Row(1),
                std::string(numbers ? "02. " : "") + (track_first ? "Dusk - Bob" : "Bob - Dusk"));
    }
  }
  EXPECT_EQ(form().track_list.artist_heading.caption(), "Artist : Various Artists");
  EXPECT_EQ(form().track_list.album_heading.caption(), "Album : Mix");
  EXPECT_EQ(form().track_list.released_heading.caption(), "Released : 1999");
  EXPECT_EQ(form().track_list.rows[0].time.caption(), "(0:30)");
}

TEST_F(TrackListTest, AnExactPageNeedsNoDown) {
  for (int i = 10; i < 23; ++i) WriteTrack("Full", std::to_string(i) + ".wav");
  Start();
  house().track_list.Open(AlbumPath("Full"));
  EXPECT_TRUE(RowShows(12));
  Click(form().track_list.down);
  EXPECT_EQ(house().track_list.page_top(), 0);
  WriteTrack("Full", "99.wav", "Ada", "Last");
  house().track_list.Open(AlbumPath("Full"));
  Click(form().track_list.down);
  EXPECT_EQ(Row(0), "Last");
  EXPECT_FALSE(RowShows(1));
  Click(form().track_list.up);
  EXPECT_TRUE(RowShows(12));
}

TEST_F(TrackListTest, AFolderThatIsGoneKeepsTheRowsShown) {
  WriteTrack("A&B", "1.wav", "Ada", "Dawn");
  Start();
  house().track_list.Open(AlbumPath("A&B"));
  EXPECT_EQ(form().track_list.album_heading.caption(), "Album : A&&B");
  house().track_list.Open(AlbumPath("Gone"));
  EXPECT_EQ(Row(0), "Dawn");
  folder.Remove("music/A&B");
  house().track_list.Open(AlbumPath("A&B"));
  EXPECT_TRUE(RowShows(0));
}

TEST_F(TrackListTest, TheStripShowsTheArtistsOtherAlbums) {
  WriteAlbums(
      {{"0", "Aaron"}, {"1", "Ada & Co"}, {"2", "Ada & Co"}, {"3", "ADA & CO"}, {"4", "Bob"}});
  WriteTrack("2", "1.wav", "Ada & Co", "Dawn");
  WriteTrack("3", "1.wav", "Ada & Co", "Noon");
  Start();
  house().track_list.Open(AlbumPath("2"));
  EXPECT_TRUE(form().track_list.quick_jump[1].visible());
  EXPECT_FALSE(form().track_list.quick_jump[2].visible());
  Click(form().track_list.quick_jump[1]);
  EXPECT_EQ(Row(0), "Noon");
  WriteTrack("4", "1.wav", "Bob", "Solo");
  house().track_list.Open(AlbumPath("4"));
  EXPECT_FALSE(form().track_list.quick_jump[0].visible());
  EXPECT_FALSE(form().track_list.quick_jump_left.visible());
}

TEST_F(TrackListTest, ADamagedSidecarIsNoTagAndHidesNoOtherRow) {
  WriteTrack("Bad", "1.wav");
  WriteTrack("Bad", "2.wav", "Ada", "Noon");
  folder.Write("music/Bad/1.wav.tag", "<a>\r\n<b>\r\n");
  WriteAlbums({{"Bad", "Ada"}});
  Start();
  Click(form().album.covers[0].cover);
  EXPECT_EQ(Row(0), "No Tag");
  EXPECT_EQ(Row(1), "Ada - Noon");
  EXPECT_FALSE(form().track_list.rows[0].time.visible());
  Click(form().track_list.rows[0].title);
  EXPECT_EQ(form().play_options.title.caption(), "No Tag");
  EXPECT_TRUE(form().play_options.add_to_queue.visible());
  house().settings.use_filename_if_no_tag = true;
  house().track_list.Open(AlbumPath("Bad"));
  EXPECT_EQ(Row(0), "1.wav");
}

TEST_F(TrackListTest, ADoubleClickDoesWhatTheOperatorChose) {
  const std::string path = WriteTrack("Two", "1.wav");
  WriteTrack("Two", "2.wav");
  WriteAlbums({{"Two", "Ada"}});
  settings.enable_double_click = true;
  // The operator's choice, and the track's place in a queue of one other.
  const std::pair<int, int> cases[] = {{0, -1}, {1, 0}, {2, 1}, {3, -1}};
  for (const auto& [action, place] : cases) {
    Start();
    house().settings.double_click_action = action;
    house().queue.Append("\\m\\other.wav", "");
    Click(form().album.covers[0].cover);
    Click(form().track_list.rows[0].title);
    form().form.DoubleClickMouse(Middle(form().track_list.rows[0].title));
    EXPECT_EQ(Playing() == path, action == 0) << action;
    EXPECT_EQ(house().queue.IndexOf(path, 0), place) << action;
    machine.player = TestPlayer();
  }
}

}  // namespace
}  // namespace sonotik
