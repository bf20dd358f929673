// The sound library's own words.
#ifndef SONOTIK_DESKTOP_ALSA_ERRORS_H_
#define SONOTIK_DESKTOP_ALSA_ERRORS_H_

namespace sonotik {

// A machine without a sound card is told by silence: without this the library writes eight lines to
// standard error for each track.
void SilenceAlsaErrors();

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_ALSA_ERRORS_H_
