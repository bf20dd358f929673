// The controls behind the names of the layout tables.
#ifndef SONOTIK_SKINS_LAYOUT_TARGETS_H_
#define SONOTIK_SKINS_LAYOUT_TARGETS_H_

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Form1.h"

namespace sonotik {

class LayoutTargets {
 public:
  // The form must outlive it.
  explicit LayoutTargets(Form1& form);

  // What a name and an index stand for: mostly one control, for some names all of a list at once.
  // Empty for a name that is no control's, such as the head of a file.
  std::span<Control* const> At(std::string_view name, int index) const;

 private:
  using Group = std::vector<Control*>;

  // The next index of a name.
  void Add(const char* name, Control& control) { AddGroup(name, {&control}); }
  void AddGroup(const char* name, Group group) { targets_[name].push_back(std::move(group)); }
  template <typename Controls>
  void AddAll(const char* name, Controls& controls) {
    for (auto& control : controls) Add(name, control);
  }
  template <typename Rows, typename Row, typename T>
  void AddAll(const char* name, Rows& rows, T Row::*member) {
    for (Row& row : rows) Add(name, row.*member);
  }
  // One index that stands for all of them.
  template <typename Rows, typename Row, typename... T>
  void AddTogether(const char* name, Rows& rows, T Row::*... members) {
    Group group;
    for (Row& row : rows) (group.push_back(&(row.*members)), ...);
    AddGroup(name, std::move(group));
  }

  void AddFrame(Form1& form);
  void AddAlbumScreen(AlbumScreen& screen);
  void AddLists(Form1& form);
  void AddSearch(Form1& form);
  void AddDecades(DecadesScreen& screen);
  void AddOthers(Form1& form);

  std::map<std::string, std::vector<Group>, std::less<>> targets_;
};

}  // namespace sonotik

#endif  // SONOTIK_SKINS_LAYOUT_TARGETS_H_
