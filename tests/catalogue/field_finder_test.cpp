#include "catalogue/field_finder.h"

#include <gtest/gtest.h>

#include <random>

#include "text/text.h"

namespace sonotik {
namespace {

std::string Field(std::string text) {
  text.resize(60, ' ');
  return text;
}

TEST(FieldFinder, AgreesWithAPlainSearchOverAnyBytes) {
  std::mt19937 random(1);
  const auto text = [&](size_t most, const std::string& from) {
    std::string out(random() % (most + 1), ' ');
    for (char& c : out) c = from[random() % from.size()];
    return out;
  };
  const std::string few("aAbB \0\xE9", 7);
  std::string all;
  for (int c = 0; c < 256; ++c) all += static_cast<char>(c);
  int found = 0;
  for (int i = 0; i < 50000; ++i) {
    const std::string& from = i % 2 == 0 ? few : all;
    const std::string field = Field(text(60, from));
    std::string key = text(4, from);
    if (i % 3 == 0) key = LowerCase(field.substr(random() % 60, random() % 61));
    const bool plain = UpperCase(TrimBlanks(field)).find(UpperCase(key)) != std::string::npos;
    ASSERT_EQ(FieldFinder(key).IsIn(field), plain) << i;
    found += plain ? 1 : 0;
  }
  EXPECT_GT(found, 10000);
  EXPECT_LT(found, 40000);
}

}  // namespace
}  // namespace sonotik
