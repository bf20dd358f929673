// A whole jukebox in a folder of its own, for tests that are the guest, the operator and the clock.
#ifndef SONOTIK_TESTS_SUPPORT_JUKEBOX_TEST_H_
#define SONOTIK_TESTS_SUPPORT_JUKEBOX_TEST_H_

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "catalogue/records.h"
#include "config/settings_file.h"
#include "files/record_file.h"
#include "shell/jukebox.h"
#include "support/temp_folder.h"
#include "support/test_machine.h"

namespace sonotik {

// One album of the test catalogue: its folder is music/<name>.
struct TestAlbum {
  std::string name;
  std::string artist;
  std::string date = "01/01/2024";
};

// A record of one of the catalogue's kinds with these texts, as its bytes.
template <typename Record>
std::string RecordBytes(const std::vector<std::pair<RecordField, std::string>>& fields) {
  Record record;
  for (const auto& [field, text] : fields) {
    PutField(record.bytes, field.offset, field.width, text);
  }
  return {record.bytes.data(), record.bytes.size()};
}

inline std::string AlbumBytes(const std::string& path, const std::string& artist,
                              const std::string& album, const std::string& date) {
  using R = AlbumRecord;
  return RecordBytes<R>(
      {{R::kPath, path}, {R::kArtist, artist}, {R::kAlbum, album}, {R::kDate, date}});
}

inline std::string TrackBytes(const std::string& path, const std::string& track,
                              const std::string& artist = "", const std::string& album = "") {
  using R = TrackRecord;
  return RecordBytes<R>(
      {{R::kPath, path}, {R::kTrack, track}, {R::kArtist, artist}, {R::kAlbum, album}});
}

inline std::string FactBytes(const std::string& artist, const std::string& track,
                             const std::vector<std::string>& facts) {
  using R = SongFactRecord;
  std::vector<std::pair<RecordField, std::string>> fields{{R::kArtist, artist}, {R::kTrack, track}};
  for (size_t i = 0; i < facts.size(); ++i) fields.emplace_back(R::kFacts[i], facts[i]);
  return RecordBytes<R>(fields);
}

// The sidecar of a file, with its names in the places that count.
inline std::string Sidecar(const std::string& artist, const std::string& title,
                           const std::string& album, const std::string& time) {
  return "<tag>\r\n<artist>" + artist + "</artist>\r\n<title>" + title + "</title>\r\n<album>" +
         album +
         "</album>\r\n<comp></comp>\r\n<track></track>\r\n<year>1999</year>\r\n<genre></genre>\r\n"
         "<encodedbyxxx></encodedbyxxx>\r\n<commentsxxx></commentsxxx>\r\n<x/>\r\n<duration>" +
         time + "</duration>\r\n</tag>\r\n";
}

class JukeboxTest : public testing::Test {
 protected:
  JukeboxTest() {
    folder.Write("skins/Plain/images/ImageNotFound.jpg", "x");
    settings.current_skin = "Plain";
    settings.allow_duplicates_in_queue = true;
    WriteDefaults();
    folder.Write("Records.rec", "");
  }

  // The settings of `settings` become sonotik.def.
  void WriteDefaults() {
    OptionLists lists;
    const std::string path = folder.path();
    SettingsFile(path, settings, lists, machine.messages).SaveConfig();
    std::filesystem::rename(folder.native() / "sonotik.ini", folder.native() / "sonotik.def");
  }

  std::string AlbumPath(const std::string& name) const {
    return folder.path() + "\\music\\" + name + "\\";
  }

  void WriteAlbums(const std::vector<TestAlbum>& albums, const std::string& file = "Records.cvr") {
    std::string bytes;
    for (const TestAlbum& album : albums) {
      bytes += AlbumBytes(AlbumPath(album.name), album.artist, album.name, album.date);
    }
    folder.Write(file, bytes);
  }

  // A track with a sidecar, "<n> - <title>.wav" in the album's folder. Gives its path.
  std::string WriteTrack(const std::string& album, const std::string& name,
                         const std::string& artist = "Ada", const std::string& title = "Dawn") {
    folder.Write("music/" + album + "/" + name, "sound");
    folder.Write("music/" + album + "/" + name + ".tag", Sidecar(artist, title, album, "0:30"));
    return AlbumPath(album) + name;
  }

