#include <gtest/gtest.h>

#include <QGuiApplication>
#include <set>

#include "forms/Form1.h"
#include "skins/cover_layout.h"
#include "support/temp_folder.h"
#include "tools/skins/screens.h"

namespace sonotik::skins {
namespace {

class DeliveredSkins : public testing::TestWithParam<const Design*> {
 protected:
  DeliveredSkins() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "test";
    static char* arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments);
    Make(*GetParam(), QString::fromStdString(folder.native().string()));
    skin = folder.path() + "\\" + GetParam()->name;
  }

  TempFolder folder;
  std::string skin;
};

TEST_P(DeliveredSkins, KeepTheCoversOfAllPagesInTheirAreaAndApart) {
  const Design& design = *GetParam();
  const Rect area = CoverArea(design);
  std::set<int> counts;
  for (const CoverPage& page : design.pages) {
    Form1 form;
    CoverLayout layout;
    LoadCoverLayout(skin + "\\" + page.name + ".cov", layout, form.album);
    counts.insert(layout.covers_per_page);
    for (int i = 0; i < layout.covers_per_page; ++i) {
      const CoverPosition& position = form.album.covers[static_cast<size_t>(i)];
      EXPECT_TRUE(area.Contains(position.cover.place())) << page.name << " " << i;
      EXPECT_TRUE(area.Contains(position.artist.place())) << page.name << " " << i;
      EXPECT_GE(position.album.place().top, position.cover.place().bottom());
      if (i > 0) {
        const CoverPosition& before = form.album.covers[static_cast<size_t>(i) - 1];
        EXPECT_TRUE(position.frame.place().Intersected(before.frame.place()).empty());
      }
    }
  }
  EXPECT_EQ(counts.size(), 3U);
  EXPECT_TRUE(counts.contains(12));
}

INSTANTIATE_TEST_SUITE_P(All, DeliveredSkins, testing::Values(&Neon(), &Classic()),
                         [](const auto& skin) { return std::string(skin.param->name); });

}  // namespace
}  // namespace sonotik::skins
