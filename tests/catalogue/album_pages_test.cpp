#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class AlbumPagesTest : public JukeboxTest {
 protected:
  // `count` albums by artists "A 1", "B 2" ... in steps through the alphabet.
  void WriteCount(int count, const std::string& file = "Records.cvr") {
    std::vector<TestAlbum> albums;
    for (int i = 1; i <= count; ++i) {
      const std::string letter(1, static_cast<char>('A' + (i - 1) * 26 / count));
      albums.push_back({"Album " + std::to_string(i), letter + " " + std::to_string(i)});
    }
    WriteAlbums(albums, file);
  }
  std::string FirstAlbum() { return house().pages.slots()[1].album; }
  CoverPosition& Cover(size_t position) { return form().album.covers[position]; }
};

TEST_F(AlbumPagesTest, ThePageCaptionCountsFromZeroAndEndsOneShort) {
  const std::pair<int, std::string> cases[] = {{0, "-1"},  {1, "-1"},  {2, " 0"},  {12, " 0"},
                                               {13, " 0"}, {14, " 1"}, {25, " 1"}, {26, " 2"}};
  for (const auto& [albums, last] : cases) {
    WriteCount(albums);
    Start();
    EXPECT_EQ(form().album.page_caption.caption(), "Current Page : 0/" + last) << albums;
  }
}

TEST_F(AlbumPagesTest, PagingStopsAtBothEndsWithoutLosingItsPlace) {
  WriteCount(24);
  Start();
  house().cursor.SetPosition(1);
  const auto& album = form().album;
  // From the start the next page shows one album twice, as it always did.
  const std::pair<const Control*, int> presses[] = {{&album.previous, 1},
                                                    {&album.next, 13},
                                                    {&album.next, 13},
                                                    {&album.letter_buttons[26], 0},
                                                    {&album.next, 12}};
  for (const auto& [button, position] : presses) {
    Click(*button);
    EXPECT_EQ(house().cursor.position(), position);
    EXPECT_EQ(FirstAlbum(), "Album " + std::to_string(std::max(position, 1)));
  }
}

TEST_F(AlbumPagesTest, ATouchWhileTheCoversComeNeitherUndoesThePageNorOpensTheLetters) {
  WriteCount(60);
  Start();
  house().settings.use_animated_covers = true;
  for (const Control* touched : {static_cast<const Control*>(&form().album.jump_to_letter),
                                 static_cast<const Control*>(&form().album.next)}) {
    house().cursor.SetPosition(1);
    machine.events.on_pump = [&, now = 0]() mutable {
      if (++now == 3) touched->on_click();
    };
    Click(form().album.next);
    machine.events.on_pump = [] {};
    EXPECT_EQ(house().cursor.position(), 13);
    EXPECT_EQ(FirstAlbum(), "Album 13");
    EXPECT_FALSE(form().jump_to_letter.panel.visible());
  }
  // The way to the start has no such flag, and wins.
  machine.events.on_pump = [&, now = 0]() mutable {
    if (++now == 3) form().album.letter_buttons[26].on_click();
  };
  Click(form().album.next);
  machine.events.on_pump = [] {};
  EXPECT_EQ(house().cursor.position(), 0);
  EXPECT_EQ(FirstAlbum(), "Album 1");
}

TEST_F(AlbumPagesTest, LettersJumpByTheirOwnArithmeticAndNeverReadTheLastRecord) {
  WriteCount(52);
  WriteCount(52, "new.cvr");
  Start();
  using enum JumpControl;
  using S = CatalogueSource;
  // From position 1. The strip looks at fewer sources than the buttons.
  const std::tuple<S, char, JumpControl, int> jumps[] = {{S::kRecords, 'M', kLetterButton, 25},
                                                         {S::kRecords, 'M', kStrip, 14},
                                                         {S::kRecords, 'A', kStripThumb, 2 - 12},
                                                         {S::kRecords, '!', kLetterButton, 1},
                                                         {S::kNew, 'M', kStrip, 1},
                                                         {S::kNew, 'M', kStripThumb, 1},
                                                         {S::kNew, 'M', kLetterButton, 25}};
  for (const auto& [source, letter, control, position] : jumps) {
    house().cursor.source = source;
    house().cursor.SetPosition(1);
    house().letter_jump.JumpTo(letter, control);
    EXPECT_EQ(house().cursor.position(), position) << letter;
  }
  house().cursor.source = CatalogueSource::kRecords;
  Click(form().album.letter_buttons[12]);
  EXPECT_EQ(FirstAlbum(), "Album 25");
  WriteAlbums({{"One", "Ada"}, {"Two", "Zoe"}});
  house().cursor.SetPosition(1);
  house().letter_jump.JumpTo('Z', kLetterButton);
  EXPECT_EQ(house().cursor.position(), 1);
}

