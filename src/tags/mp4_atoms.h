// Names from the metadata atoms of an M4A or M4P, found by search. Layout of an atom and of the
// "data" atom in it: ISO 14496-12 boxes as the iTunes metadata list uses them.
#ifndef SONOTIK_TAGS_MP4_ATOMS_H_
#define SONOTIK_TAGS_MP4_ATOMS_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "tags/byte_source.h"

namespace sonotik {

// The first 65,536 bytes of a file as text, blanks behind the end of a shorter one. The box tree
// isn't walked: one read and a search for the names is what makes browsing albums quick.
class AtomFrame {
 public:
  explicit AtomFrame(ByteSource& file);

  // The position of an atom's name, counted from 1; 0 if there is none. Positions below 30,000
  // aren't seen.
  size_t Find(std::string_view name) const;

  // The value of the atom whose name stands at a position, up to the first NUL. For position 0 that
  // is the text at character 19 of the file, and it is meant to show. Throws RuntimeFailure if no
  // NUL follows.
  std::string getItemData(size_t position) const;

 private:
  std::string text_;
};

}  // namespace sonotik

#endif  // SONOTIK_TAGS_MP4_ATOMS_H_
