// How the system writes and reads numbers.
#ifndef SONOTIK_TEXT_NUMBERS_H_
#define SONOTIK_TEXT_NUMBERS_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sonotik {

// A number in a caption or a list item: a blank stands where a minus sign would: " 1", "-1".
std::string NumberCaption(long number);

// A number field of a file: as in a caption, and one blank behind: " 1 ", "-1 ".
std::string NumberField(long number);
// The shortest decimal that reads back as the same value: " 2.5 ", " 5 ", "-0.25 ".
std::string NumberField(double number);

// Reads a whole text as one decimal number; blanks around it do not matter, and an empty text is 0.
// Nothing for any other text, an infinity or a hexadecimal number.
std::optional<double> ParseNumber(std::string_view text);

// The number at the start of a text, 0 where none stands there: "12 Songs" gives 12, "abc" 0.
double LeadingNumber(std::string_view text);

// A typed-in field as a number: the whole text must be one, anything else counts as 0.
double NumberOrZero(std::string_view text);

// Nearest whole number, ties to the even one.
double RoundHalfEven(double value);
// The same, held at two decimal places.
double RoundToHundredths(double value);

// The next lower whole number of a / b, also below 0: FloorDiv(-1, 12) is -1. b is above 0.
long FloorDiv(long a, long b);

}  // namespace sonotik

#endif  // SONOTIK_TEXT_NUMBERS_H_
