// What shows while the jukebox loads.
#ifndef SONOTIK_FORMS_SPLASH_H_
#define SONOTIK_FORMS_SPLASH_H_

#include "forms/design.h"

namespace sonotik {

struct Splash {
  Splash();

  Form form;
  PictureBox picture;
  Label title;
  Label version;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_SPLASH_H_
