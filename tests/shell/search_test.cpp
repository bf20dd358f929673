// A guest who looks for something: the keyboard, the suggestions, the results.
#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class SearchTest : public JukeboxTest {
 protected:
  SearchTest() { settings.add_all_to_queue = true; }

  using Lines = std::vector<std::string>;

  // A track file of these titles.
  void WriteTracks(const std::vector<std::string>& titles,
                   const std::string& file = "Records.rec") {
    std::string bytes;
    for (const std::string& title : titles) {
      bytes += TrackBytes(AlbumPath("Day") + title + ".wav", title, "Ada", "Day");
    }
    folder.Write(file, bytes);
  }
  void WriteSongs(int count) {
    Lines titles;
    for (int i = 1; i <= count; ++i) titles.push_back("Song " + std::to_string(i));
    WriteTracks(titles);
  }

  SearchResultsScreen& Page() { return form().search_results; }
  lvButtons_H& Command(ResultCommand command) {
    return Page().commands[static_cast<size_t>(command)];
  }
  // The titles in view.
  Lines Rows() {
    Lines titles;
    for (ResultRow& row : Page().rows) {
      if (row.track.showing()) titles.push_back(row.track.caption());
    }
    return titles;
  }
  Lines Suggested() {
    Lines lines;
    for (Label& line : form().search.suggestions) lines.push_back(line.caption());
    return lines;
  }
};

TEST_F(SearchTest, AGuestTypesAWordAndHearsTheTrack) {
  const std::string path = WriteTrack("Day", "2 Dusk.wav", "Ada", "Dusk");
  folder.Write("music/Day/Cover.jpg", "x");
  folder.Write("Records.rec", TrackBytes("\\gone.mp3", "Noon & Night", "Bo", "Day") +
                                  TrackBytes(path, " Dusk", "Ada", "Day"));
  Start();
  // Without a text the keyboard stays.
  Find(SearchMode::kTrack, "A<<");
  EXPECT_TRUE(form().panel(screen::kSearch).showing());
  Find(SearchMode::kTrack, "USL<K");
  EXPECT_EQ(Page().heading.caption(), " 1 Songs Found, Matching (USK)");
  ASSERT_EQ(Rows(), Lines{"Dusk"});
  EXPECT_EQ(Page().rows[0].artist.caption(), "Ada");
  EXPECT_EQ(Page().rows[0].number.caption(), " 1");
  EXPECT_EQ(Page().rows[0].cover.picture(), AlbumPath("Day") + "Cover.jpg");
  EXPECT_EQ(house().search.results().folders[0] + "\\", AlbumPath("Day"));
  EXPECT_EQ(house().search.results().paths[0].size(), 255U);
  EXPECT_EQ(Shown(), Screens{screen::kSearchResults});
  EXPECT_FALSE(form().searching.panel.visible());
  Click(Page().rows[0].blank);
  EXPECT_EQ(form().play_options.title.caption(), "Dusk");
  Click(form().play_options.cancel);
  EXPECT_TRUE(form().panel(screen::kSearchResults).showing());
  Click(Command(ResultCommand::kPlayNow));
  EXPECT_EQ(machine.player.file, path);
  // Names are shown as they are.
  Find(SearchMode::kTrack, "NOON");
  EXPECT_EQ(CaptionAsShown(Page().rows[0].track.caption()), "Noon & Night");
}

TEST_F(SearchTest, EachModeLooksAtItsOwnField) {
  folder.Write("Records.rec", TrackBytes("\\1.mp3", "Alpha", "Beta", "Gamma") +
                                  TrackBytes("\\2.mp3", "Beta", "Gamma", "Alpha") +
                                  TrackBytes("\\3.mp3", "Gamma", "Alpha", "Beta"));
  Start();
  using enum SearchMode;
  for (const auto& [mode, title] :
       {std::pair(kTrack, "Beta"), {kArtist, "Alpha"}, {kAlbum, "Gamma"}}) {
    Find(mode, "BETA");
    EXPECT_EQ(Rows(), Lines{title});
  }
}

