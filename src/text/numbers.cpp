#include "text/numbers.h"

#include <charconv>
#include <cmath>

#include "text/text.h"

namespace sonotik {
namespace {

std::string_view SkipPlus(std::string_view text) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  return text;
}

}  // namespace

std::string NumberCaption(long number) { return (number < 0 ? "" : " ") + std::to_string(number); }

std::string NumberField(long number) { return NumberCaption(number) + " "; }

std::string NumberField(double number) {
  if (!std::isfinite(number)) number = 0;
  // The longest double has 309 digits before its point.
  char digits[400];
  const auto end = std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed);
  return (number < 0 ? "" : " ") + std::string(digits, end.ptr) + " ";
}

std::optional<double> ParseNumber(std::string_view text) {
  text = SkipPlus(TrimBlanks(text));
  if (text.empty()) return 0.0;
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(value)) return {};
  return value;
}

double LeadingNumber(std::string_view text) {
  text = SkipPlus(TrimBlanks(text));
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc{} && std::isfinite(value) ? value : 0;
}

double NumberOrZero(std::string_view text) { return ParseNumber(text).value_or(0); }

double RoundHalfEven(double value) { return std::nearbyint(value); }

double RoundToHundredths(double value) { return RoundHalfEven(value * 100) / 100; }

long FloorDiv(long a, long b) { return a / b - (a % b < 0 ? 1 : 0); }

}  // namespace sonotik
