// The cover page of a skin, from one of its *.cov files: how many covers and where they stand.
#ifndef SONOTIK_SKINS_COVER_LAYOUT_H_
#define SONOTIK_SKINS_COVER_LAYOUT_H_

#include <string>

#include "forms/AlbumScreen.h"

namespace sonotik {

// Until a file has been read: the twelve covers of the forms' design.
struct CoverLayout {
  int covers_per_page = kDesignCovers;  // 1 to 50
  bool show_reflections = false;
  bool show_frames = false;
};

// Reads the line format, fields by counting: a label, the count, reflections 0 or 1, frames 0 or 1,
// then for each position six boxes of top, left, height and width: cover, frame, reflection, "new"
// badge, album label, artist label. Positions behind the count are hidden. Throws RuntimeFailure
// for a file that is too short or holds text where a number is due.
void LoadCoverLayout(const std::string& path, CoverLayout& layout, AlbumScreen& screen);
// The same for the bytes of a file.
void ReadCoverLayout(std::string text, CoverLayout& layout, AlbumScreen& screen);

}  // namespace sonotik

#endif  // SONOTIK_SKINS_COVER_LAYOUT_H_
