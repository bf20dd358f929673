// "Save Settings": the seven files of the operator.
#ifndef SONOTIK_SHELL_SAVE_SETTINGS_H_
#define SONOTIK_SHELL_SAVE_SETTINGS_H_

#include "shell/assembly.h"

namespace sonotik {

// Writes all of them in their order, changed or not. A file that can't be written keeps what it
// held, one message tells of all such files, and the others are written all the same.
void SaveSettings(Assembly& house);

}  // namespace sonotik

#endif  // SONOTIK_SHELL_SAVE_SETTINGS_H_