TEST_F(AlbumPagesTest, AFingerOnTheThumbMovesItAndJumpsOnRelease) {
  WriteCount(52);
  Start();
  const Rect strip = form().album.strip.AbsolutePlace();
  const Rect thumb = form().album.strip_thumb.AbsolutePlace();
  Form& window = form().form;
  window.PressMouse({thumb.left + 5, thumb.top + 5});
  window.MoveMouse({strip.left + strip.width * 13.5F / 27, strip.top + 5});
  EXPECT_EQ(house().letter_jump.jump_letter(), 13);
  EXPECT_EQ(house().cursor.position(), 1);
  window.ReleaseMouse({strip.left + strip.width * 13.5F / 27, strip.top + 5});
  EXPECT_EQ(FirstAlbum(), "Album 14");
  // Back to the first zone: the start of the file.
  const Rect moved = form().album.strip_thumb.AbsolutePlace();
  window.PressMouse({moved.left + 5, moved.top + 5});
  window.ReleaseMouse({strip.left - 400, strip.top + 5});
  EXPECT_EQ(house().cursor.position(), 0);
}

TEST_F(AlbumPagesTest, TabsChangeSourceAndKindEachInItsOwnWay) {
  using T = AlbumTab;
  using S = CatalogueSource;
  const std::tuple<T, S, S, int> presses[] = {
      {T::kAudio, S::kRecords, S::kRecords, 1},    {T::kAudio, S::kVideos, S::kRecords, 0},
      {T::kVideo, S::kRecords, S::kVideos, 1},     {T::kKaraoke, S::kRecords, S::kKaraoke, 2},
      {T::kKaraoke, S::kKaraoke, S::kKaraoke, 2},  {T::kNewSongs, S::kRecords, S::kNew, 4},
      {T::kNewSongs, S::kKaraoke, S::kKaraoke, 4}, {T::kMostPlayed, S::kVideos, S::kVideos, 1}};
  Start();
  for (const auto& [tab, before, after, kind] : presses) {
    house().cursor.source = before;
    house().cursor.media_kind = 1;
    house().pages.PressTab(tab);
    EXPECT_EQ(house().cursor.source, after);
    EXPECT_EQ(house().cursor.media_kind, kind);
  }
}

TEST_F(AlbumPagesTest, EachSourceKeepsItsPage) {
  WriteCount(30);
  WriteCount(30, "videos.cvr");
  Start();
  Click(form().album.next);
  const int page = house().cursor.position();
  Click(form().album.tabs[1]);
  EXPECT_EQ(house().cursor.position(), 0);
  Click(form().album.tabs[0]);
  EXPECT_EQ(house().cursor.position(), page);
}

TEST_F(AlbumPagesTest, ASpinShowsRandomAlbumsUnderTheRunningDigits) {
  settings.show_album_digits = true;
  WriteCount(100);
  Start();
  house().cursor.SetPosition(13);
  house().pages.spin_on_this();
  EXPECT_EQ(house().cursor.position(), 13);
  int moved = 0;
  for (size_t slot = 1; slot <= 12; ++slot) {
    const std::string& artist = house().pages.slots()[slot].artist;
    const std::string digits = "(00" + std::to_string(12 + slot) + ")";
    EXPECT_NE(artist.find(digits), std::string::npos) << artist;
    moved += house().pages.slots()[slot].album != "Album " + std::to_string(12 + slot);
  }
  EXPECT_GT(moved, 6);
}

