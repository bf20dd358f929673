// What the demo jukebox has on its shelves. Every name here is invented.
#ifndef SONOTIK_TOOLS_DEMO_ALBUMS_H_
#define SONOTIK_TOOLS_DEMO_ALBUMS_H_

#include <vector>

#include "tools/demo/cover.h"
#include "tools/demo/styles.h"

namespace sonotik::demo {

enum class Format { kMp3, kWma, kM4a, kWav, kVideo, kKaraoke };

// How an album's MP3 files are written; readers meet all of these in the wild.
struct Mp3Kind {
  int kbits = 96;
  bool variable = false;   // variable bit rate, with a Xing header
  bool info_frame = true;  // a constant bit rate may go without its Info header
  bool utf16 = false;      // tag text in UTF-16 in place of Latin-1
  bool picture = false;    // the cover in the tag
};

struct Track {
  const char* title;
  int bars;
  int key;                       // semitones above C
  const Style* style = nullptr;  // a compilation's tracks have their own style and artist
  const char* artist = nullptr;
};

struct Album {
  Format format;
  const char* artist;
  const char* title;
  int year;
  const char* genre;
  const char* composer;
  const Style* style;
  Cover cover;
  std::vector<Track> tracks;
  Mp3Kind mp3 = {};
};

// All text in UTF-8.
const std::vector<Album>& Albums();

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_ALBUMS_H_
