#include "tools/config/sidecar.h"

#include <gtest/gtest.h>

#include <tuple>

#include "files/line_format.h"
#include "text/text.h"

namespace sonotik {
namespace {

TrackInfo Sample() {
  return {"",
          "Ada & \"Bob\", <c>",
          "D\u00E9j\u00E0\r\nvu",
          "Dawn",
          "Cy",
          "3/12",
          "1999",
          "Pop",
          "fine",
          "3:05"};
}

TEST(Sidecar, IsReadByLineNumbersAndCuts) {
  const std::string text = SidecarText(Sample());
  const std::tuple<int, size_t, size_t, const char*> cases[] = {{2, 8, 9, "Ada & \"Bob\", <c>"},
                                                                {3, 7, 8, "D\u00E9j\u00E0  vu"},
                                                                {4, 7, 8, "Dawn"},
                                                                {5, 6, 7, "Cy"},
                                                                {6, 7, 8, "3/12"},
                                                                {7, 6, 7, "1999"},
                                                                {8, 7, 8, "Pop"},
                                                                {9, 14, 15, ""},
                                                                {10, 13, 14, "fine"},
                                                                {12, 10, 11, "3:05"}};
  for (const auto& [line, front, back, value] : cases) {
    LineReader lines(text);
    for (int i = 1; i < line; ++i) lines.Next();
    const std::string whole = lines.Next();
    const std::string_view element = TrimBlanks(whole);
    EXPECT_EQ(element.substr(front, element.size() - back - front), value) << "line " << line;
  }
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 13);
  EXPECT_EQ(text.find("\r\n"), text.find('\n') - 1);
}

TEST(Sidecar, GivesItsNamesBackWhateverItsElementsAreCalledAndNothingIfItIsBroken) {
  const std::string whole =
      ReplaceAll(ReplaceAll(SidecarText(Sample()), "artist", "STRING"), "<title>", "  <abcde>");
  TrackInfo info;
  ASSERT_TRUE(ReadSidecarText(whole, info));
  EXPECT_EQ(info.artist + info.title + info.genre, "Ada & \"Bob\", <c>D\u00E9j\u00E0  vuPop");

  const std::string broken[] = {"", std::string(13, '\n'), whole.substr(0, whole.size() / 2),
                                whole.substr(0, whole.rfind("</tag>")),
                                ReplaceAll(whole, "<year>1999</year>", "<year></year")};
  for (const std::string& text : broken) {
    TrackInfo nothing;
    EXPECT_FALSE(ReadSidecarText(text, nothing)) << text;
    EXPECT_EQ(nothing.artist, "");
  }
}

}  // namespace
}  // namespace sonotik
