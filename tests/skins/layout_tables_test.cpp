#include "skins/layout_tables.h"

#include <gtest/gtest.h>

namespace sonotik {
namespace {

struct Length {
  const char* name;
  int fields;
  const char* head = "";
};

// The order is that of reading, and the numbers are what skins out there were written by.
constexpr Length kLengths[] = {{"main.ini", 132},         {"menu.ini", 118, "0"},
                               {"player.ini", 66, "1"},   {"nav.ini", 142},
                               {"tab.ini", 24},           {"font.ini", 15},
                               {"back.ini", 12},          {"decades2.ini", 351},
                               {"decades_year.ini", 823}, {"decades_month.ini", 170},
                               {"search.ini", 577},       {"search_choice.ini", 44},
                               {"now_playing.ini", 99},   {"tracklist.ini", 495},
                               {"top20.ini", 558},        {"history.ini", 213},
                               {"label.ini", 6},          {"search_res.ini", 452},
                               {"jumptoletter.ini", 369}, {"resolution.ini", 5},
                               {"options.ini", 208},      {"genre.ini", 361},
                               {"genre_bar.ini", 134},    {"queue.ini", 447},
                               {"play_options.ini", 151}, {"jumptoletter2.ini", 351},
                               {"spin.ini", 13},          {"search_tab.ini", 39},
                               {"pin_screen.ini", 148}};
constexpr Length kOtherHeads[] = {
    {"menu.ini", 120, "1"},          {"menu.ini", 120, "-2"},
    {"player.ini", 66, "0"},         {"player.ini", 70, "Version 2"},
    {"player.ini", 66, "version 2"}, {"player.ini", 70, "Version 2.1 by hand"}};

// What stands at each number is written down in docs/skin-format.md, which is held to the tables.
TEST(LayoutTables, HaveEachFileInItsOrderWithItsNumberOfFields) {
  const auto files = LayoutFiles();
  ASSERT_EQ(files.size(), std::size(kLengths));
  for (size_t i = 0; i < files.size(); ++i) {
    EXPECT_STREQ(files[i].name, kLengths[i].name);
    EXPECT_EQ(FieldCount(files[i], kLengths[i].head), kLengths[i].fields) << files[i].name;
  }
  for (const auto& [name, fields, head] : kOtherHeads) {
    EXPECT_EQ(FieldCount(*FindLayoutFile(name), head), fields) << name << ' ' << head;
  }
  EXPECT_EQ(FieldCount(SkinFile()), 38);
}

}  // namespace
}  // namespace sonotik
