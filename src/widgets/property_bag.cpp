#include "widgets/property_bag.h"

#include <charconv>
#include <cmath>

namespace sonotik {
namespace {

template <typename T>
bool Parse(std::string_view text, T& value) {
  T parsed{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
  if (error != std::errc() || end != text.data() + text.size()) return false;
  value = parsed;
  return true;
}

}  // namespace

std::string PropertyText(int value) { return std::to_string(value); }
std::string PropertyText(Color value) { return std::to_string(static_cast<int32_t>(value)); }
std::string PropertyText(bool value) { return value ? "True" : "False"; }
std::string PropertyText(const std::string& value) { return value; }
std::string PropertyText(const Font& value) {
  char points[32];
  const auto [end, error] = std::to_chars(points, points + sizeof points, value.points);
  return value.family + "|" + std::string(points, error == std::errc() ? end : points) + "|" +
         PropertyText(value.bold);
}

void SetFromText(int& value, const std::string& text) { Parse(text, value); }

void SetFromText(Color& value, const std::string& text) {
  int32_t number = 0;
  if (Parse(text, number)) value = static_cast<Color>(number);
}

void SetFromText(bool& value, const std::string& text) {
  if (EqualsIgnoringCase(text, "True")) value = true;
  if (EqualsIgnoringCase(text, "False")) value = false;
}

void SetFromText(std::string& value, const std::string& text) { value = text; }

void SetFromText(Font& value, const std::string& text) {
  const size_t first = text.find('|');
  const size_t second = text.find('|', first == std::string::npos ? first : first + 1);
  if (second == std::string::npos) return;
  Font font{text.substr(0, first)};
  if (!Parse(std::string_view(text).substr(first + 1, second - first - 1), font.points)) return;
  if (!std::isfinite(font.points)) return;
  SetFromText(font.bold, text.substr(second + 1));
  value = font;
}

}  // namespace sonotik
