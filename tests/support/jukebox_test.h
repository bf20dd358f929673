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

inline std::string AlbumBytes(const std::string& path, const std::string& artist,
                              const std::string& album, const std::string& date) {
  AlbumRecord record;
  const auto put = [&](RecordField field, const std::string& text) {
    PutField(record.bytes, field.offset, field.width, text);
  };
  put(AlbumRecord::kPath, path);
  put(AlbumRecord::kArtist, artist);
  put(AlbumRecord::kAlbum, album);
  put(AlbumRecord::kDate, date);
  return {record.bytes.data(), record.bytes.size()};
}

inline std::string TrackBytes(const std::string& path, const std::string& track,
                              const std::string& artist = "", const std::string& album = "") {
  TrackRecord record;
  const auto put = [&](RecordField field, const std::string& text) {
    PutField(record.bytes, field.offset, field.width, text);
  };
  put(TrackRecord::kPath, path);
  put(TrackRecord::kTrack, track);
  put(TrackRecord::kArtist, artist);
  put(TrackRecord::kAlbum, album);
  return {record.bytes.data(), record.bytes.size()};
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

  Jukebox& Start() {
    jukebox = std::make_unique<Jukebox>(folder.path(), machine.machine);
    result = jukebox->Start();
    return *jukebox;
  }
  Assembly& house() { return jukebox->house; }
  Form1& form() { return jukebox->house.form1; }

  // The middle of a control, as a finger would.
  void Click(const Control& control) {
    ASSERT_TRUE(control.showing());
    const Rect place = control.AbsolutePlace();
    form().form.Click({place.left + place.width / 2, place.top + place.height / 2});
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

}  // namespace sonotik

#endif  // SONOTIK_TESTS_SUPPORT_JUKEBOX_TEST_H_
