#include "tools/config/sidecar.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"
#include "tags/tag_reader.h"
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

TEST(Sidecar, IsReadByTheJukebox) {
  const TempFolder folder;
  folder.Write("a.mpg", "");
  folder.Write("a.mpg.tag", SidecarText(Sample()));
  TagFields f;
  TagReader(f, [] { return false; }).ReadTagSidecar(folder.path() + "\\a.mpg");
  EXPECT_EQ(f.txtArtist + "|" + f.txtTitle + "|" + f.txtAlbum + "|" + f.txtComposer + "|" +
                f.txtTrack + "|" + f.txtYear + "|" + f.txtGenre + "|" + f.txtComments + "|" +
                f.txtmp3time,
            "Ada & \"Bob\", <c>|D\u00E9j\u00E0  vu|Dawn|Cy|3/12|1999|Pop|fine|3:05");
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
