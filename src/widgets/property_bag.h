// The stored properties of a control: texts by key, and the tables by which they are read and
// written.
#ifndef SONOTIK_WIDGETS_PROPERTY_BAG_H_
#define SONOTIK_WIDGETS_PROPERTY_BAG_H_

#include <map>
#include <optional>
#include <span>
#include <string>
#include <variant>

#include "text/text.h"
#include "widgets/canvas.h"

namespace sonotik {

// Keys are compared without regard to case: one is written "cBhover" and read "cBHover".
class PropertyBag {
 public:
  void Write(const std::string& key, std::string value) { values_[UpperCase(key)] = value; }
  std::optional<std::string> Read(const std::string& key) const {
    const auto found = values_.find(UpperCase(key));
    return found == values_.end() ? std::nullopt : std::optional(found->second);
  }

 private:
  std::map<std::string, std::string> values_;
};

// How a kind of value is written: numbers in decimals, truths as "True" and "False", a font as
// "family|points|bold". A text that is none of its kind leaves the value.
std::string PropertyText(int value);
std::string PropertyText(Color value);
std::string PropertyText(bool value);
std::string PropertyText(const std::string& value);
std::string PropertyText(const Font& value);
void SetFromText(int& value, const std::string& text);
void SetFromText(Color& value, const std::string& text);
void SetFromText(bool& value, const std::string& text);
void SetFromText(std::string& value, const std::string& text);
void SetFromText(Font& value, const std::string& text);

// A row of the table of a record of properties.
template <typename T>
struct PropertyRow {
  const char* key;
  std::variant<int T::*, Color T::*, bool T::*, std::string T::*, Font T::*> member;
  // What a number may be; a stored one outside is as if it weren't there.
  int least = INT32_MIN;
  int most = INT32_MAX;
};

template <typename T, size_t n>
void WriteProperties(const PropertyRow<T> (&rows)[n], const T& record, PropertyBag& bag) {
  for (const PropertyRow<T>& row : rows) {
    std::visit([&](auto member) { bag.Write(row.key, PropertyText(record.*member)); }, row.member);
  }
}

// What the bag doesn't hold stays as it is.
template <typename T, size_t n>
void ReadProperties(const PropertyRow<T> (&rows)[n], T& record, const PropertyBag& bag) {
  for (const PropertyRow<T>& row : rows) {
    const std::optional<std::string> text = bag.Read(row.key);
    if (!text) continue;
    if (const auto* number = std::get_if<int T::*>(&row.member)) {
      int value = record.**number;
      SetFromText(value, *text);
      if (value >= row.least && value <= row.most) record.** number = value;
    } else {
      std::visit([&](auto member) { SetFromText(record.*member, *text); }, row.member);
    }
  }
}

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_PROPERTY_BAG_H_
