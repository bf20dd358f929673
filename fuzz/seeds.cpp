// Writes what the fuzzers start from, a folder a parser, by the recipes of the tests:   seeds
// FOLDER
#include <filesystem>
#include <fstream>
#include <map>

#include "fuzz/gif_bytes.h"
#include "fuzz/recipes.h"
#include "tests/support/skin_files.h"

namespace {

void Write(const std::filesystem::path& folder, const std::string& name, const std::string& bytes) {
  std::filesystem::create_directories(folder);
  std::ofstream(folder / name, std::ios::binary) << bytes;
}

// One of each file, which the target tells by a number before it, and some that lie.
void WriteLayouts(const std::filesystem::path& folder) {
  using namespace sonotik;
  const auto files = LayoutFiles();
  for (size_t i = 0; i < files.size(); ++i) {
    Write(folder, files[i].name, static_cast<char>(i) + LayoutText(files[i]));
  }
  Write(folder, "skin.ini", static_cast<char>(files.size()) + LayoutText(SkinFile()));
  std::string cover = "label\n1\n1\n1\n";
  for (int i = 0; i < 24; ++i) cover += std::to_string(i) + "\n";
  Write(folder, "cov", static_cast<char>(files.size() + 1) + cover);
  const LayoutFile& spin = *FindLayoutFile("spin.ini");
  const char which = 26;
  const std::map<std::string, std::string> lies = {{"large_numbers", "1e308"},
                                                   {"least_number", "-2147483648"},
                                                   {"quoted", "\"a,b\"c"},
                                                   {"slipping", "1,5"},
                                                   {"large_font", "Arial 1e9"}};
  for (const auto& [name, value] : lies) {
    Write(folder, "spin.ini_" + name,
          which + LayoutText(spin, [&, lie = value](const LayoutField& field) {
            return field.number > 2 ? lie : PlainValue(field);
          }));
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::filesystem::path corpus = argv[1];
  for (const auto& [parser, recipes] : sonotik::Recipes()) {
    for (const auto& [name, bytes] : recipes) Write(corpus / parser, name, bytes);
  }
  WriteLayouts(corpus / "layout");
  for (const auto& recipe : sonotik::gif::Recipes()) {
    Write(corpus / "gif", recipe.name, recipe.bytes);
  }
}
