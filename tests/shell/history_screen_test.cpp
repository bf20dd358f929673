// What was played, and what was played most, as a guest turns their pages.
#include <gtest/gtest.h>

#include "files/files.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

std::string PlayBytes(const std::string& path, const std::string& track) {
  using R = HistoryRecord;
  return RecordBytes<R>({{R::kArtist, "Ada"},
                         {R::kTrack, track},
                         {R::kAlbum, "D&A"},
                         {R::kPath, path},
                         {R::kPlayedOn, "01/15/2024"},
                         {R::kPlayedAt, "11:59:00"}});
}

class HistoryScreenTest : public JukeboxTest {
 protected:
  HistoryScreenTest() {
    for (int i = 1; i <= 12; ++i) {
      const std::string name = std::to_string(i);
      tracks.push_back(WriteTrack("Day", name + ".wav", "Ada", "Song " + name));
    }
    WriteAlbums({{"Day", "Ada"}, {"Night", "Bob"}});
  }

  // The first tracks, each played once, in their order.
  void WriteHistory(int plays) {
    std::string bytes;
    for (int i = 0; i < plays; ++i) {
      bytes += PlayBytes(tracks[static_cast<size_t>(i)], "Song " + std::to_string(i + 1));
    }
    folder.Write("User_history.dat", bytes);
  }
  void Press(HistoryStep step) { Click(form().history.steps[static_cast<size_t>(step)]); }
  const std::string& Text(int row) {
    return form().history.rows[static_cast<size_t>(row)].text.caption();
  }
  // The song of a row; empty for an empty row.
  std::string Song(int row) {
    const size_t at = Text(row).find("Song ");
    return at == std::string::npos ? "" : Text(row).substr(at, Text(row).find(' ', at + 5) - at);
  }
  int64_t Top() { return house().history_view.history_top(); }

  std::vector<std::string> tracks;
};

TEST_F(HistoryScreenTest, ShowsNinePlaysNewestFirstWithTheirFieldsAsTheyStand) {
  WriteHistory(12);
  folder.Write("music/Day/Cover.jpg", "x");
  Start();
  PressMenu(MenuButton::kHistory);
  const auto blanks = [](size_t used) { return std::string(255 - used, ' '); };
  EXPECT_EQ(Text(0), "0\nArtist: Ada" + blanks(3) + "\nTrack: Song 12" + blanks(7) +
                         "\nAlbum: D&&A" + blanks(3) + "\nPlayed At: 11:59:00" +
                         std::string(17, ' ') + "\nPlayed on: 01/15/2024" + std::string(15, ' '));
  EXPECT_EQ(Text(8).substr(0, 2), "8\n");
  EXPECT_EQ(Song(8), "Song 4");
  EXPECT_EQ(form().history.rows[8].cover.picture(), AlbumPath("Day") + "\\Cover.jpg");
  EXPECT_EQ(form().history.total.caption(), "Total Song(s) in History  12");
  Press(HistoryStep::kPageUp);
  EXPECT_EQ(Text(0).substr(0, 2), "9\n");
  EXPECT_EQ(Song(2), "Song 1");
  EXPECT_EQ(Text(3), "");
  EXPECT_EQ(form().history.rows[3].cover.picture(), "");
  // The menu leads back to the newest, a mapped key to where one was.
  jukebox->menu.hooks.history_show2();
  EXPECT_EQ(Top(), 3);
  PressMenu(MenuButton::kHistory);
  EXPECT_EQ(Top(), 12);
}

TEST_F(HistoryScreenTest, EachStepLeadsWhereItSays) {
  WriteHistory(5);
  Start();
  PressMenu(MenuButton::kHistory);
  using enum HistoryStep;
  // One guest's presses, and the record in the first row behind each.
  const std::pair<HistoryStep, int> presses[] = {
      {kPageUp, 5},   {kPrevious, 4}, {kPrevious, 3}, {kNext, 4},     {kPageDown, 5}, {kNext, 5},
      {kPrevious, 4}, {kPrevious, 3}, {kPrevious, 2}, {kPrevious, 1}, {kPrevious, 5}};
  for (const auto& [step, top] : presses) {
    Press(step);
    EXPECT_EQ(Top(), top);
    EXPECT_EQ(Song(0), "Song " + std::to_string(top));
  }
}

TEST_F(HistoryScreenTest, NoPressAtAnyLengthOfTheLogEverFailsOrCostsAnything) {
  std::mt19937 random(5);
  // Without a log the total is that of the file read last, and an empty one counts as one.
  for (const auto& [plays, total] : {std::pair(-1, "2"), {0, "1"}, {3, "3"}}) {
    folder.Remove("User_history.dat");
    if (plays >= 0) WriteHistory(plays);
    StartPaid(5);
    PressMenu(MenuButton::kHistory);
    EXPECT_EQ(form().history.total.caption(), std::string("Total Song(s) in History  ") + total);
    for (int i = 0; i < 600; ++i) {
      const size_t which = random() % 6;
      const size_t row = random() % kHistoryRows;
      if (which < 4) Press(static_cast<HistoryStep>(which));
      if (which == 4) Click(form().history.rows[row].text);
      if (which == 5) Click(form().history.rows[row].cover);
      EXPECT_TRUE(plays > 0 || Shown() == Screens{screen::kHistory});
      if (form().panel(screen::kPlayOptions).visible()) Click(form().play_options.cancel);
      if (form().panel(screen::kTrackList).visible()) jukebox->menu.Show(screen::kHistory);
    }
    EXPECT_EQ(house().boundary.failures(), 0);
    EXPECT_EQ(house().credits.count(), 5);
    EXPECT_EQ(folder.Has("User_history.dat"), plays >= 0);
  }
}

