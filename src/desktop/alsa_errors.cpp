#include "desktop/alsa_errors.h"

#include <alsa/asoundlib.h>

namespace sonotik {
namespace {

void SayNothing(const char*, int, const char*, int, const char*, ...) {}

}  // namespace

void SilenceAlsaErrors() { snd_lib_error_set_handler(SayNothing); }

}  // namespace sonotik
