// The karaoke song: its sound, and its words as CD+G graphics whose syllables change colour as they
// are to be sung.
#ifndef SONOTIK_TOOLS_DEMO_KARAOKE_H_
#define SONOTIK_TOOLS_DEMO_KARAOKE_H_

#include <QByteArray>

#include "tools/demo/albums.h"
#include "tools/demo/mixer.h"

namespace sonotik::demo {

struct KaraokeSong {
  Recording sound;
  QByteArray graphics;
};

KaraokeSong MakeKaraoke(const Album& album);

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_KARAOKE_H_