TEST_F(HistoryScreenTest, TextsLeadToThePlayOptionsAndCoversToTheAlbum) {
  WriteHistory(3);
  Start();
  PressMenu(MenuButton::kHistory);
  // A play meanwhile moves nothing under the guest's finger.
  Choose(tracks[5]);
  Click(form().history.rows[1].text);
  EXPECT_EQ(form().play_options.title.caption(), "Song 2");
  Click(form().play_options.add_to_queue);
  EXPECT_EQ(house().queue.path(0), tracks[1]);
  EXPECT_EQ(Shown(), Screens{screen::kHistory});
  Click(form().history.rows[2].cover);
  EXPECT_EQ(form().track_list.rows[0].title.caption(), "Song 1");
  Click(form().track_list.back);
  EXPECT_EQ(Shown(), Screens{screen::kAlbum});
}

TEST_F(HistoryScreenTest, TheTop20TurnsItsPagesAndLeavesAnEleventhRowOut) {
  WriteHistory(11);
  AppendToFile(folder.path() + "\\User_history.dat", PlayBytes(tracks[6], "Song 7"));
  Start();
  PressMenu(MenuButton::kTop20);
  const Top20Screen& screen = form().top20;
  EXPECT_EQ(screen.rows[0].number.caption(), "1");
  EXPECT_EQ(screen.rows[0].track.caption(), "Song 7");
  EXPECT_EQ(screen.rows[0].played.caption(), "Played 02 Time(s)");
  EXPECT_EQ(screen.rows[1].track.caption(), "Song 1");
  Click(screen.down);
  EXPECT_EQ(house().top20.top20_top(), 1);
  Choose(tracks[11]);
  Click(screen.down);
  EXPECT_EQ(screen.rows[0].number.caption(), "11");
  EXPECT_EQ(screen.rows[1].track.caption(), "Song 12");
  EXPECT_FALSE(screen.rows[2].track.visible());
  Click(screen.down);
  EXPECT_EQ(house().top20.top20_top(), 11);
  for (int i = 0; i < 2; ++i) Click(screen.up);
  EXPECT_EQ(house().top20.top20_top(), 1);
  Click(screen.down);
  PressMenu(MenuButton::kTop20);
  EXPECT_EQ(house().top20.top20_top(), 1);
}

TEST_F(HistoryScreenTest, TheTop20PlaysWhatItShowsWhateverHasRisenSince) {
  WriteHistory(3);
  Start();
  PressMenu(MenuButton::kTop20);
  for (const lvButtons_H& command : form().top20.commands) EXPECT_FALSE(command.visible());
  Click(form().top20.rows[4].cover);
  EXPECT_FALSE(form().panel(screen::kPlayOptions).visible());
  Choose(tracks[2]);
  Click(form().top20.rows[0].track);
  EXPECT_EQ(form().play_options.title.caption(), "Song 1");
  Click(form().play_options.cancel);
  Click(form().top20.commands[static_cast<size_t>(Top20Command::kAddToQueue)]);
  Click(form().top20.rows[1].artist);
  Click(form().play_options.cancel);
  Click(form().top20.commands[static_cast<size_t>(Top20Command::kPlayNext)]);
  EXPECT_EQ(Queued(), (std::vector<std::string>{tracks[1], tracks[0]}));
  EXPECT_TRUE(form().top20.panel.showing());
  // The menu shows it as it is now, and again without a row chosen.
  PressMenu(MenuButton::kTop20);
  EXPECT_EQ(form().top20.rows[0].track.caption(), "Song 3");
  EXPECT_FALSE(form().top20.commands[0].visible());
}

TEST_F(HistoryScreenTest, EachPlayTellsOthersAndNoFailureOfTheirsKeepsItFromPlaying) {
  folder.Write("test.bat", "");
  folder.Write("music/Day/Cover.jpg", "x");
  Start();
  int facts = 0;
  house().tracks.hooks.start_song_facts = [&] { ++facts; };
  std::string drawn;
  jukebox->chart_ways.form_image = [&] {
    const Form2& form = house().form2;
    drawn = form.forum_artist.caption() + ", " + form.forum_title.caption() + ", " +
            form.forum_album.caption() + ", " + NameOf(form.forum_cover.picture());
    throw RuntimeFailure("no disk");
  };
  folder.Write("music/Day/1.wav.tag", Sidecar("A&B", "Song 1", "C&D", "0:30"));
  Choose(tracks[0]);
  EXPECT_EQ(drawn, "A&&B, Song 1, C&&D, Cover.jpg");
  EXPECT_EQ(machine.player.file, tracks[0]);
  EXPECT_EQ(facts, 1);
  const std::vector<std::string> script{folder.path() + "\\test.bat"};
  EXPECT_EQ(machine.processes.started, script);
  // A Terminal has none of its own.
  house().network.SetRole(false, true);
  house().tracks.Play_track3(tracks[1]);
  EXPECT_EQ(machine.processes.started, script);
}

}  // namespace
}  // namespace sonotik
