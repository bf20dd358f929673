// Writes what the fuzzers start from, a folder a parser, by the recipes of the tests:   seeds
// FOLDER
#include <filesystem>
#include <fstream>
#include <map>

#include "fuzz/recipes.h"

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  for (const auto& [parser, recipes] : sonotik::Recipes()) {
    const auto folder = std::filesystem::path(argv[1]) / parser;
    std::filesystem::create_directories(folder);
    for (const auto& [name, bytes] : recipes) {
      std::ofstream(folder / name, std::ios::binary) << bytes;
    }
  }
}
