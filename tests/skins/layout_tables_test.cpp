#include "skins/layout_tables.h"

#include <gtest/gtest.h>

#include <map>

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

TEST(LayoutTables, HaveEachFileInItsOrderWithItsNumberOfFields) {
  const auto files = LayoutFiles();
  ASSERT_EQ(files.size(), std::size(kLengths));
  for (size_t i = 0; i < files.size(); ++i) {
    EXPECT_STREQ(files[i].name, kLengths[i].name);
    EXPECT_EQ(FieldCount(files[i], kLengths[i].head), kLengths[i].fields) << files[i].name;
  }
  EXPECT_EQ(FieldCount(SkinFile()), 38);
}

TEST(LayoutTables, GrowByWhatTheHeadSays) {
  const auto count = [](const char* name, const char* head) {
    return FieldCount(*FindLayoutFile(name), head);
  };
  EXPECT_EQ(count("menu.ini", "1"), 120);
  EXPECT_EQ(count("menu.ini", "-2"), 120);
  EXPECT_EQ(count("player.ini", "0"), 66);
  EXPECT_EQ(count("player.ini", "Version 2"), 70);
  EXPECT_EQ(count("player.ini", "Version 2.1 by hand"), 70);
  EXPECT_EQ(count("player.ini", "version 2"), 66);
}

// The place of a field in its file, for some of those where a slip would not show in the sum.
TEST(LayoutTables, PutEachFieldAtItsNumber) {
  struct {
    const char* file;
    int number;
    const char* target;
    int index;
    FieldKind kind;
    const char* head = "";
  } const cases[] = {
      {"main.ini", 30, "player.cover", 0, FieldKind::kTop},
      {"main.ini", 34, "screens", 0, FieldKind::kTop},
      {"main.ini", 132, "player.clock", 0, FieldKind::kFontSize},
      {"menu.ini", 2, "menu.bar", 0, FieldKind::kHeight, "1"},
      {"menu.ini", 118, "menu.button", 8, FieldKind::kPicture, "0"},
      {"player.ini", 67, "player.volume", 0, FieldKind::kHeight, "Version 2"},
      {"nav.ini", 70, "album.pageCaption", 0, FieldKind::kBackColor},
      {"nav.ini", 117, "album.tab", 4, FieldKind::kIgnored},
      {"decades_year.ini", 744, "decades.year", 56, FieldKind::kShape},
      {"queue.ini", 162, "queue.number", 1, FieldKind::kIgnored},
      {"tracklist.ini", 15, "trackList.stripBack", 0, FieldKind::kCaption},
      {"tracklist.ini", 470, "trackList.command", 5, FieldKind::kIgnored},
      {"options.ini", 2, "options.section", 0, FieldKind::kIgnored},
      {"play_options.ini", 147, "screen", 13, FieldKind::kPicture},
      {"pin_screen.ini", 148, "pin.panel", 0, FieldKind::kTop},
  };
  for (const auto& c : cases) {
    const auto fields = FieldsOf(*FindLayoutFile(c.file), c.head);
    const LayoutField& field = fields.at(static_cast<size_t>(c.number) - 1);
    EXPECT_EQ(field.number, c.number);
    EXPECT_STREQ(field.block->target, c.target) << c.file << ' ' << c.number;
    EXPECT_EQ(field.index, c.index) << c.file << ' ' << c.number;
    EXPECT_EQ(field.kind, c.kind) << c.file << ' ' << c.number;
  }
}

}  // namespace
}  // namespace sonotik
