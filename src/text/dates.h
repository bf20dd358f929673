// Dates and times as the system writes them: MM/DD/YYYY and HH:MM:SS, 24 hours, local time.
// A date fits the ten characters of a catalogue record, and the first five characters of a time are
// its hour and minute, which the timed exit compares.
#ifndef SONOTIK_TEXT_DATES_H_
#define SONOTIK_TEXT_DATES_H_

#include <optional>
#include <string>
#include <string_view>

namespace sonotik {

struct Date {
  int year = 0;
  int month = 0;  // 1 to 12
  int day = 0;    // 1 to 31
  bool operator==(const Date&) const = default;
};

struct DateTime {
  Date date;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

std::string DateText(const Date& date);
std::string TimeText(const DateTime& now);

// Reads a date with or without leading zeros; nothing for a text that is no day of the calendar.
std::optional<Date> ParseDate(std::string_view text);

// Whole days from `from` to `to`; negative if `to` is the earlier day.
long DaysBetween(const Date& from, const Date& to);

// Position and length of a track: minutes, ":" and two-digit seconds; fractions are cut off.
std::string MinutesSeconds(double seconds);

}  // namespace sonotik

#endif  // SONOTIK_TEXT_DATES_H_
