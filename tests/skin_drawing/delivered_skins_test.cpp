#include <gtest/gtest.h>

#include <QGuiApplication>
#include <set>

#include "skins/cover_layout.h"
#include "skins/layout_reader.h"
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

// All that takes a touch on this panel and shows on it at once.
std::vector<const lvButtons_H*> ButtonsOf(const Panel& panel) {
  std::vector<const lvButtons_H*> buttons;
  for (const Control* child : panel.children()) {
    const auto* button = dynamic_cast<const lvButtons_H*>(child);
    if (button != nullptr && button->visible() && !button->place().empty()) {
      buttons.push_back(button);
    }
  }
  return buttons;
}

TEST_P(DeliveredSkins, KeepEveryButtonOnItsPanelAndApartFromTheOthers) {
  Form1 form;
  const LayoutTargets targets(form);
  const LayoutReader reader(targets, skin);
  ASSERT_TRUE(reader.Read(SkinFile()));
  for (const LayoutFile& file : LayoutFiles()) ASSERT_TRUE(reader.Read(file)) << file.name;
  const Rect window{0, 0, GetParam()->width, GetParam()->height};
  form.form.SetPlace(window);
  form.FitUnplaced();
  for (const size_t index : {screen::kNowPlaying, screen::kSearchResults, screen::kDecades}) {
    form.panel(index).SetPlace(form.panel(0).place());
  }

  std::vector<const Panel*> panels = {&form.menu, &form.player, &form.genre_bar, &form.pin_screen,
                                      &form.jump_to_letter.panel};
  for (size_t i = 0; i <= screen::kPlayOptions; ++i) panels.push_back(&form.panels[i]);
  for (const Panel* panel : panels) {
    EXPECT_TRUE(window.Contains(panel->AbsolutePlace()));
    const Rect inside{0, 0, panel->place().width, panel->place().height};
    const auto buttons = ButtonsOf(*panel);
    for (size_t i = 0; i < buttons.size(); ++i) {
      const Rect place = buttons[i]->place();
      EXPECT_TRUE(inside.Contains(place)) << buttons[i]->caption();
      EXPECT_TRUE(buttons[i]->image().empty() || buttons[i]->shape() == 7);
      for (size_t k = 0; k < i; ++k) {
        EXPECT_TRUE(place.Intersected(buttons[k]->place()).empty())
            << buttons[i]->caption() << " over " << buttons[k]->caption();
      }
    }
  }
}

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
