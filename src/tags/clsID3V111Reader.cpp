#include "tags/clsID3V111Reader.h"

#include <algorithm>

#include "tags/id3v1.h"
#include "tags/media_file.h"
#include "tags/tag_record.h"

namespace sonotik {
namespace {

// The genres that this reader has always spelled in its own way.
struct Genre {
  int number;
  std::string_view name;
};
constexpr Genre kOwnGenres[] = {{40, "AlternRock"},  {81, "Folk/Rock"},      {82, "National folk"},
                                {84, "Fast-fusion"}, {117, "Powder Ballad"}, {123, "A Capella"},
                                {128, "Club House"}, {133, "NegerPunk"}};

std::string OwnGenreName(int number) {
  for (const Genre& genre : kOwnGenres) {
    if (genre.number == number) return std::string(genre.name);
  }
  return GenreName(number);
}

// A text without a NUL is lost whole. That is meant: it has always read as empty here.
std::string CutAtNul(std::span<const uint8_t> field) {
  const auto nul = std::find(field.begin(), field.end(), 0);
  return nul == field.end() ? "" : std::string(field.begin(), nul);
}

}  // namespace

void clsID3V111Reader::ReadID3V111Tag(ByteSource& file, bool check_only) {
  *this = {};
  if (!HasID3v1Tag(file)) return;
  TagPresent = true;
  if (check_only) return;
  const auto tag = file.Read<kID3v1Size>(file.size() - kID3v1Size);
  const auto text = [&](size_t offset, size_t width) {
    return CutAtNul(std::span(tag).subspan(offset, width));
  };
  SongTitle = text(3, 30);
  artist = text(33, 30);
  album = text(63, 30);
  Year = text(93, 4);
  Comment = text(97, 28);
  Track = tag[126];
  Genre = OwnGenreName(tag[127]);
}

void clsID3V111Reader::ReadID3V111Tag(std::string_view path, bool check_only) {
  MediaFile file(path);
  if (file.open()) ReadID3V111Tag(file, check_only);
}

}  // namespace sonotik
