#include "skins/cover_layout.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "files/files.h"
#include "files/line_format.h"
#include "skins/coordinates.h"

namespace sonotik {
namespace {

constexpr size_t kItems = 6;  // a position
constexpr float kLeastPoints = 6;
constexpr float kMostPoints = 1000;

std::array<Control*, kItems> ItemsOf(CoverPosition& position) {
  return {&position.cover,     &position.frame, &position.reflection,
          &position.new_badge, &position.album, &position.artist};
}

Rect ReadBox(FieldReader& reader) {
  Rect place;
  place.top = ReadCoordinate(reader);
  place.left = ReadCoordinate(reader);
  place.height = ReadLength(reader);
  place.width = ReadLength(reader);
  return place;
}

// No file says how large the names below the covers are written: they fill their boxes.
void FitLetters(CoverPosition& position) {
  const auto fit = [](Label& label, float points_of_height) {
    Font font = label.font();
    font.points = std::clamp(label.place().height * points_of_height, kLeastPoints, kMostPoints);
    label.SetFont(font);
  };
  // In points, of a height in pixels.
  fit(position.new_badge, 0.4F);
  fit(position.album, 0.5F);
  fit(position.artist, 0.5F);
}

}  // namespace

void LoadCoverLayout(const std::string& path, CoverLayout& layout, AlbumScreen& screen) {
  ReadCoverLayout(ReadWholeFile(path), layout, screen);
}

void ReadCoverLayout(std::string text, CoverLayout& layout, AlbumScreen& screen) {
  FieldReader reader(std::move(text));
  reader.Skip();
  CoverLayout read;
  // 51 slots are in use at most, and slot 0 is none of them.
  read.covers_per_page = std::clamp<int>(reader.Int16(), 1, kMostCovers - 1);
  read.show_reflections = reader.Int16() != 0;
  read.show_frames = reader.Int16() != 0;
  // Nothing moves before the whole file has been read: half a layout is none.
  std::vector<Rect> places;
  for (size_t i = 0; i < static_cast<size_t>(read.covers_per_page) * kItems; ++i) {
    places.push_back(ReadBox(reader));
  }
  layout = read;
  for (size_t i = 0; i < screen.covers.size(); ++i) {
    const auto items = ItemsOf(screen.covers[i]);
    for (size_t k = 0; k < kItems; ++k) {
      if (i * kItems + k < places.size()) {
        items[k]->SetPlace(places[i * kItems + k]);
      } else {
        items[k]->SetVisible(false);
      }
    }
    if (i * kItems < places.size()) FitLetters(screen.covers[i]);
  }
}

}  // namespace sonotik
