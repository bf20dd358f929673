#include "catalogue/letter_jump.h"

#include <algorithm>
#include <cmath>

#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {
namespace {

constexpr int kZones = 27;

struct JumpRule {
  long base;      // of the position stored for a hit: the strip counts from 2, the buttons from 1
  bool scans[5];  // by CatalogueSource
};

const JumpRule& RuleOf(JumpControl control) {
  static constexpr JumpRule kButton{1, {true, true, true, true, true}};
  static constexpr JumpRule kThumb{2, {true, true, true, false, true}};
  static constexpr JumpRule kStrip{2, {true, true, true, false, false}};
  switch (control) {
    case JumpControl::kStripThumb:
      return kThumb;
    case JumpControl::kStrip:
      return kStrip;
    case JumpControl::kLetterButton:
      break;
  }
  return kButton;
}

}  // namespace

LetterJump::LetterJump(Catalogue& catalogue, CatalogueCursor& cursor, const CoverLayout& layout,
                       AlbumPages& pages, Form1& form)
    : catalogue_(catalogue), cursor_(cursor), layout_(layout), pages_(pages), form1_(form) {}

void LetterJump::JumpTo(char letter, JumpControl control) {
  const JumpRule& rule = RuleOf(control);
  if (!rule.scans[static_cast<size_t>(cursor_.source)]) return;
  long hit = 0;
  {
    RecordFile file(catalogue_.AlbumFileFor(cursor_), AlbumRecord::kSize);
    const long count = file.count();
    // Up to the last record but one; artists that begin with a digit have no letter at all and are
    // reached by paging. Both are meant.
    for (long i = 1; i < count && hit == 0; ++i) {
      // The first character as it stands in the record, also where it is a blank.
      const std::string_view artist =
          catalogue_.ReadAlbumRecord(file, i).Field(AlbumRecord::kArtist);
      if (UpperCase(artist.substr(0, 1))[0] == letter) hit = i;
    }
  }
  if (hit == 0) return;
  const long covers = layout_.covers_per_page;
  cursor_.SetPosition(FloorDiv(hit - rule.base, covers) * covers + rule.base);
  form1_.jump_to_letter.panel.SetVisible(false);
  pages_.read_albums3();
}

void LetterJump::Drag(float x) {
  const AlbumScreen& screen = form1_.album;
  const float zone = screen.strip.place().width / kZones;
  jump_letter_ = zone > 0 ? static_cast<int>(std::clamp(std::floor(x / zone), 0.0F, 26.0F)) : 0;
  Rect thumb = screen.strip_thumb.place();
  thumb.left = std::clamp(x - thumb.width / 2, 0.0F,
                          std::max(0.0F, screen.strip.place().width - thumb.width));
  form1_.album.strip_thumb.SetPlace(thumb);
}

void LetterJump::Release(JumpControl control) {
  // The first zone is no letter: it goes to the start of any source.
  if (jump_letter_ == 0) {
    cursor_.SetPosition(0);
    pages_.read_albums3();
  } else {
    JumpTo(static_cast<char>(64 + jump_letter_), control);
  }
}

}  // namespace sonotik
