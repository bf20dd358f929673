#include "skins/cover_layout.h"

#include <algorithm>

#include "files/files.h"
#include "files/line_format.h"

namespace sonotik {
namespace {

void PlaceFrom(FieldReader& reader, Control& control) {
  Rect place;
  place.top = static_cast<float>(reader.Float());
  place.left = static_cast<float>(reader.Float());
  place.height = static_cast<float>(reader.Float());
  place.width = static_cast<float>(reader.Float());
  control.SetPlace(place);
}

}  // namespace

void LoadCoverLayout(const std::string& path, CoverLayout& layout, AlbumScreen& screen) {
  FieldReader reader(ReadWholeFile(path));
  reader.Skip();
  // 51 slots are in use at most, and slot 0 is none of them.
  const int count = std::clamp<int>(reader.Int16(), 1, kMostCovers - 1);
  const bool reflections = reader.Int16() != 0;
  const bool frames = reader.Int16() != 0;
  layout = {count, reflections, frames};
  for (int i = 0; i < kMostCovers; ++i) {
    CoverPosition& position = screen.covers[static_cast<size_t>(i)];
    const std::initializer_list<Control*> items = {&position.cover,      &position.frame,
                                                   &position.reflection, &position.new_badge,
                                                   &position.album,      &position.artist};
    for (Control* item : items) {
      if (i < count) {
        PlaceFrom(reader, *item);
      } else {
        item->SetVisible(false);
      }
    }
  }
}

}  // namespace sonotik
