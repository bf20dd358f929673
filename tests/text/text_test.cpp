#include "text/text.h"

#include <gtest/gtest.h>

#include "text/code_page.h"
#include "text/dates.h"
#include "text/numbers.h"

namespace sonotik {
namespace {

TEST(Text, OnlyBlanksAreTrimmedAndOnlyAsciiLettersHaveACaseSoThatUtf8StaysWhole) {
  EXPECT_EQ(TrimBlanks("  \t a\r\n "), "\t a\r\n");
  EXPECT_EQ(TrimBlanks("   "), "");
  EXPECT_EQ(UpperCase("caf\xC3\xA9 z"), "CAF\xC3\xA9 Z");
  EXPECT_TRUE(ContainsIgnoringCase("\\Music\\A.mp3", "music"));
  EXPECT_TRUE(ContainsIgnoringCase("anything", ""));
  EXPECT_FALSE(ContainsIgnoringCase("abc", "abcd"));
  EXPECT_EQ(DoubleAmpersands("Rock & Roll && more"), "Rock && Roll &&&& more");
}

TEST(Numbers, ABlankStandsForThePlusSign) {
  EXPECT_EQ(NumberCaption(1), " 1");
  EXPECT_EQ(NumberCaption(-1), "-1");
  EXPECT_EQ(NumberField(0L), " 0 ");
  EXPECT_EQ(NumberField(-12L), "-12 ");
  EXPECT_EQ(NumberField(2.5), " 2.5 ");
  EXPECT_EQ(NumberField(5.0), " 5 ");
  EXPECT_EQ(NumberField(100000.0), " 100000 ");
  EXPECT_EQ(NumberField(-0.1), "-0.1 ");
}

TEST(Numbers, AreReadWholeOrNotAtAll) {
  const struct {
    const char* text;
    std::optional<double> number;
  } cases[] = {{" 12 ", 12}, {"-1 ", -1},   {"", 0},      {"   ", 0},   {"+3", 3},
               {"1.5", 1.5}, {"1e3", 1000}, {"12x", {}},  {"x", {}},    {"1,5", {}},
               {"inf", {}},  {"nan", {}},   {"0x10", {}}, {"1e999", {}}};
  for (const auto& c : cases) EXPECT_EQ(ParseNumber(c.text), c.number) << c.text;
  EXPECT_EQ(LeadingNumber(" 3 Songs"), 3);
  EXPECT_EQ(LeadingNumber("Songs"), 0);
  EXPECT_EQ(NumberOrZero("12 s"), 0);
}

TEST(Numbers, TiesGoToTheEvenNumberAndDivisionGoesDown) {
  EXPECT_EQ(RoundHalfEven(2.5) + 10 * RoundHalfEven(3.5), 42);
  for (const auto& [number, twelfth] : {std::pair{-12, -1}, {-1, -1}, {11, 0}, {12, 1}}) {
    EXPECT_EQ(FloorDiv(number, 12), twelfth) << number;
  }
}

TEST(Dates, AreReadWithAndWithoutLeadingZeros) {
  EXPECT_EQ(DateText({2024, 3, 7}), "03/07/2024");
  EXPECT_EQ(ParseDate("03/07/2024"), (Date{2024, 3, 7}));
  EXPECT_EQ(ParseDate(" 3/7/2024 "), (Date{2024, 3, 7}));
  for (const char* none : {"", "13/01/2024", "02/30/2024", "1/2", "1/2/3/4", "-1/2/2024", "a/b/c",
                           "007/01/2024", "2024-01-01"}) {
    EXPECT_EQ(ParseDate(none), std::nullopt) << none;
  }
  EXPECT_EQ(DaysBetween({2024, 2, 28}, {2024, 3, 1}), 2);
  EXPECT_EQ(DaysBetween({2024, 3, 1}, {2024, 2, 28}), -2);
}

TEST(CodePages, Utf8BecomesTheCodePageAndWhatIsNoneStaysAsItIs) {
  const struct {
    const char *text, *codes;
  } cases[] = {
      {"plain \x7F", "plain \x7F"},
      {"\xC3\xA9\xC3\xBF\xC2\xA0", "\xE9\xFF\xA0"},
      {"\xE2\x82\xAC\xE2\x84\xA2\xC5\xB8", "\x80\x99\x9F"},
      {"\xC4\x80 \xE6\x97\xA5 \xF0\x9F\x8E\xB5 \xC2\x81", "? ? ? ?"},
      // Neither cut nor overlong nor half a pair nor beyond the last character.
      {"\xE9", "\xE9"},
      {"a\xC3\xA9\xE2\x82", "a\xC3\xA9\xE2\x82"},
      {"\xC0\x80", "\xC0\x80"},
      {"\xED\xA0\x80", "\xED\xA0\x80"},
      {"\xF4\x90\x80\x80", "\xF4\x90\x80\x80"},
      {"\x93quoted\x94", "\x93quoted\x94"},
  };
  for (const auto& each : cases) EXPECT_EQ(InCodePage(each.text), each.codes) << each.text;
}

}  // namespace
}  // namespace sonotik
