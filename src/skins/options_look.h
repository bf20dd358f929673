// The look of the settings, the lists and the keyboard on the options pages, which no file of a
// skin names.
#ifndef SONOTIK_SKINS_OPTIONS_LOOK_H_
#define SONOTIK_SKINS_OPTIONS_LOOK_H_

#include "forms/Form1.h"

namespace sonotik {

// Their colours follow from what a skin does say: the pages' colour, and the letters of the track
// list's headings.
void DressOptions(Form1& form);

}  // namespace sonotik

#endif  // SONOTIK_SKINS_OPTIONS_LOOK_H_