  // With the settings as the test has them; those that were saved meanwhile count before them.
  Jukebox& Start() {
    jukebox.reset();
    if (!folder.Has("sonotik.ini")) WriteDefaults();
    jukebox = std::make_unique<Jukebox>(folder.path(), machine.machine);
    result = jukebox->Start();
    return *jukebox;
  }
  // Everything costs two credits, and the guest has so many.
  void StartPaid(int credits) {
    settings.enable_credit_mode = true;
    folder.Write("cost.dat", " 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n");
    Start();
    house().credits.Receive(std::to_string(credits));
  }
  Assembly& house() { return jukebox->house; }
  Form1& form() { return jukebox->house.form1; }

  static Point Middle(const Control& control) {
    const Rect place = control.AbsolutePlace();
    return {place.left + place.width / 2, place.top + place.height / 2};
  }
  // As a finger would.
  void Click(const Control& control) {
    ASSERT_TRUE(control.showing());
    form().form.Click(Middle(control));
  }

  void PressMenu(MenuButton button) { Click(form().menu_buttons[static_cast<size_t>(button)]); }
  // On the keyboard of the search; "<" takes a letter back.
  void Type(const std::string& text) {
    SearchScreen& screen = form().search;
    for (const char c : text) {
      Click(c == ' '   ? screen.keys[26]
            : c == '<' ? screen.keys[27]
            : c <= '9' ? screen.digits[static_cast<size_t>(c - '0')]
                       : screen.keys[static_cast<size_t>(c - 'A')]);
    }
  }
  void Begin(SearchMode mode, const std::string& text) {
    PressMenu(MenuButton::kSearch);
    Click(form().search_choice.modes[static_cast<size_t>(mode)]);
    Type(text);
  }
  void Find(SearchMode mode, const std::string& text) {
    Begin(mode, text);
    Click(form().search.search);
  }
  void Choose(const std::string& path, PlayWay way = PlayWay::kPlayNow) {
    house().selection.Choose(path, way);
  }
  using Screens = std::vector<size_t>;
  // The screens 0 to 13 that show.
  Screens Shown() {
    Screens shown;
    for (size_t i = 0; i <= screen::kPlayOptions; ++i) {
      if (form().panel(i).visible()) shown.push_back(i);
    }
    return shown;
  }
  std::string Playing() const { return machine.player.file; }
  std::vector<std::string> Queued() {
    std::vector<std::string> paths;
    for (int i = 0; i < house().queue.count(); ++i) paths.push_back(house().queue.path(i));
    return paths;
  }
  // Records of a history.
  size_t Plays(const char* history = kUserHistory) const {
    return folder.Read(history).size() / HistoryRecord::kSize;
  }

  // Polls of the keys and the spool.
  void Poll(int times = 1) {
    for (int i = 0; i < times; ++i) {
      machine.clock.Add(10);
      machine.timers.FireDue();
    }
  }
  // Lets time pass in steps of 100 ms; the player plays along.
  void Advance(double seconds) {
    for (int i = 0; i < static_cast<int>(seconds * 10 + 0.5); ++i) {
      machine.clock.Add(100);
      machine.player.Add(0.1);
      machine.timers.FireDue();
    }
  }

  TempFolder folder;
  TestMachine machine;
  Settings settings;
  std::unique_ptr<Jukebox> jukebox;
  StartUpResult result = StartUpResult::kNoCatalogue;
};

// The same with one album in it, of three tracks.
class DayTest : public JukeboxTest {
 protected:
  DayTest() {
    WriteAlbums({{"Day", "Ada"}});
    for (const char* title : {"Dawn", "Noon", "Dusk"}) {
      const std::string number = std::to_string(tracks.size() + 1);
      tracks.push_back(WriteTrack("Day", number + " " + title + ".wav", "Ada", title));
    }
  }
  // By the guest's road: the cover, the row, its play options.
  void OpenOptions(size_t row) {
    Click(form().album.covers[0].cover);
    Click(form().track_list.rows[row].title);
  }
  std::vector<std::string> tracks;
};

}  // namespace sonotik

#endif  // SONOTIK_TESTS_SUPPORT_JUKEBOX_TEST_H_
