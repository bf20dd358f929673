// The menu bar, "BACK", and what stands between the screens.
#ifndef SONOTIK_SHELL_MENU_H_
#define SONOTIK_SHELL_MENU_H_

#include <functional>

#include "shell/assembly.h"

namespace sonotik {

// What fills the screens of other rooms; nothing until they do.
struct ScreenHooks {
  std::function<void()> history_first_page = [] {};
  std::function<void()> history_show2 = [] {};
  std::function<void()> top20_first_page = [] {};
  std::function<void()> Top20_show3 = [] {};
  std::function<void()> reset_search = [] {};
  std::function<void()> show_genres = [] {};
  std::function<void()> power_down = [] {};
};

class Menu {
 public:
  explicit Menu(Assembly& house);

  ScreenHooks hooks;

  void Open(MenuButton button);
  // "BACK" always means the album pages, wherever one came from.
  void Back();
  // Hides the screens and shows this one.
  void Show(size_t index);
  // The options, behind the PIN where that is asked for.
  void EnterOptions();
  // A touch on a screen's empty space.
  void TouchEmptySpace();
  void HideTop20Commands();

 private:
  void Wire();
  void OpenGenres();
  void OpenQueue();
  template <typename Handler>
  void OnClick(Control& control, const char* name, Handler handler);

  Assembly& house_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_MENU_H_
