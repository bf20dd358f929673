// Where the demo jukebox keeps its albums.
#ifndef SONOTIK_TOOLS_DEMO_SHELVES_H_
#define SONOTIK_TOOLS_DEMO_SHELVES_H_

#include <QString>

#include "tools/demo/albums.h"

namespace sonotik::demo {

// "music", "videos" or "karaoke".
QString ShelfOf(Format format);
// From the demo's folder on: "music/Beppo Lantana - Café Marimba".
QString FolderOf(const Album& album);
// A track's file in its album's folder: "01 - Café Marimba.mp3".
QString FileOf(const Album& album, size_t track);
// Who plays it; on a compilation each track has its own.
QString ArtistOf(const Album& album, size_t track);

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_SHELVES_H_