TEST_F(AlbumPagesTest, AWeekMakesAnAlbumOldAndEmptiedPlacesKeepTheirBadge) {
  settings.show_new_on_recent_albums = true;
  WriteAlbums(
      {{"R & B", "A", "01/15/2024"}, {"Six", "B", "1/9/2024"}, {"Seven", "C", "01/08/2024"}});
  Start();
  EXPECT_EQ(Cover(0).album.caption(), "R && B");
  EXPECT_TRUE(Cover(0).new_badge.visible());
  EXPECT_TRUE(Cover(1).new_badge.visible());
  EXPECT_FALSE(Cover(2).new_badge.visible());
  WriteAlbums({{"Seven", "C", "01/08/2024"}});
  house().pages.read_albums3();
  EXPECT_FALSE(Cover(1).cover.visible() || Cover(1).album.visible());
  EXPECT_EQ(house().pages.FolderAt(1), "");
  EXPECT_TRUE(Cover(1).new_badge.visible());
  WriteAlbums({{"Odd", "A", "someday"}});
  EXPECT_THROW(house().pages.read_albums3(), RuntimeFailure);
}

TEST_F(AlbumPagesTest, CoversComeByTheOneRule) {
  folder.Write("music/With/cover.JPG", "x");
  folder.Write("music/First/b.jpg", "x");
  folder.Write("music/First/A.jpg", "x");
  folder.Write("music/None/notes.txt", "x");
  Start();
  const std::string not_found = folder.path() + "\\skins\\Plain\\images\\ImageNotFound.jpg";
  const CoverFinder& covers = house().covers;
  EXPECT_EQ(covers.FindCoverPicture(AlbumPath("With")), AlbumPath("With") + "\\Cover.jpg");
  EXPECT_EQ(covers.FindCoverPicture(AlbumPath("First")), not_found);
  for (bool Settings::*option : {&Settings::use_folder_name, &Settings::display_first_image}) {
    house().settings.*option = true;
    EXPECT_EQ(covers.FindCoverPicture(AlbumPath("First")), AlbumPath("First") + "\\A.jpg");
    EXPECT_EQ(covers.FindCoverPicture(AlbumPath("None")), not_found);
    EXPECT_EQ(covers.FindCoverPicture(AlbumPath("Gone")), not_found);
    house().settings.*option = false;
  }
}

TEST_F(AlbumPagesTest, TheCarouselStandsAnArtistInEachColumn) {
  WriteAlbums({{"1", "Ada"},
               {"2", "ada"},
               {"3", "Bob"},
               {"4", "Cy"},
               {"5", "Di"},
               {"6", "Eve"},
               {"7", "Eve"},
               {"8", "Flo"}});
  Start();
  house().cursor.SetPosition(1);
  PressMenu(MenuButton::kCarousel);
  const CarouselScreen& screen = form().carousel;
  EXPECT_EQ(screen.columns[0].artist.caption(), "Ada");
  EXPECT_EQ(house().carousel.PathAt(0, 1), AlbumPath("2"));
  EXPECT_EQ(house().carousel.PathAt(4, 1), AlbumPath("7"));
  EXPECT_FALSE(screen.columns[1].covers[1].visible());
  Click(screen.columns[4].covers[0]);
  EXPECT_TRUE(form().panel(screen::kTrackList).visible());
  house().cursor.source = CatalogueSource::kVideos;
  house().carousel.Step(1);
  EXPECT_EQ(house().cursor.source, CatalogueSource::kRecords);
  EXPECT_EQ(house().cursor.position(), 1);
}

TEST_F(AlbumPagesTest, APositionNeverWraps) {
  Start();
  house().cursor.SetPosition(32767);
  EXPECT_THROW(house().cursor.SetPosition(32768), RuntimeFailure);
  Click(form().album.next);
  EXPECT_EQ(house().cursor.position(), 32767);
  Click(form().album.previous);
  EXPECT_EQ(house().cursor.position(), 32767);
}

TEST_F(AlbumPagesTest, AnyBytesInACatalogueAreJustAPage) {
  std::mt19937 random(7);
  for (const size_t size : {1U, 384U, 385U, 386U, 3850U, 20000U}) {
    std::string bytes(size, ' ');
    for (char& c : bytes) c = static_cast<char>(random());
    folder.Write("Records.cvr", bytes);
    folder.Write("Records.rec", bytes);
    Start();
    EXPECT_EQ(result, StartUpResult::kRunning);
    Click(form().album.next);
    house().letter_jump.JumpTo('A', JumpControl::kLetterButton);
  }
}

}  // namespace
}  // namespace sonotik
