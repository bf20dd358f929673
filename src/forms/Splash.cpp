#include "forms/Splash.h"

namespace sonotik {

using namespace design;

Splash::Splash() {
  form.SetPlace({0, 0, 480, 270});
  form.SetBackColor(kPanel);
  form.SetTitle("Sonotik");
  AddPicture(form, picture, {0, 0, 480, 270});
  AddLabel(form, title, {0, 84, 480, 64}, 36, kAmber, Align::kCenter, true);
  AddLabel(form, version, {0, 150, 480, 32}, 13, kMuted, Align::kCenter);
}

}  // namespace sonotik
