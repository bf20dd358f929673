// The files of the folder, cut at each of their bytes or lines and with anything in them.
#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

using namespace std::string_view_literals;

class CutFilesTest : public JukeboxTest {
 protected:
  // A start with these bytes in the file, and its first tick.
  void StartWith(const std::string& name, const std::string& bytes) {
    folder.Write(name, bytes);
    Start();
    ASSERT_EQ(result, StartUpResult::kRunning) << name << ": " << bytes;
    Advance(1);
    EXPECT_TRUE(house().state_timer.enabled() && house().timer1.enabled()) << name << ": " << bytes;
    EXPECT_LE(house().boundary.failures(), 1) << name << ": " << bytes;
  }
  // With each beginning of the file.
  void CutAtEachByte(const std::string& name, const std::string& whole, size_t step,
                     const std::function<void(size_t length)>& check) {
    for (size_t length = 0; length <= whole.size(); length += step) {
      StartWith(name, whole.substr(0, length));
      check(length);
    }
  }
};

TEST_F(CutFilesTest, LinesMayBeMissingOrHoldAnything) {
  const std::pair<const char*, int> files[] = {
      {"permissions.ini", 10}, {"keyboard.dat", 35}, {"cost.dat", 9},         {"queue.dat", 1},
      {"random.dat", 1},       {"songfacts.dat", 1}, {"User_history.dat", 1}, {"Records.cvr", 1}};
  for (const auto& [name, lines] : files) {
    for (const std::string_view bad : {""sv, "word\r\n"sv, " 99999999999 \r\n"sv, "-7 \r\n"sv,
                                       " 200 \r\n"sv, "\""sv, "\r\n"sv, "\0\0\0"sv}) {
      std::string text;
      for (int good = 0; good < lines; ++good, text += " 1 \r\n") {
        // Cut at every line; what is no number stands first, second and last.
        if (!bad.empty() && good > 1 && good < lines - 1) continue;
        StartWith(name, text + std::string(bad));
        // No list shows an item that it doesn't have.
        jukebox->menu.Open(MenuButton::kOptions);
        for (const lvButtons_H& section : form().options.sections) Click(section);
      }
    }
    folder.Remove(name);
  }
}

TEST_F(CutFilesTest, ASignOrAStationThatIsNotWholeIsNone) {
  const std::string sign = "Betabrite config\r\n9600,N,8,1\r\n 1 \r\n 1 \r\n 1 \r\n";
  CutAtEachByte("betabrite.ini", sign, 1, [&](size_t length) {
    EXPECT_EQ(house().sign.enabled, length >= sign.size() - 3) << length;
  });
  folder.Remove("betabrite.ini");
  const std::string station = "Terminal \\ Master config\r\n\\share\\\r\nTrue\r\nTrue\r\n";
  CutAtEachByte("terminal.ini", station, 1, [&](size_t length) {
    const bool whole = length >= station.size() - 2;
    EXPECT_EQ(house().network.terminal(), whole) << length;
    EXPECT_FALSE(house().network.master()) << length;
    EXPECT_EQ(house().network.shared_folder(), whole ? "\\share\\" : "") << length;
  });
}

TEST_F(CutFilesTest, TheGenreListsHoldNoNameThatWasNotThere) {
  const std::set<std::string> names = {"Blues", "Jazz", "Folk"};
  CutAtEachByte("random.dat", " 2 \r\nBlues\r\nJazz\r\n\r\n 1 \r\nFolk\r\n\r\n", 1, [&](size_t) {
    for (const ItemList* list : {&house().lists.available_genres, &house().lists.selected_genres}) {
      EXPECT_LE(list->size(), 2U);
      for (const std::string& name : *list) {
        EXPECT_TRUE(std::any_of(names.begin(), names.end(),
                                [&](const std::string& n) { return n.starts_with(name); }));
      }
    }
  });
}

TEST_F(CutFilesTest, OnlyWholeFactsAreTold) {
  const std::string facts = FactBytes("Ada", "", {}) + FactBytes("Bob", "", {});
  // Each byte of a record is one as the other, so a prime step meets them all.
  CutAtEachByte("songfacts.dat", facts, 31, [&](size_t length) {
    size_t rows = 0;
    for (const SongFacts& row : house().facts.rows()) rows += !row.artist.empty();
    EXPECT_EQ(rows, length / 1395) << length;
  });
}

TEST_F(CutFilesTest, ADayChangesOnlyWhatItsFileStillSays) {
  const Date today = machine.clock.Now().date;
  std::string name = DateText(today);
  std::replace(name.begin(), name.end(), '/', '-');
  CutAtEachByte("CALENDER/" + name + ".DAT",
                "Attract Mode Path\r\n\\today\r\nHoliday Skin\r\n\r\nLED Sign Path\r\n\r\n"
                "Jingles Path\r\n\r\nDatabase Path\r\n\r\n",
                1, [&](size_t length) {
                  const std::string path = house().settings.attract_path;
                  EXPECT_TRUE(path == folder.path() || std::string("\\today").starts_with(path))
                      << length << " " << path;
                  EXPECT_EQ(house().settings.current_skin, "Plain");
                });
}

}  // namespace
}  // namespace sonotik
