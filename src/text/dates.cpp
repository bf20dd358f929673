#include "text/dates.h"

#include <charconv>
#include <chrono>

#include "text/text.h"

namespace sonotik {
namespace {

std::chrono::year_month_day Calendar(const Date& date) {
  return std::chrono::year(date.year) / date.month / date.day;
}

std::optional<int> WholeNumber(std::string_view text, size_t longest) {
  int value = 0;
  if (text.empty() || text.size() > longest || text[0] == '-') return {};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc{} || end != text.data() + text.size()) return {};
  return value;
}

}  // namespace

std::string DateText(const Date& date) {
  return LastDigits(date.month, 2) + "/" + LastDigits(date.day, 2) + "/" + LastDigits(date.year, 4);
}

std::string TimeText(const DateTime& now) {
  return LastDigits(now.hour, 2) + ":" + LastDigits(now.minute, 2) + ":" +
         LastDigits(now.second, 2);
}

std::optional<Date> ParseDate(std::string_view text) {
  text = TrimBlanks(text);
  const size_t first = text.find('/');
  if (first == std::string_view::npos) return {};
  const size_t second = text.find('/', first + 1);
  if (second == std::string_view::npos) return {};
  const auto month = WholeNumber(text.substr(0, first), 2);
  const auto day = WholeNumber(text.substr(first + 1, second - first - 1), 2);
  const auto year = WholeNumber(text.substr(second + 1), 4);
  if (!month || !day || !year) return {};
  const Date date{*year, *month, *day};
  if (!Calendar(date).ok()) return {};
  return date;
}

long DaysBetween(const Date& from, const Date& to) {
  return (std::chrono::sys_days(Calendar(to)) - std::chrono::sys_days(Calendar(from))).count();
}

std::string MinutesSeconds(double seconds) {
  if (!(seconds > 0 && seconds < 1e9)) return "0:00";
  const long whole = static_cast<long>(seconds);
  return std::to_string(whole / 60) + ":" + LastDigits(whole % 60, 2);
}

}  // namespace sonotik
