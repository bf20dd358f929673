#include "catalogue/history.h"

#include <gtest/gtest.h>

#include "files/files.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

TEST(MostPlayed, CountsAsTextAndSortsAsText) {
  MostPlayed list;
  const TagFields names;
  for (int i = 0; i < 9; ++i) list.Count("nine", names);
  EXPECT_EQ(list.rows()[0].played, "09");
  for (int i = 0; i < 11; ++i) list.Count("eleven", names);
  for (int i = 0; i < 10; ++i) list.Count("ten", names);
  for (int i = 0; i < 100; ++i) list.Count("hundred", names);
  std::vector<std::string> order;
  for (const auto& row : list.rows()) order.push_back(row.path);
  EXPECT_EQ(order, (std::vector<std::string>{"eleven", "hundred", "ten", "nine"}));
}

TEST(History, IsTheSameListAfterARestart) {
  const TempFolder folder;
  const std::string path = folder.path();
  const TestClock clock;
  TagFields fields;
  History history(path, clock, fields);
  std::mt19937 random(3);
  for (int i = 0; i < 300; ++i) {
    const std::string name = "song " + std::to_string(random() % 20);
    fields.txtTitle = name;
    history.AddToHistory("\\m\\" + name + ".wma.tag", kUserHistory);
  }
  EXPECT_EQ(FileLength(path + "\\User_history.dat"), 300 * 1070);
  History again(path, clock, fields);
  again.LoadMostPlayed();
  ASSERT_EQ(again.most_played().rows().size(), history.most_played().rows().size());
  for (size_t i = 0; i < again.most_played().rows().size(); ++i) {
    const auto& row = again.most_played().rows()[i];
    EXPECT_EQ(row.path, history.most_played().rows()[i].path);
    EXPECT_EQ(row.played, history.most_played().rows()[i].played);
    EXPECT_EQ(row.path, "\\m\\" + row.track + ".wma");
  }
}

TEST(History, RecordsHoldNamesDateAndTimeInTheirPlaces) {
  const TempFolder folder;
  const std::string path = folder.path();
  const TestClock clock;
  TagFields fields;
  fields.txtArtist = std::string(300, 'a');
  fields.txtTitle = "Dawn";
  History(path, clock, fields).AddToHistory("\\m\\x.mp3", kRandomHistory);
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
