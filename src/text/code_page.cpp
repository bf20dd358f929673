#include "text/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace sonotik {
namespace {

// 0x80 to 0x9F; 0 for the five codes without a letter.
constexpr std::array<char32_t, 32> kLetters = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// Takes the next character off a text; nothing if none stands there in its shortest form.
std::optional<char32_t> TakeCharacter(std::string_view& text) {
  static constexpr struct {
    uint8_t mask, lead;
    char32_t least;
  } kForms[] = {{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}};
  const auto first = static_cast<uint8_t>(text[0]);
  size_t more = 0;
  while (more < std::size(kForms) && (first & kForms[more].mask) != kForms[more].lead) ++more;
  if (more == std::size(kForms) || text.size() <= more) return {};
  char32_t character = first & static_cast<uint8_t>(~kForms[more].mask);
  for (size_t i = 1; i <= more; ++i) {
    const auto byte = static_cast<uint8_t>(text[i]);
    if ((byte & 0xC0U) != 0x80U) return {};
    character = character << 6U | (byte & 0x3FU);
  }
  const bool surrogate = character >= 0xD800 && character < 0xE000;
  if (character < kForms[more].least || character > 0x10FFFF || surrogate) return {};
  text.remove_prefix(more + 1);
  return character;
}

char CodeOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
    return static_cast<char>(character);
  }
  const auto* letter = std::find(kLetters.begin(), kLetters.end(), character);
  return letter == kLetters.end() ? '?' : static_cast<char>(0x80 + (letter - kLetters.begin()));
}

}  // namespace

std::string InCodePage(std::string_view text) {
  std::string codes;
  for (std::string_view rest = text; !rest.empty();) {
    const auto character = TakeCharacter(rest);
    if (!character) return std::string(text);
    codes += CodeOf(*character);
  }
  return codes;
}

}  // namespace sonotik
