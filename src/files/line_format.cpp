#include "files/line_format.h"

#include <limits>

#include "files/runtime_failure.h"
#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {

FieldReader::FieldReader(std::string text) : text_(std::move(text)) {}

void FieldReader::Fail(std::string_view why) const {
  throw RuntimeFailure("field " + std::to_string(fields_) + ": " + std::string(why));
}

void FieldReader::EndLine() {
  if (at_ < text_.size() && text_[at_] == '\r') ++at_;
  if (at_ < text_.size() && text_[at_] == '\n') ++at_;
}

std::string FieldReader::Text() {
  ++fields_;
  if (AtEnd()) Fail("the file ends too early");
  while (at_ < text_.size() && text_[at_] == ' ') ++at_;
  std::string field;
  if (at_ < text_.size() && text_[at_] == '"') {
    const size_t close = text_.find('"', at_ + 1);
    field = text_.substr(at_ + 1, close == std::string::npos ? close : close - at_ - 1);
    at_ = close == std::string::npos ? text_.size() : close + 1;
    // What stands between the closing quote and the next comma or line end belongs to no field.
    at_ = std::min(text_.find_first_of(",\r\n", at_), text_.size());
  } else {
    const size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
    field = text_.substr(at_, end - at_);
    at_ = end;
  }
  if (at_ < text_.size() && text_[at_] == ',') {
    ++at_;
  } else {
    EndLine();
  }
  return field;
}

long FieldReader::Whole(long least, long most) {
  const double value = RoundHalfEven(Float());
  if (value < static_cast<double>(least) || value > static_cast<double>(most)) {
    Fail("the number is out of range");
  }
  return static_cast<long>(value);
}

int16_t FieldReader::Int16() {
  using Limits = std::numeric_limits<int16_t>;
  return static_cast<int16_t>(Whole(Limits::min(), Limits::max()));
}

int32_t FieldReader::Int32() {
  using Limits = std::numeric_limits<int32_t>;
  return static_cast<int32_t>(Whole(Limits::min(), Limits::max()));
}

double FieldReader::Float() {
  const std::string text = Text();
  const auto number = ParseNumber(text);
  if (!number) Fail("a number is due, not \"" + text.substr(0, 40) + "\"");
  return *number;
}

bool FieldReader::Check() {
  const int16_t value = Int16();
  if (value != 0 && value != 1) Fail("a check box is 0 or 1");
  return value == 1;
}

bool FieldReader::Truth() {
  const std::string text = Text();
  const std::string_view word = TrimBlanks(text);
  if (EqualsIgnoringCase(word, "True")) return true;
  if (EqualsIgnoringCase(word, "False")) return false;
  const auto number = ParseNumber(word);
  if (!number) Fail("\"True\" or \"False\" is due");
  return *number != 0;
}

std::string FieldReader::WholeLine() {
  ++fields_;
  if (AtEnd()) Fail("the file ends too early");
  const size_t end = std::min(text_.find_first_of("\r\n", at_), text_.size());
  std::string line = text_.substr(at_, end - at_);
  at_ = end;
  EndLine();
  return line;
}

void LineWriter::Text(std::string_view text) {
  text_ += text;
  text_ += "\r\n";
}

void LineWriter::Number(long number) { Text(NumberField(number)); }
void LineWriter::Number(double number) { Text(NumberField(number)); }

std::string LineReader::Next() {
  if (AtEnd()) throw RuntimeFailure("the file ends too early");
  const size_t end = std::min(text_.find('\n', at_), text_.size());
  std::string line = text_.substr(at_, end - at_);
  at_ = end + 1;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return line;
}

}  // namespace sonotik
