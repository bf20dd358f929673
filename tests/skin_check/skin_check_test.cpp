#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "files/files.h"
#include "support/temp_folder.h"
#include "tools/skin-check/format.h"
#include "tools/skin-check/place_check.h"

namespace sonotik {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

// A delivered skin, for a test to spoil.
class SkinCheckTest : public testing::Test {
 protected:
  SkinCheckTest() { CopyAnew(); }

  void CopyAnew() {
    namespace fs = std::filesystem;
    const fs::path source = SONOTIK_SKINS "/Classic";
    for (const auto& entry : fs::directory_iterator(source)) {
      const fs::path to = folder.native() / entry.path().filename();
      if (entry.is_directory()) {
        if (!fs::exists(to)) fs::create_directory_symlink(entry.path(), to);
      } else {
        fs::copy_file(entry.path(), to, fs::copy_options::overwrite_existing);
      }
    }
  }

  // One value a line, as the skins are written.
  std::vector<std::string> Lines(const std::string& name) {
    std::vector<std::string> lines;
    std::istringstream text(folder.Read(name));
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
  }
  void WriteLines(const std::string& name, const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    folder.Write(name, text);
  }
  Findings Check() {
    Findings findings;
    if (CheckFiles(folder.path(), findings)) CheckPlaces(folder.path(), findings);
    return findings;
  }

  TempFolder folder;
};

TEST_F(SkinCheckTest, SaysWhatIsWrongWithAValue) {
  const struct {
    const char* file;
    size_t line;
    const char* value;
    const char* finding;
  } cases[] = {
      {"search.ini", 9, "abc", "search.ini: field 9, top of search.key 1: a number is due"},
      {"search.ini", 404 + 10, "12 points", "font size"},
      {"queue.ini", 3, "9",
       "queue.ini: field 3, shape, 0 to 8 of queue.scroll 1: 9 has no meaning"},
      {"queue.ini", 7, "1.5", "a whole number is due"},
      {"queue.ini", 11, "-4", "has no meaning"},
      {"genre.ini", 1, "gone.jpg", "genre.ini: field 1, picture file of screen: there is no file"},
      {"skin.ini", 6, "a\\b.jpg", "skin.ini: field 6, picture file of screen 1: there is no file"},
      {"skin.ini", 38, "14", "14 has no meaning"},
      {"tab.ini", 2, "Audio, Video", "tab.ini: field 3, shape, 0 to 8 of tab 1: a number is due"},
      {"top20.ini", 10, "5000", "top20.ini, top20.scroll 1 of 2 (Up, Down): lies outside"},
      {"resolution.ini", 4, "800", "main.ini, menu.bar (menu bar): lies outside its panel of 800"},
  };
  for (const auto& c : cases) {
    CopyAnew();
    auto lines = Lines(c.file);
    lines.at(c.line - 1) = c.value;
    WriteLines(c.file, lines);
    EXPECT_THAT(Check(), Contains(HasSubstr(c.finding))) << c.file << ' ' << c.line;
  }
}

TEST_F(SkinCheckTest, ChecksEachCoverLayout) {
  std::string name;
  for (const auto& entry : std::filesystem::directory_iterator(folder.native())) {
    if (entry.path().extension() == ".cov") name = entry.path().filename().string();
  }
  auto lines = Lines(name);
  // The first cover over the second.
  for (size_t i = 4; i < 8; ++i) lines[i] = lines[24 + i];
  WriteLines(name, lines);
  EXPECT_THAT(Check(), Contains(AllOf(HasSubstr(name + ", cover 1: overlaps"),
                                      HasSubstr(name + ", cover 2"))));
  lines[4] = "-50";
  WriteLines(name, lines);
  EXPECT_THAT(Check(), Contains(HasSubstr(name + ", cover 1: lies outside")));
  lines.resize(20);
  WriteLines(name, lines);
  EXPECT_THAT(Check(), ElementsAre(HasSubstr(name + ": field 21: the file ends too early")));
}

TEST(SkinFormat, IsWhatTheDocsSay) {
  std::ifstream file(SONOTIK_SOURCE "/docs/skin-format.md", std::ios::binary);
  const std::string docs{std::istreambuf_iterator<char>(file), {}};
  EXPECT_EQ(SkinFormat(), docs) << "skin-check --format > docs/skin-format.md makes it anew";
}

}  // namespace
}  // namespace sonotik
