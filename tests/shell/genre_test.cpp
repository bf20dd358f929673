// The genres, on their screen and on the bar.
#include <gtest/gtest.h>

#include "files/files.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class GenreTest : public JukeboxTest {
 protected:
  GenreTest() { WriteAlbums({{"Day", "Ada"}, {"Night", "Bo"}}); }

  void WriteGenre(const std::string& name) {
    WriteAlbums({{name + " Hits", "Cy"}}, "genres/" + name + ".cvr");
  }
  void WriteGenres(int count) {
    for (int i = 1; i <= count; ++i) WriteGenre("Genre " + LastDigits(i, 2));
  }
  void OpenScreen() { PressMenu(MenuButton::kGenres); }
  void OpenBar() {
    // A head of 1 is the bar; the file's missing rest costs its buttons their places only.
    folder.Write("skins/Plain/menu.ini", "1\r\n64\r\n1280\r\n");
    house().boundary.Run("menu.ini", [this] { jukebox->effects.ApplySkin(); });
    // What a skin's own file for the bar says on it.
    for (size_t i = 1; i <= 7; ++i) Bar(i).SetCaption("Genre");
    OpenScreen();
  }
  lvButtons_H& Bar(size_t i) { return form().genre_buttons.buttons[i]; }
  // The genres that can be chosen, as captions.
  std::vector<std::string> OnScreen() {
    std::vector<std::string> captions;
    for (Label& label : form().genre.labels) {
      if (label.showing()) captions.push_back(label.caption());
    }
    return captions;
  }
  std::vector<std::string> OnBar() {
    std::vector<std::string> captions;
    for (size_t i = 1; i <= 7; ++i) {
      if (Bar(i).showing()) captions.push_back(Bar(i).caption());
    }
    return captions;
  }
  std::string FirstAlbum() { return house().pages.slots()[1].album; }
  using Captions = std::vector<std::string>;
};

TEST_F(GenreTest, TheScreenPagesByTwentySevenAndChoosesOne) {
  WriteGenres(27);
  Start();
  OpenScreen();
  // Exactly one page has no other.
  Click(form().genre.down);
  EXPECT_EQ(OnScreen().size(), 28U);
  EXPECT_EQ(OnScreen()[1], "Genre 01");
  // A genre that comes while the jukebox runs is there at the next look.
  for (const char* name : {"Genre 28", "R&B"}) WriteGenre(name);
  Click(form().genre.up);
  EXPECT_EQ(OnScreen()[1], "Genre 01");
  for (int i = 0; i < 2; ++i) {
    Click(form().genre.down);
    EXPECT_EQ(OnScreen(), Captions({"ALL GENRES", "Genre 28", "R&&B"}));
  }
  house().cursor.SetPosition(CatalogueSource::kGenre, 9);
  Click(form().genre.labels[2]);
  EXPECT_EQ(Shown(), Screens{screen::kAlbum});
  EXPECT_EQ(FirstAlbum(), "R&B Hits");
  EXPECT_EQ(house().cursor.position(), 1);
  OpenScreen();
  Click(form().genre.labels[0]);
  EXPECT_EQ(house().cursor.source, CatalogueSource::kRecords);
  EXPECT_EQ(FirstAlbum(), "Day");
}

TEST_F(GenreTest, TheBarHidesTheFirstGenreAndScrollsBeyondTheLast) {
  WriteGenres(8);
  WriteGenre("R&B");
  Start();
  OpenBar();
  EXPECT_FALSE(form().menu.visible());
  EXPECT_EQ(Shown(), Screens{screen::kAlbum});
  EXPECT_EQ(OnBar(), Captions({"ALL GENRES", "Genre 02", "Genre 03", "Genre 04", "Genre 05",
                               "Genre 06", "Genre 07"}));
  Click(Bar(0));
  EXPECT_EQ(OnBar().size(), 7U);
  Click(Bar(8));
  EXPECT_EQ(OnBar(), Captions({"Genre 08", "R&&B"}));
  Click(Bar(2));
  EXPECT_EQ(FirstAlbum(), "R&B Hits");
  for (int i = 0; i < 2; ++i) Click(Bar(8));
  EXPECT_TRUE(OnBar().empty());
  for (int i = 0; i < 3; ++i) Click(Bar(0));
  EXPECT_EQ(OnBar().front(), "ALL GENRES");
  Click(Bar(9));
  EXPECT_FALSE(form().genre_bar.visible());
  EXPECT_TRUE(form().menu.visible());
}

TEST_F(GenreTest, AnimatedTilesAppearTogetherAndLeaveTheOtherButtonsAlone) {
  settings.use_animated_covers = true;
  WriteGenres(3);
  Start();
  const Label& tile = form().genre.labels[2];
  std::vector<float> widths;
  machine.events.on_pump = [&] { widths.push_back(tile.region()->at(0).width); };
  machine.events.waited = 0;
  OpenScreen();
  EXPECT_EQ(machine.events.waited, 34 * 110);
  ASSERT_EQ(widths.size(), 34U);
  for (size_t i = 0; i < 34; ++i) {
    EXPECT_NEAR(widths[i], tile.place().width * static_cast<float>(i) / 33, 0.1);
  }
  EXPECT_EQ(OnScreen().size(), 4U);
  // A guest who has seen enough goes back, and the rest of it is left out.
  int steps = 0;
  machine.events.on_pump = [&] {
    EXPECT_FALSE(form().genre.back.region());
    if (++steps == 9) Click(form().genre.back);
  };
  OpenScreen();
  machine.events.on_pump = [] {};
  EXPECT_EQ(Shown(), Screens{screen::kAlbum});
  EXPECT_LE(steps, 9 + 34);  // the album page that he went to is revealed, too
  EXPECT_FALSE(tile.region());
  OpenBar();
  Click(Bar(8));
  EXPECT_TRUE(OnBar().empty());
}

TEST_F(GenreTest, AllGenresOnTheBarLeavesAnEmptyGenreOfThatName) {
  for (const char* name : {"Blues", "Rock"}) WriteGenre(name);
  Start();
  OpenBar();
  Click(Bar(2));
  EXPECT_EQ(FirstAlbum(), "Rock Hits");
  Click(Bar(1));
  EXPECT_EQ(house().cursor.source, CatalogueSource::kRecords);
  EXPECT_EQ(FirstAlbum(), "Day");
  EXPECT_EQ(FileLength(folder.path() + "\\genres\\ALL GENRES.cvr"), 0);
  // It comes first in the folder now, so the bar gains what it had hidden.
  Click(Bar(9));
  OpenScreen();
  EXPECT_EQ(OnBar(), Captions({"ALL GENRES", "Blues", "Rock"}));
}

TEST_F(GenreTest, AGenreDeletedWhileItIsListedComesBackEmpty) {
  WriteGenre("Rock");
  Start();
  OpenScreen();
  folder.Remove("genres/Rock.cvr");
  Click(form().genre.labels[1]);
  EXPECT_EQ(FileLength(folder.path() + "\\genres\\Rock.cvr"), 0);
  EXPECT_TRUE(form().album.covers[0].cover.visible());
  EXPECT_FALSE(form().album.covers[1].cover.visible());
}

}  // namespace
}  // namespace sonotik
