// The values of one skin, by the controls that they belong to, and the files that they stand in.
#ifndef SONOTIK_TOOLS_SKINS_VALUES_H_
#define SONOTIK_TOOLS_SKINS_VALUES_H_

#include <map>
#include <set>
#include <string>
#include <tuple>

#include "skins/layout_tables.h"

namespace sonotik::skins {

class SkinValues {
 public:
  void Set(const std::string& target, int index, FieldKind kind, const std::string& value);
  void Set(const std::string& target, int index, FieldKind kind, float value);
  void Set(const std::string& target, int index, FieldKind kind, int value);

  // Takes a value back that no file has a place for.
  void Drop(const std::string& target, int index, FieldKind kind) {
    values_.erase({target, index, kind});
  }

  // All layout files and skin.ini. Throws std::runtime_error for a field that nobody has given,
  // and for a value that no file has a place for.
  void WriteTo(const std::string& folder);

 private:
  using Key = std::tuple<std::string, int, FieldKind>;
  const std::string& Get(const std::string& target, int index, FieldKind kind);
  std::string TextOf(const LayoutFile& file);

  std::map<Key, std::string> values_;
  std::set<Key> written_;
};

}  // namespace sonotik::skins

#endif  // SONOTIK_TOOLS_SKINS_VALUES_H_
