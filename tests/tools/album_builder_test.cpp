#include "tools/config/album_builder.h"

#include <gtest/gtest.h>

#include <tuple>

#include "tools/config/names.h"

namespace sonotik {
namespace {

TEST(Names, LoseControlCharactersAndTheirOuterBlanks) {
  const std::pair<std::string, std::string> cases[] = {
      {"  Ada  ", "Ada"},
      {std::string("A\0B\r\nC\t", 7), "A B  C"},
      {"\x7F\x1B[2J", "[2J"},
      {"a\u0085b\u2028c\u2029d", "a  b c d"},
      {"d\u00E9j\u00E0 \u20AC", "d\u00E9j\u00E0 \u20AC"},  // its bytes contain 0x82 and 0xA9
      {"caf\xE9", "caf\xE9"}};
  for (const auto& [text, clean] : cases) EXPECT_EQ(CleanText(text), clean);
}

TEST(Names, AreCutBetweenTwoCharacters) {
  const std::tuple<const char*, size_t, const char*> cases[] = {
      {"abc", 3, "abc"},
      {"ab\u00E9", 3, "ab"},
      {"ab\u00E9", 4, "ab\u00E9"},
      {"a\u20AC", 2, "a"},
      {"a\u20AC", 3, "a"},
      {"\U0001F3B5x", 3, ""},
      {"\U0001F3B5x", 4, "\U0001F3B5"},
      {"ab cd", 3, "ab"},
      {"\x80\x80\x80\x80\x80\x80", 5, "\x80\x80\x80\x80\x80"}};
  for (const auto& [text, width, cut] : cases) EXPECT_EQ(CutText(text, width), cut) << text;
}

TEST(Names, AreMadeFromFileNamesWithoutTheTrackNumber) {
  const std::pair<const char*, const char*> cases[] = {
      {"01 - Dawn.mp3", "Dawn"},      {"03_Dawn.mp3", "Dawn"},
      {"Dawn.live.mp3", "Dawn.live"}, {"99 Luftballons.mp3", "99 Luftballons"},
      {"24-7.mp3", "24-7"},           {"01 - .mp3", "01 -"},
      {"01 - 99 Red.mp3", "99 Red"},  {"1999 - Party.mp3", "1999 - Party"}};
  for (const auto& [name, title] : cases) EXPECT_EQ(TitleFromFileName(name), title) << name;
}

TEST(Names, OfGenresBecomeFileNames) {
  const std::pair<std::string, std::string> cases[] = {
      {"R&B", "R&B"},
      {"..\\..\\x", "-..-x"},
      {"  .hidden ", "hidden"},
      {" . ", ""},
      {"Folk, & \"Country\"", "Folk & Country"},
      {std::string(80, 'x'), std::string(60, 'x')}};
  for (const auto& [genre, stem] : cases) EXPECT_EQ(GenreFileStem(genre), stem) << genre;
}

// A track by its tag: artist, title, album, genre.
TrackInfo Track(const std::string& path, const std::string& artist = "",
                const std::string& album = "", const std::string& genre = "") {
  return {path, artist, "", album, "", "", "", genre, "", ""};
}

TEST(Album, TakesItsArtistFromAllOfItsTracks) {
  const std::tuple<std::vector<std::string>, std::string, std::string> cases[] = {
      {{"Ada", "ada", "ADA"}, "x", "Ada"},
      {{"Ada", "Bob"}, "x", "Various Artists"},
      {{"Ada", "Bob", "Ada"}, "Ada - Dawn", "Various Artists"},
      {{"", ""}, "x", "Unknown Artist"},
      {{"", ""}, "Ada - Dawn", "Ada"},
      {{"Ada", ""}, "x", "Ada"},  // a track without a name makes no compilation
      {{"", "Bob"}, "Ada - Dawn", "Various Artists"},
  };
  for (const auto& [artists, folder, common] : cases) {
    std::vector<TrackInfo> tracks;
    for (const std::string& artist : artists) tracks.push_back(Track("\\x\\1.mp3", artist));
    EXPECT_EQ(MakeAlbum("\\m\\" + folder + "\\", tracks).artist, common) << folder << artists[1];
  }
}

TEST(Album, TakesTheMostCommonTitleAndGenreOrElseTheFoldersName) {
  const Album told = MakeAlbum(
      "\\m\\x\\",
      {Track("\\m\\x\\1.mp3", "Ada", "Dusk", "Pop"), Track("\\m\\x\\2.mp3", "Ada", "Dawn", "Jazz"),
       Track("\\m\\x\\3.mp3", "Ada", "DAWN", "jazz"), Track("\\m\\x\\4.mp3")});
  EXPECT_EQ(told.title, "Dawn");
  EXPECT_EQ(told.genre, "Jazz");
  EXPECT_EQ(told.tracks[0].album, "Dusk");
  EXPECT_EQ(told.tracks[3].album, "Dawn");
  EXPECT_EQ(told.tracks[3].title, "4");
  EXPECT_EQ(MakeAlbum("\\m\\Ada - Dawn\\", {Track("\\1.mp3")}).title, "Dawn");
  EXPECT_EQ(MakeAlbum("\\m\\Best of 1990 - 1999\\", {Track("\\1.mp3", "Ada")}).title,
            "Best of 1990 - 1999");
}

TEST(Records, HoldEachFieldInItsPlace) {
  TrackInfo info = Track("\\m\\1.mp3", std::string(59, 'a') + "\u00E9", "Dawn");
  info.title = "One";
  const TrackRecord track = MakeRecord(info, -2, "03/01/2024");
  const std::string_view bytes(track.bytes.data(), track.bytes.size());
  ASSERT_EQ(bytes.size(), 447u);
  EXPECT_EQ(bytes.substr(0, 12), "\\m\\1.mp3    ");
  EXPECT_EQ(bytes.substr(255, 60), std::string(59, 'a') + " ");  // half a letter doesn't stay
  EXPECT_EQ(bytes.substr(315, 5), "One  ");
  EXPECT_EQ(bytes.substr(375, 5), "Dawn ");
  EXPECT_EQ(bytes.substr(435), std::string("\xFE\xFF") + "03/01/2024");

  const AlbumRecord album = MakeRecord(Album{"\\m\\x\\", "Ada", "Dawn", "", {}}, "03/01/2024");
  const std::string_view cover(album.bytes.data(), album.bytes.size());
  EXPECT_EQ(cover, "\\m\\x\\" + std::string(250, ' ') + "Ada" + std::string(57, ' ') + "Dawn" +
                       std::string(56, ' ') + "03/01/2024");
}

AlbumRecord Cover(const std::string& artist, const std::string& title,
                  const std::string& path = "\\m\\") {
  return MakeRecord(Album{path, artist, title, "", {}}, "03/01/2024");
}

TEST(Pages, KeepTheAlbumsOfAnArtistTogetherInLetterOrder) {
  std::vector<AlbumRecord> albums = {
      Cover("beta", "7"),       Cover("Zed", "9"),           Cover("ABBA", "5"),
      Cover("2Pac", "1"),       Cover("abba", "4"),          Cover("Abba X", "6"),
      Cover("\u00C9lan", "10"), Cover("Beta", "8", "\\b\\"), Cover("Abba", "3c"),
      Cover("ABBA", "3B"),      Cover("Abba", "3a"),         Cover("A", "x", "\\2\\"),
      Cover("A", "X", "\\1\\")};
  SortForPages(albums);
  std::string titles;
  for (const AlbumRecord& album : albums) titles += album.Trimmed(AlbumRecord::kAlbum) + " ";
  EXPECT_EQ(titles, "1 X x 3a 3B 3c 4 5 6 7 8 9 10 ");
}

TEST(Pages, ShowAnAlbumAsNewForThirtyDays) {
  const std::pair<const char*, bool> cases[] = {
      {"03/01/2024", true}, {"01/31/2024", true}, {"01/30/2024", false}, {"03/09/2024", true},
      {"2/1/2024", true},   {"", false},          {"2024-03-01", false}};
  for (const auto& [date, is_new] : cases) {
    const AlbumRecord album = MakeRecord(Album{"\\m\\", "A", "B", "", {}}, date);
    EXPECT_EQ(IsNew(album, {2024, 3, 1}), is_new) << date;
  }
}

}  // namespace
}  // namespace sonotik
