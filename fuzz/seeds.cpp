// Writes what the fuzzers start from, a folder a parser, by the recipes of the tests:   seeds
// FOLDER
#include <filesystem>
#include <fstream>
#include <map>

#include "fuzz/gif_bytes.h"
#include "fuzz/recipes.h"

namespace {

void Write(const std::filesystem::path& folder, const std::string& name, const std::string& bytes) {
  std::filesystem::create_directories(folder);
  std::ofstream(folder / name, std::ios::binary) << bytes;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::filesystem::path corpus = argv[1];
  for (const auto& [parser, recipes] : sonotik::Recipes()) {
    for (const auto& [name, bytes] : recipes) Write(corpus / parser, name, bytes);
  }
  for (const auto& recipe : sonotik::gif::Recipes()) {
    Write(corpus / "gif", recipe.name, recipe.bytes);
  }
}
