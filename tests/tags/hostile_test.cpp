// Files that lie: the readers may fail in words, but never crash, hang or take memory that the file
// doesn't back.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <new>

#include "fuzz/parsers.h"
#include "fuzz/recipes.h"
#include "tags/tag_files.h"

namespace {
size_t largest_allocation = 0;
}

// Kept out of line: inlined, the compiler takes the pair for a mismatch.
[[gnu::noinline]] void* operator new(size_t size) {
  largest_allocation = std::max(largest_allocation, size);
  if (void* memory = std::malloc(size ? size : 1)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, size_t) noexcept { std::free(memory); }

namespace sonotik {
namespace {

// No claim of a file may take more memory than the file has bytes, and a constant.
void ExpectSurvives(const Parser& parser, std::string_view bytes, std::string_view what) {
  largest_allocation = 0;
  Survives(parser, AsBytes(bytes));
  EXPECT_LE(largest_allocation, 70000 + 4 * bytes.size()) << parser.name << " " << what;
}

TEST(HostileBytes, EveryCutAndEveryTurnedByteIsSurvived) {
  const auto all = Recipes();
  for (const Parser& parser : kParsers) {
    for (const auto& [recipe, bytes] : all.at(parser.name)) {
      // Of the long ones only the places where something stands.
      const size_t end = std::min<size_t>(bytes.size(), 400);
      for (size_t at = 0; at < end; ++at) {
        ExpectSurvives(parser, std::string_view(bytes).substr(0, at), recipe);
        for (const char byte : {'\0', '\1', '\x7F', '\x80', '\xFF'}) {
          std::string turned = bytes;
          turned[at] = byte;
          ExpectSurvives(parser, turned, recipe);
        }
      }
    }
  }
}

TEST(HostileBytes, WhatIsWrongEndsInFieldsOrInWords) {
  const auto all = Recipes();
  for (const Parser& parser : kParsers) {
    for (const auto& [recipe, bytes] : all.at(parser.name)) {
      EXPECT_NE(Survives(parser, AsBytes(bytes)), recipe.starts_with("fails_")) << recipe;
    }
  }
}

}  // namespace
}  // namespace sonotik
