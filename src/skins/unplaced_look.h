// The look of the controls that no file of a skin names.
#ifndef SONOTIK_SKINS_UNPLACED_LOOK_H_
#define SONOTIK_SKINS_UNPLACED_LOOK_H_

#include "forms/Form1.h"

namespace sonotik {

// Each takes the letters and colours of one like it that a skin does lay out, and a button its
// picture, so that no control of the forms' own look stands out of a skin.
void DressUnplaced(Form1& form);

}  // namespace sonotik

#endif  // SONOTIK_SKINS_UNPLACED_LOOK_H_
