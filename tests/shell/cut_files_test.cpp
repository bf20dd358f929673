// The files of the jukebox alone in the room, cut at each of their bytes.
#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class CutFilesTest : public JukeboxTest {
 protected:
  // A start with each beginning of the file; the check sees the jukebox behind its first tick.
  void CutAtEachByte(const std::string& name, const std::string& whole, size_t step,
                     const std::function<void(size_t length)>& check) {
    for (size_t length = 0; length <= whole.size(); length += step) {
      folder.Write(name, whole.substr(0, length));
      Start();
      ASSERT_EQ(result, StartUpResult::kRunning) << length;
      Advance(1);
      EXPECT_TRUE(house().state_timer.enabled()) << length;
      EXPECT_LE(house().boundary.failures(), 1) << length;
      check(length);
    }
  }
};

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
