#include "text/text.h"

#include <algorithm>

namespace sonotik {
namespace {

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::string_view TrimBlanks(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string UpperCase(std::string_view text) {
  std::string out(text);
  std::transform(out.begin(), out.end(), out.begin(), Upper);
  return out;
}

std::string LowerCase(std::string_view text) {
  std::string out(text);
  std::transform(out.begin(), out.end(), out.begin(), Lower);
  return out;
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return Upper(x) == Upper(y); });
}

bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
  return std::search(text.begin(), text.end(), part.begin(), part.end(),
                     [](char x, char y) { return Upper(x) == Upper(y); }) != text.end() ||
         part.empty();
}

bool LessIgnoringCase(std::string_view a, std::string_view b) {
  const auto less = [](char x, char y) {
    return static_cast<unsigned char>(Upper(x)) < static_cast<unsigned char>(Upper(y));
  };
  if (std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), less)) return true;
  if (std::lexicographical_compare(b.begin(), b.end(), a.begin(), a.end(), less)) return false;
  return a < b;
}

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with) {
  std::string out;
  out.reserve(text.size());
  size_t at = 0;
  for (size_t hit; (hit = text.find(what, at)) != std::string_view::npos; at = hit + what.size()) {
    out += text.substr(at, hit - at);
    out += with;
  }
  out += text.substr(at);
  return out;
}

std::string DoubleAmpersands(std::string_view text) { return ReplaceAll(text, "&", "&&"); }
std::string SingleAmpersands(std::string_view text) { return ReplaceAll(text, "&&", "&"); }

std::string LastDigits(long number, int width) {
  const std::string digits = std::string(width, '0') + std::to_string(number);
  return digits.substr(digits.size() - width);
}

}  // namespace sonotik
