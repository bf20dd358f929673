#include "catalogue/history.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "files/files.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

std::vector<std::string> Lines(const MostPlayed& list) {
  std::vector<std::string> lines;
  for (int i = 0; i < list.count(); ++i) lines.push_back(list.row(i).played + list.row(i).path);
  return lines;
}

TEST(MostPlayed, StandsAsIfSortedStablyAfterEachPlay) {
  const TagFields names;
  std::mt19937 random(7);
  MostPlayed one_by_one;
  MostPlayed at_once;
  std::vector<std::pair<std::string, int>> plain;
  const auto text = [](int played) { return (played < 10 ? "0" : "") + std::to_string(played); };
  for (int i = 0; i < 6000; ++i) {
    // Some are played a hundred times and more, so that rows sink as well.
    const std::string path = std::to_string(std::min(random() % 80, random() % 80));
    one_by_one.Count(path, names);
    at_once.CountUnsorted(path, names);
    const auto row = std::find_if(plain.begin(), plain.end(),
                                  [&](const auto& item) { return item.first == path; });
    if (row == plain.end()) {
      plain.emplace_back(path, 1);
    } else {
      ++row->second;
    }
    std::stable_sort(plain.begin(), plain.end(),
                     [&](const auto& a, const auto& b) { return text(a.second) > text(b.second); });
  }
  at_once.Sort();
  std::vector<std::string> lines;
  for (const auto& [path, played] : plain) lines.push_back(text(played) + path);
  EXPECT_EQ(Lines(one_by_one), lines);
  EXPECT_EQ(Lines(at_once), lines);
}

class HistoryTest : public testing::Test {
 protected:
  History Open() { return History(path, clock, catalogue, fields); }

  const TempFolder folder;
  const std::string path = folder.path();
  const TestClock clock;
  Catalogue catalogue{path};
  TagFields fields;
};

TEST_F(HistoryTest, IsTheSameListAfterARestart) {
  History history = Open();
  std::mt19937 random(3);
  for (int i = 0; i < 300; ++i) {
    const std::string name = "song " + std::to_string(random() % 20);
    fields.txtTitle = name;
    history.AddToHistory("\\m\\" + name + ".wma.tag", kUserHistory);
  }
  // What the machine chose is counted, but not kept.
  history.AddToHistory("\\m\\jingle.mp3", kRandomHistory);
  EXPECT_EQ(FileLength(path + "\\User_history.dat"), 300 * 1070);
  History again = Open();
  again.LoadMostPlayed();
  std::vector<std::string> lines = Lines(history.most_played());
  EXPECT_EQ(std::erase(lines, "01\\m\\jingle.mp3"), 1U);
  EXPECT_EQ(Lines(again.most_played()), lines);
  for (int i = 0; i < again.most_played().count(); ++i) {
    const auto& row = again.most_played().row(i);
    EXPECT_EQ(row.path, "\\m\\" + row.track + ".wma");
  }
}

TEST_F(HistoryTest, AnyCutOfTheLastRecordsCostsOnlyWhatIsCut) {
  History history = Open();
  for (const char* name : {"a", "b", "c"}) history.AddToHistory(name, kUserHistory);
  const std::string bytes = folder.Read(kUserHistory);
  for (size_t length = 1070; length <= bytes.size(); ++length) {
    folder.Write(kUserHistory, bytes.substr(0, length));
    History cut = Open();
    cut.LoadMostPlayed();
    ASSERT_EQ(cut.most_played().count(), static_cast<int>(length / 1070));
  }
}

TEST_F(HistoryTest, RecordsHoldNamesDateAndTimeInTheirPlaces) {
  fields.txtArtist = std::string(300, 'a');
  fields.txtTitle = "Dawn";
  Open().AddToHistory("\\m\\x.mp3", kRandomHistory);
  const std::string bytes = folder.Read("Random_history.dat");
  ASSERT_EQ(bytes.size(), 1070U);
  EXPECT_EQ(bytes.substr(0, 255), std::string(255, 'a'));
  EXPECT_EQ(bytes.substr(255, 6), "Dawn  ");
  EXPECT_EQ(bytes.substr(765, 10), "\\m\\x.mp3  ");
  EXPECT_EQ(bytes.substr(1020, 11), "01/15/2024 ");
  EXPECT_EQ(bytes.substr(1045, 9), "12:00:00 ");
}

}  // namespace
}  // namespace sonotik
