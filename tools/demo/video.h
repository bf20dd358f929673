// The demo's videos: drawn frame by frame in time with the notes that the synthesiser plays.
#ifndef SONOTIK_TOOLS_DEMO_VIDEO_H_
#define SONOTIK_TOOLS_DEMO_VIDEO_H_

#include <QString>

#include "tools/demo/albums.h"

namespace sonotik::demo {

// Makes an MPEG program stream with MPEG-1 video and layer 2 sound (ISO 11172), drawn after the
// motif of the album's cover. Throws DemoFailure if ffmpeg fails.
void EncodeVideo(const Album& album, const Track& track, const Piece& piece, const QString& output);

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_VIDEO_H_
