#include "files/text_box.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temp_folder.h"

namespace sonotik {
namespace {

TEST(TextBoxes, HandOverEachTextWholeAndAlone) {
  const TempFolder folder;
  EXPECT_EQ(PutIntoTextBox(folder.path(), kCoinBox, "1"), BoxAnswer::kNobody);
  TextBox box;
  ASSERT_TRUE(box.Open(folder.path(), kCoinBox));
  EXPECT_EQ(box.Take(), std::nullopt);
  for (const std::string& text : {std::string("2"), std::string(), std::string("a\0b", 3)}) {
    EXPECT_EQ(PutIntoTextBox(folder.path(), kCoinBox, text), BoxAnswer::kTaken);
  }
  EXPECT_EQ(box.Take(), "2");
  EXPECT_EQ(box.Take(), "");
  EXPECT_EQ(box.Take(), std::string("a\0b", 3));
  EXPECT_EQ(PutIntoTextBox(folder.path(), kCoinBox, std::string(3000, '7')), BoxAnswer::kTaken);
  EXPECT_EQ(box.Take(), std::string(TextBox::kLongestText, '7'));
  EXPECT_EQ(box.Take(), std::nullopt);
}

TEST(TextBoxes, BelongToTheirUserAloneAndReplaceOneLeftBehind) {
  const TempFolder folder;
  folder.Write(kCoinBox, "left behind");
  {
    TextBox box;
    ASSERT_TRUE(box.Open(folder.path(), kCoinBox));
    struct stat status;
    ASSERT_EQ(::stat((folder.native() / kCoinBox).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
  }
  EXPECT_FALSE(folder.Has(kCoinBox));
}

TEST(TextBoxes, WorkInAFolderWhosePathIsLongerThanAnAddress) {
  const TempFolder folder;
  std::string deep;
  for (int i = 0; i < 8; ++i) deep += std::string(60, 'd') + "/";
  folder.Write(deep + "x", "");
  const std::string path = ProgramPath(folder.native() / deep);
  TextBox box;
  ASSERT_TRUE(box.Open(path, kCoinBox));
  EXPECT_EQ(PutIntoTextBox(path, kCoinBox, "5"), BoxAnswer::kTaken);
  EXPECT_EQ(box.Take(), "5");
}

}  // namespace
}  // namespace sonotik