TEST_F(SearchTest, TheNinetyNinthHitEndsTheScanAndThePagesEndWithIt) {
  WriteSongs(120);
  Start();
  Find(SearchMode::kTrack, "SONG");
  EXPECT_EQ(Page().heading.caption(), " 99 Songs Found, Matching (SONG)");
  EXPECT_EQ(house().search.results().tracks[99], "");
  Click(Page().up);
  EXPECT_EQ(Rows().front(), "Song 1");
  for (int i = 0; i < 20; ++i) Click(Page().down);
  EXPECT_EQ(Rows(), Lines{"Song 99"});
  EXPECT_EQ(Page().rows[0].number.caption(), " 99");
  Click(Page().up);
  EXPECT_EQ(Rows().front(), "Song 92");
  // Exactly a page of results has no other.
  WriteSongs(7);
  Find(SearchMode::kTrack, "SONG");
  Click(Page().down);
  EXPECT_EQ(Rows().front(), "Song 1");
}

TEST_F(SearchTest, TheTabsSearchTheOtherFilesAndNewSongsHaveNone) {
  WriteTracks({"Song A"});
  WriteTracks({"Song V"}, "videos.rec");
  settings.tab_karaoke = false;
  Start();
  house().cursor.media_kind = kNewSongs;
  Find(SearchMode::kTrack, "SONG");
  EXPECT_EQ(Page().heading.caption(), " 0 Songs Found, Matching (SONG)");
  EXPECT_TRUE(Rows().empty());
  EXPECT_FALSE(Page().tabs[2].visible());
  Click(Page().tabs[1]);
  EXPECT_EQ(Rows(), Lines{"Song V"});
  EXPECT_EQ(house().cursor.media_kind, kVideo);
  Click(Page().rows[0].track);
  Click(form().play_options.cancel);
  EXPECT_TRUE(Command(ResultCommand::kPlayNow).visible());
  // What was chosen among the videos is no choice among the audio tracks.
  Click(Page().tabs[0]);
  EXPECT_EQ(Rows(), Lines{"Song A"});
  EXPECT_FALSE(Command(ResultCommand::kPlayNow).visible());
  EXPECT_EQ(house().search.ChosenPath(), "");
}

TEST_F(SearchTest, TheCommandsActOnTheTrackChosenAlsoFromAnotherPage) {
  WriteSongs(20);
  Start();
  Find(SearchMode::kTrack, "SONG");
  EXPECT_FALSE(Command(ResultCommand::kAddToQueue).visible());
  Click(Page().rows[1].number);
  Click(form().play_options.cancel);
  EXPECT_TRUE(Page().rows[1].track.highlighted());
  Click(Page().down);
  EXPECT_FALSE(Page().rows[1].track.highlighted());
  Click(Command(ResultCommand::kAddToQueue));
  Click(Page().rows[0].artist);
  Click(form().play_options.cancel);
  Click(Command(ResultCommand::kPlayNext));
  EXPECT_EQ(Queued(), Lines({AlbumPath("Day") + "Song 8.wav", AlbumPath("Day") + "Song 2.wav"}));
  EXPECT_TRUE(form().panel(screen::kSearchResults).showing());
  house().settings.auto_back_on_selection = true;
  Click(Command(ResultCommand::kAddToQueue));
  EXPECT_TRUE(form().panel(screen::kAlbum).showing());
}

TEST_F(SearchTest, AddAllPaysForEachTrackAndStopsWithTheCredits) {
  WriteSongs(20);
  StartPaid(5);
  Find(SearchMode::kTrack, "SONG");
  Click(Command(ResultCommand::kAddAllToQueue));
  EXPECT_EQ(Queued().size(), 2U);
  EXPECT_EQ(house().credits.count(), 1);
  house().settings.enable_credit_mode = false;
  Click(Command(ResultCommand::kAddAllToQueue));
  EXPECT_EQ(Queued().size(), 22U);
  EXPECT_EQ(Queued().back(), AlbumPath("Day") + "Song 20.wav");
}

