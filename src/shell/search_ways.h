// What touches do while somebody searches: the keyboard, the results, the special lists.
#ifndef SONOTIK_SHELL_SEARCH_WAYS_H_
#define SONOTIK_SHELL_SEARCH_WAYS_H_

#include "shell/navigation.h"

namespace sonotik {

class SearchWays {
 public:
  SearchWays(Assembly& house, Menu& menu, Navigation& navigation);

 private:
  void WireKeyboard();
  void WireResults();
  template <typename Handler>
  void OnClick(Control& control, const char* name, Handler handler);

  void PressMode(SearchMode mode);
  void PressKey(const std::string& caption);
  void PressDelete();
  void PressSuggestion(int line);
  void PressSearch();
  void PressTab(int media_kind);
  // Searches as chosen and shows what was found, hiding this screen meanwhile.
  void SearchFrom(size_t screen_index);
  void PressRow(int row);
  void PressCommand(ResultCommand command);
  void Choose(PlayWay way);
  void AddAll();

  Assembly& house_;
  Menu& menu_;
  Navigation& navigation_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_SEARCH_WAYS_H_
