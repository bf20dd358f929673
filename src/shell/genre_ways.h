// What touches do on the genre screen and on the genre bar.
#ifndef SONOTIK_SHELL_GENRE_WAYS_H_
#define SONOTIK_SHELL_GENRE_WAYS_H_

#include <string>

#include "shell/assembly.h"

namespace sonotik {

class GenreWays {
 public:
  explicit GenreWays(Assembly& house);

 private:
  template <typename Handler>
  void OnClick(Control& control, const char* name, Handler handler);
  void PressEntry(size_t entry);
  void LeaveBar();

  Assembly& house_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_GENRE_WAYS_H_