TEST_F(SearchTest, ANewSearchKeepsTheFirstResultAlone) {
  WriteSongs(9);
  Start();
  Find(SearchMode::kTrack, "SONG");
  Click(Command(ResultCommand::kNewSearch));
  EXPECT_TRUE(form().panel(screen::kSearchChoice).showing());
  const SearchResults& results = house().search.results();
  EXPECT_EQ(results.tracks[0], "Song 1");
  for (const SearchResults::List* list :
       {&results.paths, &results.artists, &results.tracks, &results.albums, &results.folders}) {
    EXPECT_EQ(std::count(list->begin() + 1, list->end(), ""), 100);
  }
  // And the next search keeps nothing of it.
  Find(SearchMode::kTrack, "X");
  EXPECT_EQ(results.tracks[0], "");
}

TEST_F(SearchTest, AlbumsAreSuggestedWhileSomebodyTypesAndTheLastOneCanNotBeChosen) {
  WriteAlbums(
      {{"Dawn", "Ada"}, {"Noon", "ABBA & Bo"}, {"Night", "Abe"}, {"Nook", "Bo"}, {"Dusk", "Cy"}});
  WriteTrack("Night", "1.wav", "Abe", "Owls");
  Start();
  Begin(SearchMode::kArtist, "CY");
  EXPECT_EQ(Suggested(), Lines({"Cy - Dusk", "", "", ""}));
  Click(form().search.suggestions[0]);
  EXPECT_EQ(Shown(), Screens{screen::kSearch});
  Begin(SearchMode::kAlbum, "NO");
  EXPECT_EQ(Suggested(), Lines({"ABBA && Bo - Noon", "", "Bo - Nook", ""}));
  // Tracks have none, and a new mode begins without any.
  Begin(SearchMode::kTrack, "N");
  EXPECT_EQ(Suggested(), Lines(4));
  Begin(SearchMode::kArtist, "AB");
  EXPECT_EQ(Suggested(), Lines({"ABBA && Bo - Noon", "Abe - Night", "", ""}));
  // The blanks behind a name belong to it here.
  Type("E ");
  EXPECT_EQ(Suggested(), Lines({"Abe - Night", "", "", ""}));
  Type("X");
  EXPECT_EQ(Suggested(), Lines(4));
  // Without a text the file begins.
  Click(form().search.clear);
  EXPECT_EQ(Suggested(), Lines({"Ada - Dawn", "ABBA && Bo - Noon", "Abe - Night", "Bo - Nook"}));
  Type("ABE");
  Click(form().search.suggestions[0]);
  EXPECT_EQ(Shown(), Screens({screen::kSearch, screen::kTrackList}));
  EXPECT_NE(form().track_list.rows[0].title.caption().find("Owls"), std::string::npos);
  // The new songs and a genre have an index, but no suggestions.
  house().cursor.source = CatalogueSource::kNew;
  Begin(SearchMode::kArtist, "A");
  EXPECT_EQ(Suggested(), Lines(4));
  EXPECT_FALSE(folder.Has("new.cvr"));
}

TEST_F(SearchTest, TheNoteThatItSearchesIsPaintedFirstAndItsBarMoves) {
  WriteSongs(5000);
  Start();
  std::vector<int> painted;
  machine.events.on_paint = [&] {
    EXPECT_TRUE(form().searching.panel.showing());
    EXPECT_EQ(form().form.children().back(), &form().searching.panel);
    painted.push_back(form().searching.progress.value());
  };
  const int pumps = machine.events.pumps;
  int records = 0;
  house().search.on_record = [&, idle = house().search.on_record] {
    idle();
    ++records;
    machine.clock.Add(1);
  };
  Begin(SearchMode::kTrack, "NOWHERE");
  house().state.idle_seconds = 50;
  house().search.search(SearchMode::kTrack);
  EXPECT_EQ(records, 5000);
  EXPECT_EQ(house().state.idle_seconds, 0);
  EXPECT_EQ(painted, std::vector<int>({0, 1024, 2048, 3072, 4096}));
  EXPECT_EQ(form().searching.progress.max(), 5000);
  EXPECT_FALSE(form().searching.panel.visible());
  // Nothing but painting may run while the file is read.
  EXPECT_EQ(machine.events.pumps, pumps);
}

