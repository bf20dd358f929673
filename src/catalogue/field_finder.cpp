#include "catalogue/field_finder.h"

#include <algorithm>
#include <array>

#include "catalogue/records.h"
#include "text/text.h"

namespace sonotik {
namespace {

// The width of every field that is searched, and of the whole vectors that hold it.
constexpr size_t kWidth = TrackRecord::kTrack.width;
constexpr size_t kLane = 64;
static_assert(kWidth <= kLane && TrackRecord::kArtist.width == kWidth &&
              TrackRecord::kAlbum.width == kWidth);

// Letters that differ in case alone become equal, and so do a few other characters.
constexpr unsigned char Fold(char c) { return static_cast<unsigned char>(c) & 0xDF; }

}  // namespace

FieldFinder::FieldFinder(std::string_view text) : text_(text) {}

bool FieldFinder::IsIn(std::string_view field) const {
  return MayBeIn(field) && ContainsIgnoringCase(TrimBlanks(field), text_);
}

// Whether the text's first and last character stand in the field at their distance. Nearly every
// field is done with by this alone, sixteen characters at a time: the loops have fixed lengths and
// no way out, so that the compiler can use the machine's vectors.
bool FieldFinder::MayBeIn(std::string_view field) const {
  if (text_.empty() || field.size() != kWidth) return true;
  if (text_.size() > kWidth) return false;
  std::array<unsigned char, 2 * kLane> folded{};
  for (size_t i = 0; i < kWidth; ++i) folded[i] = Fold(field[i]);
  const unsigned char first = Fold(text_.front());
  const unsigned char last = Fold(text_.back());
  const unsigned char* const behind = folded.data() + text_.size() - 1;
  unsigned char any = 0;
  for (size_t i = 0; i < kLane; ++i) {
    any |= static_cast<unsigned char>(folded[i] == first) &
           static_cast<unsigned char>(behind[i] == last);
  }
  return any != 0;
}

}  // namespace sonotik
