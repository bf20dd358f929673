// The charts of the months, as a guest looks through them.
#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class DecadesTest : public JukeboxTest {
 protected:
  void AddTrack(const std::string& path, const std::string& artist, const std::string& track) {
    records += TrackBytes(path, track, artist);
    folder.Write("Records.rec", records);
  }
  // Ten lines, those given first.
  static std::string Chart(std::vector<std::string> lines, const std::string& filler) {
    lines.resize(10, filler);
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    return text;
  }
  static std::string Plain(std::vector<std::string> lines) {
    return Chart(std::move(lines), "\"nobody at all\",\"nothing\",\"\"");
  }
  void Open() { PressMenu(MenuButton::kDecades); }
  void Step(DecadesStep step) { Click(form().decades.steps[static_cast<size_t>(step)]); }
  ChartRow& Row(size_t row) { return form().decades.rows[row]; }
  std::string Path(int row) { return house().charts.PathOfRow(row); }

  std::string records;
};

constexpr char kMonth[] = "history/2024/01.txt";

TEST_F(DecadesTest, MonthsWrapWithinTheirYearAndYearsEndAtBothEnds) {
  Start();
  Open();
  DecadesScreen& screen = form().decades;
  EXPECT_EQ(screen.month_buttons[1].caption(), "Feburary");
  using enum DecadesStep;
  const auto step = [&](DecadesStep which) { return &screen.steps[static_cast<size_t>(which)]; };
  const std::pair<const Control*, const char*> presses[] = {
      {step(kMonthBack), "DECEMBER 2024"},        {step(kYearOn), "DECEMBER 2024"},
      {step(kMonthOn), "JANUARY 2024"},           {step(kYearBack), "JANUARY 2023"},
      {&screen.year_caption, "JANUARY 2023"},     {&screen.year_buttons[0], "JANUARY 1953"},
      {step(kYearBack), "JANUARY 1953"},          {&screen.month_caption, "JANUARY 1953"},
      {&screen.month_buttons[1], "FEBRUARY 1953"}};
  for (const auto& [control, headings] : presses) {
    Click(*control);
    EXPECT_EQ(screen.month_caption.caption() + " " + screen.year_caption.caption(), headings);
    EXPECT_EQ(screen.year_picker.visible(), control == &screen.year_caption);
    EXPECT_EQ(screen.month_picker.visible(), control == &screen.month_caption);
  }
  EXPECT_EQ(house().decades.chart_path(), folder.path() + "\\history\\1953\\02.txt");
  EXPECT_EQ(Row(9).artist.caption(), "CHART NOT FOUND");
  EXPECT_EQ(Row(9).track.caption(), "CHART NOT FOUND");
}

TEST_F(DecadesTest, ALineIsJoinedWithTheFirstRecordThatHoldsTheStartsOfItsNames) {
  AddTrack("\\m\\else.mp3", "Bob", "Dawn Chorus");
  AddTrack("\\m\\1.mp3  ", "the ada lovelace band", "at dawn chorale");
  AddTrack("\\m\\2.mp3", "Ada Lovelace", "Dawn Chorus");
  AddTrack("\\m\\3.mp3", "Simon & Ada", "R&B");
  AddTrack("\\m\\4.mp3", "Nobody", "Nothing");
  AddTrack("\\m\\last.mp3", "Zoe", "End");
  folder.Write(kMonth,
               Plain({"\" ADA LOvejoy\",\"Dawn Choir, the\",\"\"", "Zoe,End,",
                      "The Ada Band,\"at dawn ch\",", "\"Simon & Ada\",R&B,", "Zo,en,x.gif"}));
  Start();
  // "NOBODY " with the blank is in no name that ends there.
  const char* const paths[] = {"\\m\\1.mp3", "\\m\\last.mp3", "\\m\\1.mp3",
                               "\\m\\3.mp3", "\\m\\last.mp3", ""};
  for (int row = 0; row < 6; ++row) EXPECT_EQ(Path(row), paths[row]) << row;
  Open();
  EXPECT_EQ(Row(3).artist.caption(), "( 4) Simon && Ada");
  EXPECT_EQ(Row(3).track.caption(), "R&&B");
  EXPECT_EQ(Row(9).artist.caption(), "( 10) nobody at all");
  EXPECT_TRUE(Row(1).play_now.showing() && Row(1).add_queue.showing());
  EXPECT_FALSE(Row(5).play_now.visible());
  EXPECT_EQ(Row(5).cover.picture(), house().covers.NotFoundPicture());
  // The songs that are new have no file to look in.
  house().cursor.media_kind = kNewSongs;
  house().settings.add_to_queue = false;
  Step(DecadesStep::kYearOn);
  EXPECT_EQ(Path(1), "");
  house().cursor.media_kind = kAudio;
  Step(DecadesStep::kYearOn);
  EXPECT_TRUE(Row(1).play_now.showing());
  EXPECT_FALSE(Row(1).add_queue.visible());
}