TEST_F(SearchTest, SpecialListsAreOfferedWhereNothingWasFoundAndLeadToAnEmptyPage) {
  WriteSongs(9);
  Start();
  Find(SearchMode::kTrack, "QQ");
  EXPECT_FALSE(Page().list_panel.visible());
  folder.Write("lists/best.txt", "1\r\nSONG 1,ADA\r\n");
  folder.Write("lists/new.txt", "");
  Start();
  Find(SearchMode::kTrack, "SONG");
  EXPECT_FALSE(Page().list_panel.visible());
  Find(SearchMode::kTrack, "QQ");
  EXPECT_FALSE(Page().lists[2].visible());
  Click(Page().lists[0]);
  EXPECT_TRUE(Rows().empty());
  EXPECT_TRUE(form().panel(screen::kSearchResults).showing());
  EXPECT_FALSE(Page().list_panel.visible() || form().searching.panel.visible());
  EXPECT_EQ(form().searching.progress.max(), 500);
  for (lvButtons_H& command : Page().commands) EXPECT_FALSE(command.visible());
}

TEST_F(SearchTest, ATrackFileThatCantBeReadShowsAPageAllTheSame) {
  Start();
  folder.Remove("Records.rec");
  std::filesystem::create_directory(folder.native() / "Records.rec");
  Find(SearchMode::kTrack, "SONG");
  EXPECT_EQ(house().boundary.failures(), 1);
  EXPECT_FALSE(form().searching.panel.visible());
  EXPECT_EQ(Page().heading.caption(), " 0 Songs Found, Matching (SONG)");
  EXPECT_TRUE(form().panel(screen::kSearchResults).showing());
}

TEST_F(SearchTest, FilesOfAnyBytesAndAnyLengthFindWhatIsWhole) {
  std::string tracks, albums;
  for (int i = 0; i < 6; ++i) {
    tracks += TrackBytes("\\" + std::to_string(i), "Song");
    albums += AlbumBytes("\\x\\", "Song", "Song", "?");
  }
  std::mt19937 random(2);
  Start();
  const size_t track_end = tracks.size();
  for (size_t cut = 0; cut <= 2 * TrackRecord::kSize; ++cut) {
    folder.Write("Records.rec", tracks.substr(0, track_end - cut));
    folder.Write("Records.cvr", albums.substr(0, albums.size() - std::min(cut, albums.size())));
    house().search.SetSearchText(cut % 2 == 0 ? "SONG" : "SON");
    house().search.search(SearchMode::kTrack);
    ASSERT_EQ(house().search.result_count(), static_cast<int>((track_end - cut) / 447)) << cut;
    house().search.suggestions().Show(SearchMode::kAlbum, "SONG");
  }
  for (int i = 0; i < 300; ++i) {
    std::string bytes(random() % 3000, ' ');
    for (char& c : bytes) c = static_cast<char>(random());
    folder.Write("Records.rec", bytes);
    folder.Write("Records.cvr", bytes);
    house().search.SetSearchText(std::string(1, static_cast<char>(random())));
    house().search.search(static_cast<SearchMode>(random() % 3));
    house().search.search_show();
    house().search.suggestions().Show(SearchMode::kArtist, "A");
  }
  EXPECT_EQ(house().boundary.failures(), 0);
}

}  // namespace
}  // namespace sonotik
