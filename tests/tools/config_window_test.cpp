// The window over the builder, on the toolkit without a display.
#include "tools/config/window.h"

#include <gmock/gmock.h>

#include <QApplication>

#include "jukebox_folder.h"
#include "tools/config/sidecar.h"

namespace sonotik {
namespace {

class ConfigWindowTest : public JukeboxFolder {
 protected:
  ConfigWindowTest() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "test";
    static char* arguments[] = {name, nullptr};
    static const QApplication application(count, arguments);
  }
  QString Folder(const char* name) const { return QString::fromStdString((root_ / name).string()); }
  static void BuildToTheEnd(ConfigWindow& window) {
    window.Build();
    while (window.building()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
};

TEST_F(ConfigWindowTest, BuildsFromItsFoldersTellsWhatItCouldNotReadAndRemembersThem) {
  Put("films/Night/dawn.avi", "no film");
  Put("films/Night/dawn.avi.tag", SidecarText({}));
  {
    ConfigWindow window(root_);
    BuildToTheEnd(window);
    EXPECT_THAT(window.summary().toStdString(), testing::HasSubstr("Add a folder"));
    window.AddFolder(CatalogueKind::kVideo, Folder("films"));
    window.AddFolder(CatalogueKind::kVideo, Folder("films"));
    window.AddFolder(CatalogueKind::kAudio, Folder("gone"));
    BuildToTheEnd(window);
    EXPECT_THAT(window.summary().toStdString(), testing::HasSubstr("1 track"));
    EXPECT_EQ(window.problems(), 1);
    EXPECT_TRUE(std::filesystem::exists(root_ / "videos.cvr"));
  }
  const ConfigWindow again(root_);
  EXPECT_EQ(again.folders(CatalogueKind::kVideo), 1);
  EXPECT_EQ(again.folders(CatalogueKind::kAudio), 1);
}

}  // namespace
}  // namespace sonotik