TEST_F(DecadesTest, AResolvedChartNeedsNoScan) {
  AddTrack("\\m\\1.mp3", "Ada", "Dawn");
  folder.Write(kMonth, Plain({"Ada,Dawn,"}));
  folder.Write("history/2024/01.pre",
               Chart({"Ada,Dusk,,\"\\m\\2.mp3\"", "Bob,Noon,,"}, "a,b,c,\"\\x\\y.mp3\""));
  int paints = 0;
  machine.events.on_paint = [&] { ++paints; };
  Start();
  Open();
  EXPECT_EQ(Row(0).track.caption(), "Dusk");
  EXPECT_EQ(Path(0), "\\m\\2.mp3");
  EXPECT_TRUE(Row(0).play_now.visible());
  EXPECT_FALSE(Row(1).play_now.visible());
  EXPECT_EQ(Path(9), "\\x\\y.mp3");
  EXPECT_EQ(paints, 0);
}

TEST_F(DecadesTest, AChartOfAnyLengthGivesItsWholeLinesAndNothingOfAnother) {
  AddTrack("\\m\\1.mp3", "Ada", "Dawn");
  folder.Write(kMonth, Chart({}, "Ada,Dawn,"));
  const std::string whole = Chart({"Ada,\"Dusk, late\",\"\""}, "Ada,Dusk,x");
  Start();
  Open();
  folder.Write("history/2024/02.txt", "");
  for (size_t length = 0; length < whole.size(); ++length) {
    folder.Write("history/2024/02.txt", whole.substr(0, length));
    Step(DecadesStep::kMonthOn);
    for (size_t row = 0; row < 10; ++row) {
      EXPECT_NE(Row(row).track.caption(), "Dawn");
      EXPECT_FALSE(Row(row).play_now.visible());
      EXPECT_EQ(Row(row).artist.caption().empty(), Row(row).track.caption().empty());
    }
    EXPECT_TRUE(form().decades.panel.visible() && !form().searching.panel.visible());
    Step(DecadesStep::kMonthBack);
    ASSERT_TRUE(Row(9).play_now.visible());
  }
  // Fields are what is read: a line with one takes two from the line behind it.
  folder.Write(kMonth, "Ada\r\nDawn\r\n\r\n" + Chart({"Zoe"}, "\"Ada, \"x,Dawn,"));
  Step(DecadesStep::kYearOn);
  EXPECT_EQ(Row(0).track.caption(), "Dawn");
  EXPECT_EQ(Row(1).artist.caption(), "( 2) Zoe");
  EXPECT_EQ(Row(1).track.caption(), "Ada, ");
}

TEST_F(DecadesTest, RowsPlayAndQueueForMoneyWhatTheyHave) {
  settings.allow_duplicates_in_queue = false;
  const std::string dawn = WriteTrack("Day", "1.wav", "Ada", "Dawn");
  const std::string noon = WriteTrack("Day", "2.wav", "Ada", "Noon");
  AddTrack(dawn, "Ada", "Dawn");
  AddTrack(noon, "Ada", "Noon");
  folder.Write(kMonth, Plain({"Ada,Dawn,", "Ada,Noon,"}));
  StartPaid(9);
  Open();
  Click(Row(0).play_now);
  EXPECT_EQ(machine.player.file, dawn);
  EXPECT_EQ(house().credits.count(), 7);
  for (int i = 0; i < 2; ++i) Click(Row(1).add_queue);
  EXPECT_EQ(house().queue.count(), 1);
  EXPECT_EQ(house().credits.count(), 5);
  house().settings.allow_duplicates_in_queue = true;
  Click(Row(1).add_queue);
  EXPECT_EQ(house().queue.count(), 2);
  EXPECT_TRUE(form().decades.panel.showing());
  // The table is the searches' as well: a row has what stands in it now, and nothing is free of
  // charge to lose.
  house().search_results.paths[0] = noon + "   ";
  house().search_results.paths[1].clear();
  const int credits = house().credits.count();
  Click(Row(1).play_now);
  Click(Row(1).add_queue);
  EXPECT_EQ(house().credits.count(), credits);
  Click(Row(0).play_now);
  EXPECT_EQ(machine.player.file, noon);
}

}  // namespace
}  // namespace sonotik
