// Looks for one text in a field of many records, as a scan of a whole file does.
#ifndef SONOTIK_CATALOGUE_FIELD_FINDER_H_
#define SONOTIK_CATALOGUE_FIELD_FINDER_H_

#include <string>
#include <string_view>

namespace sonotik {

class FieldFinder {
 public:
  // An empty text is in every field.
  explicit FieldFinder(std::string_view text);

  // Whether the field, without the blanks around it, holds the text in any case.
  bool IsIn(std::string_view field) const;

 private:
  bool MayBeIn(std::string_view field) const;

  std::string text_;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_FIELD_FINDER_H_
