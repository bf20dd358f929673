// Jumping to a letter, by buttons or by the letter strip.
#ifndef SONOTIK_CATALOGUE_LETTER_JUMP_H_
#define SONOTIK_CATALOGUE_LETTER_JUMP_H_

#include "catalogue/album_pages.h"

namespace sonotik {

// The controls that jump. They differ in the sources they look at and in the position they store.
enum class JumpControl { kLetterButton, kStripThumb, kStrip };

class LetterJump {
 public:
  LetterJump(Catalogue& catalogue, CatalogueCursor& cursor, const CoverLayout& layout,
             AlbumPages& pages, Form1& form);

  // The page of the first artist that begins with the letter. The last record of the file is never
  // looked at; without a hit all stays.
  void JumpTo(char letter, JumpControl control);

  // The strip: 27 zones, the first for the start of the file. `x` counts from its left edge.
  void Drag(float x);
  void Release(JumpControl control);
  // 0 for the start, n for the letter with code 64 + n.
  int jump_letter() const { return jump_letter_; }

 private:
  Catalogue& catalogue_;
  CatalogueCursor& cursor_;
  const CoverLayout& layout_;
  AlbumPages& pages_;
  Form1& form1_;
  int jump_letter_ = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_LETTER_JUMP_H_
